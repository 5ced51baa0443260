// A screen's menu as the system's own popup menu.
#pragma once

#include <QFont>
#include <QPoint>

#include "toolkit/controls.h"

namespace quillor {

/// Shows the menu's children at a point of the display until one is chosen.
/// Returns it, or null when the menu was left.
MenuItem* choosePopUp(QWidget* parent, const MenuItem& menu, const QFont& font, QPoint at);

}  // namespace quillor
