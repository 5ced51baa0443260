// The marks are drawn, not written: no font is needed for them.
#include "qt/boxes/box_icon.h"

#include <QPainter>
#include <cmath>

#include "qt/paint/symbol_painter.h"
#include "toolkit/symbols.h"

namespace quillor {

namespace {

const QColor kAlarm(225, 35, 35);
constexpr double kPen = 0.13;  // of the marks, of the circle's diameter

QPen roundPen() {
    return {Qt::white, kPen, Qt::SolidLine, Qt::RoundCap};
}

// In the unit square: a stem and its dot, the dot at the given height.
void drawStem(QPainter& painter, double from, double to, double dot) {
    painter.setPen(roundPen());
    painter.drawLine(QPointF(0.5, from), QPointF(0.5, to));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QPointF(0.5, dot), 0.078, 0.078);
}

void drawMark(QPainter& painter, QMessageBox::Icon icon) {
    if (icon == QMessageBox::Question)
        drawSymbol(painter, QRectF(0.21, 0.2, 0.58, 0.58), Face::Webdings, symbols::kQuestion[0],
                   Qt::white);
    else if (icon == QMessageBox::Information)
        drawStem(painter, 0.48, 0.73, 0.27);
    else
        drawStem(painter, 0.27, 0.52, 0.73);
}

}  // namespace

QPixmap boxIcon(QMessageBox::Icon icon, const QColor& accent, int size, double density) {
    if (icon == QMessageBox::NoIcon)
        return {};
    const int pixels = static_cast<int>(std::lround(size * density));
    QPixmap picture(pixels, pixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels, pixels);
    const bool harmless = icon == QMessageBox::Question || icon == QMessageBox::Information;
    painter.setPen(Qt::NoPen);
    painter.setBrush(harmless ? accent : kAlarm);
    painter.drawEllipse(QRectF(0.01, 0.01, 0.98, 0.98));
    drawMark(painter, icon);
    painter.end();
    picture.setDevicePixelRatio(density);
    return picture;
}

}  // namespace quillor
