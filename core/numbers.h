// Numbers as files and screens write them, and rounding as the game's rules mean it.
#pragma once

#include <cstdint>

#include "core/types.h"

namespace quillor {

/// The number a line starts with: blanks, a sign and decimals allowed, 0 where
/// there is none. Text after it is ignored.
double leadingNumber(TextView line);

/// A whole number in decimal digits, behind a minus sign where it is below 0.
Text inDigits(int value);

/// Rounds to the nearest whole number, halves to the even neighbour.
/// Throws std::overflow_error beyond the signed 16 bits.
std::int16_t toInteger(double value);

/// The same for the signed 32 bits of a colour.
std::int32_t toLong(double value);

}  // namespace quillor
