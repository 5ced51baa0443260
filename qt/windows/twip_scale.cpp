// Edges are rounded, not sizes.
#include "qt/windows/twip_scale.h"

#include <algorithm>
#include <cmath>

namespace quillor {

TwipScale TwipScale::fitting(QSizeF sheet, QSizeF twips, QSize window) {
    TwipScale scale;
    scale.pixels = std::min(window.width() / sheet.width(), window.height() / sheet.height());
    // Whole pixels, so that the screen's first column is sharp.
    scale.origin = {std::floor((window.width() - twips.width() * scale.pixels) / 2),
                    std::floor((window.height() - twips.height() * scale.pixels) / 2)};
    scale.screen = twips;
    scale.window = window;
    return scale;
}

QRect TwipScale::place(const QRectF& twips) const {
    const auto x = [&](double edge) {
        return static_cast<int>(std::lround(origin.x() + edge * pixels));
    };
    const auto y = [&](double edge) {
        return static_cast<int>(std::lround(origin.y() + edge * pixels));
    };
    const int left = x(twips.left());
    const int top = y(twips.top());
    return QRect(left, top, x(twips.right()) - left, y(twips.bottom()) - top);
}

QRect TwipScale::groundPlace(const QRectF& twips) const {
    QRect reached = place(twips);
    if (twips.left() <= 0 && twips.right() >= screen.width()) {
        reached.setLeft(0);
        reached.setWidth(window.width());
    }
    if (twips.top() <= 0 && twips.bottom() >= screen.height()) {
        reached.setTop(0);
        reached.setHeight(window.height());
    }
    return reached;
}

QPointF parentOrigin(const Control& control) {
    QPointF origin;
    for (const Frame* frame = control.parent; frame; frame = frame->parent)
        origin += QPointF(frame->left, frame->top);
    return origin;
}

QRectF screenRect(const Control& control) {
    return QRectF(control.left, control.top, control.width, control.height)
        .translated(parentOrigin(control));
}

}  // namespace quillor
