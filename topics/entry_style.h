// What the two screens that stand over the game have in common.
#pragma once

#include "core/texts.h"
#include "toolkit/controls.h"
#include "toolkit/style.h"

namespace quillor::entry {

inline constexpr Twips kWidth = 7200;
inline constexpr Color kPale = rgb(250, 250, 250);

/// The look of the accept button: a red shape, its face and its caption, which
/// is the one that is tabbed to.
inline void styleAccept(Shape& shape, Label& face, Label& caption) {
    shape.radius = style::kButtonRadius;
    caption.font = style::kButton;
    caption.textColor = kPale;
    face.role = caption.role = LabelRole::Button;
    caption.cornerRadius = style::kButtonRadius;
    face.tabStop = false;
    face.enabled = caption.enabled = false;
}

}  // namespace quillor::entry
