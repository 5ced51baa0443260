// Where a window stands, for the one that follows it.
#pragma once

#include <QRect>

namespace quillor {

struct WindowPlace {
    QRect geometry;  // when it is neither maximized nor full-screen
    Qt::WindowStates states;
    double pixelsPerTwip = 0;
};

}  // namespace quillor
