// From a screen's twips to a window's pixels.
#pragma once

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSizeF>

#include "toolkit/controls.h"

namespace quillor {

/// Lengths are logical pixels; the display's density is Qt's business.
struct TwipScale {
    double pixels = 0.1;  // a twip's
    QPointF origin;       // of the screen in the window
    QSizeF screen;        // its size in twips
    QSize window;

    /// The largest scale at which `sheet` twips fit into the window, with a
    /// screen of `twips`, which may be smaller, in the middle.
    static TwipScale fitting(QSizeF sheet, QSizeF twips, QSize window);

    /// Each edge is rounded by itself, so that controls that touch in twips
    /// touch in pixels. `twips` is relative to the screen.
    QRect place(const QRectF& twips) const;
    /// The place of something with a ground of its own. When that reaches from
    /// one edge of the screen to the opposite one, it goes on to the window's edges.
    QRect groundPlace(const QRectF& twips) const;

    bool operator==(const TwipScale&) const = default;
};

/// Where a control's parent stands on the screen, in twips.
QPointF parentOrigin(const Control& control);

/// A control's rectangle on the screen, in twips.
QRectF screenRect(const Control& control);

}  // namespace quillor
