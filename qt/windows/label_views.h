// Labels as widgets: buttons where they can be pressed, texts otherwise.
#pragma once

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>

#include "qt/paint/label_painter.h"
#include "qt/windows/control_view.h"

namespace quillor {

/// What both kinds share.
class LabelView : public ControlView {
  public:
    Label& label() const { return label_; }
    bool isBehindOthers() const override { return label_.opaque || look_.opaque; }
    /// Whether another screen stands over its own.
    bool isCovered() const { return link().screen() != nullptr && !link().screen()->enabled; }

  protected:
    LabelView(Label& label, ScreenLink& link) : ControlView(&label, link), label_(label) {}

    void syncLook() override;
    /// Says nothing of labels that come into view or leave it: that is told anyway, and
    /// a board of them at once would drown whatever is announced.
    void syncWords() override;
    bool hasGround() const override { return label_.opaque; }
    void paint(QPainter& painter);
    const LabelLook& look() const { return look_; }

  private:
    void takeGround(LabelLook& look) const;

    Label& label_;
    LabelLook look_;
};

/// A label that is pressed. Only Tab gives it the focus: a click leaves the
/// field that is being typed in alone.
class ButtonView : public QAbstractButton, public LabelView {
  public:
    ButtonView(Label& label, ScreenLink& link, QWidget* parent);

    QWidget& widget() override { return *this; }
    /// Presses it for an assistive tool, which knows nothing of open boxes.
    void assistivePress();
    /// The same for an entry of its menu.
    void assistiveChoose(MenuItem& item);

  protected:
    void announce(const ShownControl::Changes& changes) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
    void nextCheckState() override {}
};

/// A label that is read. It passes the mouse on to its handlers all the same.
class CaptionView : public QLabel, public LabelView {
  public:
    CaptionView(Label& label, ScreenLink& link, QWidget* parent);

    QWidget& widget() override { return *this; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;

  private:
    bool pressed_ = false;
};

/// A label that is never drawn: its captions are spoken.
class NotificationView : public QLabel, public LabelView {
  public:
    NotificationView(Label& label, ScreenLink& link, QWidget* parent);

    QWidget& widget() override { return *this; }

  protected:
    void announce(const ShownControl::Changes& changes) override;
    /// By itself, with the first thing to say: an empty one would be spoken of.
    bool mayShow() const override { return false; }
    void paintEvent(QPaintEvent*) override {}

  private:
    void sayIt();

    QTimer later_;
};

}  // namespace quillor
