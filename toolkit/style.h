// The measures and colours that all screens share, so that they look like one program.
#pragma once

#include "core/types.h"
#include "toolkit/controls.h"
#include "toolkit/sheets.h"

namespace quillor::style {

inline constexpr Twips kButtonRadius = 150;

// Colours that no player's file changes; the palette of GameSettings has the others.
inline constexpr Color kInk = rgb(40, 40, 40);
inline constexpr Color kPale = rgb(250, 250, 250);       // text on colour
inline constexpr Color kFaint = rgb(90, 90, 90);         // small print on paper
inline constexpr Color kPaper = rgb(252, 251, 247);      // where nothing is ruled
inline constexpr Color kEdge = rgb(135, 135, 142);       // of fields, lists, quiet buttons
inline constexpr Color kFineEdge = rgb(200, 204, 208);   // of keys, and between entries
inline constexpr Color kQuietFace = rgb(244, 243, 239);  // of buttons in boxes
inline constexpr Color kSelection = rgb(16, 112, 176);   // of text in fields
inline constexpr Color kHoveredRow = rgb(230, 236, 244);
inline constexpr Color kDisabledFace = rgb(214, 214, 214);
inline constexpr Color kBoxHover = rgb(22, 136, 22);  // white text on it has 4.5:1
inline constexpr Color kBoxPressed = rgb(14, 104, 14);
inline constexpr Color kAlarm = rgb(225, 35, 35);

/// What is drawn on the notebook page of a screen; see Picture.
inline constexpr const char* kMenuDrawing = "menu";
inline constexpr const char* kIdleDrawing = "idle";
inline constexpr const char* kTallIdleDrawing = "idle-tall";
inline constexpr const char* kSettingsDrawing = "settings";
inline constexpr const char* kTallMenuDrawing = "menu-tall";
inline constexpr const char* kTallSettingsDrawing = "settings-tall";

inline constexpr Font kButton{Face::Display, 17, true};
inline constexpr Font kSmallButton{Face::Display, 14, true};
inline constexpr Font kBarText{Face::Display, 14, true};
inline constexpr Font kText{Face::Display, 12, true};
inline constexpr Font kField{Face::Plain, 14, false};
inline constexpr Font kToolTip{Face::Plain, 10, false};
inline constexpr Font kSymbol{Face::Webdings, 20, false};

}  // namespace quillor::style

/// The letters of the symbol fonts that serve as captions. On every system the
/// shell draws the picture that the letter stands for, not the letter.
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

namespace quillor {

/// While the left button is down on the label, `painted` is in the colour
/// `pressed`, after it in `atRest`. All three are referred to: they outlive the
/// label's handlers.
inline void showPress(Label& label, Color& painted, const Color& pressed, const Color& atRest) {
    label.onMouseDown = [&painted, &pressed] { painted = pressed; };
    label.onMouseUp = [&painted, &atRest] { painted = atRest; };
}

}  // namespace quillor
