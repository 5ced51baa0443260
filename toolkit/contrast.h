// How well one colour can be told from another.
#pragma once

#include "core/types.h"

namespace quillor {

/// What a text needs on its ground: large ones are those of 18 points, or of 14
/// in bold letters.
inline constexpr double kSmallTextContrast = 4.5;
inline constexpr double kLargeTextContrast = 3;

/// How light a colour is: 0 (black) to 1 (white).
double luminance(Color color);

/// Contrast of two colours as web pages measure it: 1 (the same) to 21 (black
/// on white).
double contrast(Color one, Color other);

/// Black or white, whichever stands out more from the colour: at least 4.5.
Color farthestFrom(Color color);

/// The colour, darker where white could not be read on it with that contrast (1 to 21).
Color darkEnoughForWhite(Color color, double needed);

/// `share` (0 to 1) of `over` on top of `under`.
Color mixed(Color under, Color over, double share);

}  // namespace quillor
