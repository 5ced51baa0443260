// The edge between files and the program: bytes in Windows-1252 or UTF-8
// outside, UTF-16 inside.
#pragma once

#include <string>
#include <string_view>

#include "core/types.h"

namespace quillor {

/// UTF-8 when the bytes start with its mark (which is dropped) or are valid
/// UTF-8 with non-ASCII in it; Windows-1252 otherwise. Never fails.
Text decodeText(std::string_view bytes);

/// Windows-1252, or UTF-8 with the mark when a character needs it.
std::string encodeText(TextView text);

/// Plain UTF-8 without a mark, for the system's own interfaces. Lone surrogates
/// become U+FFFD.
std::string toUtf8(TextView text);
Text fromUtf8(std::string_view bytes);

}  // namespace quillor
