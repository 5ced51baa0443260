// The measures that all screens share, so that they look like one program.
#pragma once

#include "core/types.h"
#include "toolkit/controls.h"

namespace quillor::style {

/// The four large screens have one size, so that the window stays as it is
/// when one follows the other.
inline constexpr Twips kScreenWidth = 13200;
inline constexpr Twips kScreenHeight = 8100;

inline constexpr Twips kButtonRadius = 150;

/// What is drawn on the notebook page of a screen; see Picture.
inline constexpr const char* kMenuDrawing = "menu";
inline constexpr const char* kIdleDrawing = "idle";
inline constexpr const char* kSettingsDrawing = "settings";

inline constexpr Font kButton{Face::Display, 17, true};
inline constexpr Font kSmallButton{Face::Display, 13, true};
inline constexpr Font kBarText{Face::Display, 14, true};
inline constexpr Font kText{Face::Display, 12, true};
inline constexpr Font kField{Face::Plain, 14, false};
inline constexpr Font kSymbol{Face::Webdings, 20, false};

}  // namespace quillor::style
