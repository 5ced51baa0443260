#include "qt/windows/drawn_views.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "qt/windows/qt_values.h"
#include "toolkit/style.h"

namespace quillor {

ShapeView::ShapeView(Shape& shape, ScreenLink& link, QWidget* parent)
    : QWidget(parent), ControlView(&shape, link), shape_(shape) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeView::syncLook() {
    const Shape& s = shape_;
    const Color face = s.enabled ? s.backColor : style::kDisabledFace;
    const Look look{s.kind,        scheme().ground(face),
                    s.filled,      s.filled ? scheme().edge(s.borderColor, face) : s.borderColor,
                    s.borderWidth, s.radius};
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
    : QWidget(parent), ControlView(&line, link), line_(line) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineView::syncLook() {
    const Line& l = line_;
    const double half = static_cast<double>(l.thickness) / 2;
    const QRectF span(QPointF(l.x1, l.y1), QPointF(l.x2, l.y2));
    const QPointF parent = parentOrigin(l);
    const QPoint corner = scale().place(extent()).topLeft();
    const auto point = [&](QPointF twips) {
        return scale().origin + (twips + parent) * pixelsPerTwip() - corner;
    };
    const QRectF stroke = span.normalized().adjusted(-half, -half, half, half);
    Look look{point(span.topLeft()),
              point(span.bottomRight()),
              scale().place(stroke.translated(parent)).translated(-corner),
              2 * half * pixelsPerTwip(),
              l.color,
              l.roundEnds,
              {}};
    if (link().isOpen() && l.visible) {
        const Inked shown = inked(link().grounds(), l, scheme());
        look.color = shown.ink;
        look.edge = shown.edge();
    }
    if (look == shown_)
        return;
    shown_ = look;
    update();
}

// With room for the pen and for its rounding to whole pixels.
QRectF LineView::extent() const {
    const double room = 1.5 * static_cast<double>(line_.thickness) + 15;
    const QRectF span(QPointF(line_.x1, line_.y1), QPointF(line_.x2, line_.y2));
    return span.normalized().adjusted(-room, -room, room, room).translated(parentOrigin(line_));
}

// Upright and level lines lie on whole pixels; their right or lower edge is where
// other controls have theirs that end there.
void LineView::paintEvent(QPaintEvent*) {
    auto [from, to, stroke, thickness, color, roundEnds, edge] = shown_;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double density = devicePixelRatioF();
    const double whole = std::max(1.0, std::round(thickness * density)) / density;
    const bool upright = from.x() == to.x();
    const bool level = from.y() == to.y();
    if (upright)
        from.rx() = to.rx() = stroke.right() + 1 - whole / 2;
    if (level)
        from.ry() = to.ry() = stroke.bottom() + 1 - whole / 2;
    if (level && !roundEnds) {
        from.rx() = std::round(from.x());
        to.rx() = std::round(to.x());
    }
    const double width = upright || level ? whole : std::max(thickness, 1.0);
    const auto draw = [&painter, line = QLineF(from, to),
                       ends = roundEnds ? Qt::RoundCap : Qt::FlatCap](Color ink, double pen) {
        painter.setPen(QPen(toQt(ink), pen, Qt::SolidLine, ends, Qt::RoundJoin));
        painter.drawLine(line);
    };
    painter.setOpacity(edge.share);
    if (edge.share > 0)
        draw(edge.color, 2 * width);
    painter.setOpacity(1);
    draw(color, width);
}

PictureView::PictureView(Picture& picture, ScreenLink& link, QWidget* parent)
    : QWidget(parent), ControlView(&picture, link), picture_(picture) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void PictureView::syncLook() {
    const Look look{picture_.image, picture_.drawing, picture_.drawn, scheme()};
    if (look == shown_)
        return;
    shown_ = look;
    link().shell().papers.clear();  // megabytes, which may be wanted no more
    update();
}

void PictureView::paintEvent(QPaintEvent* event) {
    const double density = devicePixelRatioF();
    const auto& [image, drawing, part, colors] = shown_;
    QRectF drawn = ownPlace();
    if (part.width > 0)
        drawn = QRectF(drawn.topLeft() + QPointF(part.left, part.top) * pixelsPerTwip(),
                       QSizeF(part.width, part.height) * pixelsPerTwip());
    QPainter painter(this);
    link().shell().papers.paint(
        painter, event->rect(),
        {image, drawing, size(), density, pixelsPerTwip(), drawn, ownPlace().top(), colors});
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
    : QWidget(parent), ControlView(&frame, link), frame_(frame) {
    setMouseTracking(true);
}

void FrameView::syncLook() {
    const std::tuple<Color, bool> look{scheme().ground(frame_.backColor), frame_.opaque};
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
