// Controls that are only painted: shapes, lines, pictures and frames. Nothing is said of
// them.
#pragma once

#include <QWidget>
#include <tuple>

#include "qt/windows/control_view.h"
#include "toolkit/contrast.h"

namespace quillor {

/// Neither the mouse nor a screen reader takes note of it.
class ShapeView : public QWidget, public ControlView {
  public:
    ShapeView(Shape& shape, ScreenLink& link, QWidget* parent);
    QWidget& widget() override { return *this; }

  protected:
    void syncLook() override;
    void syncWords() override {}
    bool hasGround() const override { return shape_.filled; }
    void paintEvent(QPaintEvent* event) override;

  private:
    using Look = std::tuple<ShapeKind, Color, bool, Color, Twips, Twips>;
    Shape& shape_;
    Look shown_;
};

class LineView : public QWidget, public ControlView {
  public:
    bool isBehindOthers() const override { return false; }
    LineView(Line& line, ScreenLink& link, QWidget* parent);
    QWidget& widget() override { return *this; }

  protected:
    void syncLook() override;
    void syncWords() override {}
    QRectF extent() const override;
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Look {  // in pixels of the widget
        QPointF from;
        QPointF to;
        QRect stroke;  // with round ends, its edges rounded
        double thickness = 0;
        Color color = 0;
        bool roundEnds = true;
        Edge edge;

        bool operator==(const Look&) const = default;
    };
    Line& line_;
    Look shown_;
};

class PictureView : public QWidget, public ControlView {
  public:
    PictureView(Picture& picture, ScreenLink& link, QWidget* parent);
    QWidget& widget() override { return *this; }

  protected:
    void syncLook() override;
    void syncWords() override {}
    bool hasGround() const override { return true; }
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;

  private:
    using Look = std::tuple<ImageRef, std::string, Area, Scheme>;
    Picture& picture_;
    Look shown_;
};

class FrameView : public QWidget, public ControlView {
  public:
    FrameView(Frame& frame, ScreenLink& link, QWidget* parent);
    QWidget& widget() override { return *this; }

  protected:
    void syncLook() override;
    void syncWords() override {}
    bool hasGround() const override { return frame_.opaque; }
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;

  private:
    Frame& frame_;
    std::tuple<Color, bool> shown_{0, false};
};

}  // namespace quillor
