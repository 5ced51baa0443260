#include "qt/windows/drawn_views.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "qt/windows/qt_values.h"

namespace quillor {

ShapeView::ShapeView(Shape& shape, ScreenLink& link, QWidget* parent)
    : QWidget(parent), ControlView(shape, link), shape_(shape) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeView::syncLook() {
    const Shape& s = shape_;
    const Look look{s.kind, s.backColor, s.filled, s.borderColor, s.borderWidth, s.radius};
    if (look == shown_)
        return;
    shown_ = look;
    update();
}

void ShapeView::paintEvent(QPaintEvent*) {
    const auto& [kind, backColor, filled, borderColor, borderTwips, radiusTwips] = shown_;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double border = static_cast<double>(borderTwips) * pixelsPerTwip();
    const QRectF area = QRectF(rect()).adjusted(border / 2, border / 2, -border / 2, -border / 2);
    painter.setPen(border > 0 ? QPen(toQt(borderColor), border) : QPen(Qt::NoPen));
    painter.setBrush(filled ? QBrush(toQt(backColor)) : QBrush(Qt::NoBrush));
    const double radius = std::min(
        {static_cast<double>(radiusTwips) * pixelsPerTwip(), area.width() / 2, area.height() / 2});
    if (kind == ShapeKind::Oval)
        painter.drawEllipse(area);
    else
        painter.drawRoundedRect(area, radius, radius);
}

LineView::LineView(Line& line, ScreenLink& link, QWidget* parent)
    : QWidget(parent), ControlView(line, link), line_(line) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineView::syncLook() {
    const Line& l = line_;
    const Look look{l.x1, l.y1, l.x2, l.y2, l.color, l.thickness};
    if (look == shown_)
        return;
    shown_ = look;
    update();
}

// With room for the pen and for its rounding to whole pixels.
QRectF LineView::extent() const {
    const double room = static_cast<double>(line_.thickness) + 15;
    const QRectF span(QPointF(line_.x1, line_.y1), QPointF(line_.x2, line_.y2));
    return span.normalized().adjusted(-room, -room, room, room).translated(parentOrigin(line_));
}

void LineView::paintEvent(QPaintEvent*) {
    const auto& [x1, y1, x2, y2, color, thickness] = shown_;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double density = devicePixelRatioF();
    double pen = std::max(static_cast<double>(thickness) * pixelsPerTwip(), 1.0);
    // Upright and level lines lie on whole pixels.
    if (x1 == x2 || y1 == y2)
        pen = std::max(1.0, std::round(pen * density)) / density;
    const auto sharp = [&](double edge) {
        return std::round((edge - pen / 2) * density) / density + pen / 2;
    };
    const double left = static_cast<double>(std::min(x1, x2) - thickness) - 15;
    const double top = static_cast<double>(std::min(y1, y2) - thickness) - 15;
    const auto point = [&](Twips x, Twips y) {
        const QPointF raw((static_cast<double>(x) - left) * pixelsPerTwip(),
                          (static_cast<double>(y) - top) * pixelsPerTwip());
        return QPointF(x1 == x2 ? sharp(raw.x()) : raw.x(), y1 == y2 ? sharp(raw.y()) : raw.y());
    };
    painter.setPen(QPen(toQt(color), pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawLine(point(x1, y1), point(x2, y2));
}

PictureView::PictureView(Picture& picture, ScreenLink& link, QWidget* parent)
    : QWidget(parent), ControlView(picture, link), picture_(picture) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void PictureView::syncLook() {
    const Look look{picture_.image, picture_.drawing};
    if (look == shown_)
        return;
    shown_ = look;
    update();
}

void PictureView::paintEvent(QPaintEvent* event) {
    const double density = devicePixelRatioF();
    const auto& [image, drawing] = shown_;
    const QPixmap& pixmap = link().shell().papers.filling(
        {image, drawing, size(), density, pixelsPerTwip(), ownPlace()});
    QPainter painter(this);
    const QRectF part = event->rect();
    painter.drawPixmap(part, pixmap, QRectF(part.topLeft() * density, part.size() * density));
}

void PictureView::mouseMoveEvent(QMouseEvent*) {
    link().event([&](Screen& screen) { screen.mouseMove(picture_); });
}

void PictureView::enterEvent(QEnterEvent*) {
    link().event([&](Screen& screen) { screen.mouseMove(picture_); });
}

void PictureView::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton && rect().contains(event->position().toPoint()))
        link().event([&](Screen& screen) { screen.rightClick(picture_); });
}

FrameView::FrameView(Frame& frame, ScreenLink& link, QWidget* parent)
    : QWidget(parent), ControlView(frame, link), frame_(frame) {
    setMouseTracking(true);
}

void FrameView::syncLook() {
    const std::tuple<Color, bool> look{frame_.backColor, frame_.opaque};
    if (look == shown_)
        return;
    shown_ = look;
    update();
}

void FrameView::paintEvent(QPaintEvent* event) {
    const auto& [color, opaque] = shown_;
    if (opaque)
        QPainter(this).fillRect(event->rect(), toQt(color));
}

void FrameView::mouseMoveEvent(QMouseEvent*) {
    link().event([&](Screen& screen) { screen.mouseMove(frame_); });
}

void FrameView::enterEvent(QEnterEvent*) {
    link().event([&](Screen& screen) { screen.mouseMove(frame_); });
}

void FrameView::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void FrameView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton && rect().contains(event->position().toPoint()))
        link().event([&](Screen& screen) { screen.rightClick(frame_); });
}

}  // namespace quillor
