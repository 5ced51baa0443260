// The marks are drawn, not written: no font is needed for them.
#include "qt/boxes/box_icon.h"

#include <QPainter>
#include <cmath>

#include "qt/paint/symbol_painter.h"
#include "qt/windows/qt_values.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

// In the unit square: a stem and its dot, the dot at the given height.
void drawStem(QPainter& painter, double from, double to, double dot) {
    painter.setPen(QPen(Qt::white, 0.13, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0.5, from), QPointF(0.5, to));
    painter.setPen(QPen(Qt::white, 0.156, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoint(QPointF(0.5, dot));
}

}  // namespace

QPixmap boxIcon(BoxSign sign, const QColor& accent, int size, double density) {
    const int pixels = static_cast<int>(std::lround(size * density));
    QPixmap picture(pixels, pixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels, pixels);
    painter.setPen(Qt::NoPen);
    painter.setBrush(sign == BoxSign::Critical ? toQt(style::kAlarm) : accent);
    painter.drawEllipse(QRectF(0.01, 0.01, 0.98, 0.98));
    if (sign == BoxSign::Question)
        drawSymbol(painter, QRectF(0.21, 0.2, 0.58, 0.58), Face::Webdings, symbols::kQuestion[0],
                   Qt::white);
    else if (sign == BoxSign::Information)
        drawStem(painter, 0.48, 0.73, 0.27);
    else
        drawStem(painter, 0.27, 0.52, 0.73);
    painter.end();
    picture.setDevicePixelRatio(density);
    return picture;
}

}  // namespace quillor
