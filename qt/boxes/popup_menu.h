// A screen's menu as a popup menu.
#pragma once

#include <QPoint>

#include "qt/boxes/box_style.h"
#include "toolkit/controls.h"

namespace quillor {

/// Shows the menu's children at a point of the display until one is chosen.
/// Returns it, or null when the menu was left.
/// Opened by key its first entry is the current one, which a screen reader then says.
MenuItem* choosePopUp(const BoxStyle& style, const MenuItem& menu, QPoint at, bool byKey = false);

}  // namespace quillor
