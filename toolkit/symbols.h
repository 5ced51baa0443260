// The letters of the symbol fonts that serve as captions. On every system the
// shell draws the picture that the letter stands for, not the letter.
#pragma once

#include "core/types.h"

namespace quillor::symbols {

// In the face Webdings.
inline constexpr TextView kTick = u"a";
inline constexpr TextView kLoudspeaker = u"U";
inline constexpr TextView kLoudspeakerOff = u"V";
inline constexpr TextView kCross = u"r";
inline constexpr TextView kQuestion = u"s";
inline constexpr TextView kTriangleLeft = u"3";
inline constexpr TextView kTriangleRight = u"4";
inline constexpr TextView kMagnifier = u"L";

// In the face Wingdings.
inline constexpr TextView kArrowLeft = u"ß";
inline constexpr TextView kPlus = u"Ë";
inline constexpr TextView kDelete = u"û";

}  // namespace quillor::symbols
