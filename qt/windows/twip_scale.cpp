// Edges are rounded, not sizes.
#include "qt/windows/twip_scale.h"

#include <algorithm>
#include <cmath>

namespace quillor {

TwipScale TwipScale::fitting(QSizeF twips, QSizeF space) {
    TwipScale scale;
    scale.pixels = std::min(space.width() / twips.width(), space.height() / twips.height());
    // Whole pixels, so that the screen's first column is sharp.
    scale.origin = {std::floor((space.width() - twips.width() * scale.pixels) / 2),
                    std::floor((space.height() - twips.height() * scale.pixels) / 2)};
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
