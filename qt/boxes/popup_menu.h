// A screen's menu as a popup menu.
#pragma once

#include <QPoint>

#include "qt/boxes/box_style.h"
#include "toolkit/controls.h"

namespace quillor {

/// Shows the menu's children at a point of the display until one is chosen.
/// Returns it, or null when the menu was left.
MenuItem* choosePopUp(const BoxStyle& style, const MenuItem& menu, QPoint at);

}  // namespace quillor
