// Labels as widgets: buttons where they can be pressed, texts otherwise.
#pragma once

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>

#include "qt/paint/label_painter.h"
#include "qt/windows/control_view.h"

namespace quillor {

/// What both kinds share.
class LabelView : public ControlView {
  public:
    Label& label() const { return label_; }
    /// Pressing it does something now.
    bool isPressable() const { return label_.onClick && isUsable(); }
    /// Presses it as its access key or Return does.
    virtual void press() = 0;

  protected:
    LabelView(Label& label, ScreenLink& link) : ControlView(label, link), label_(label) {}

    void syncLook() override;
    QString spokenName() const override;
    bool hasGround() const override { return label_.opaque; }
    void paint(QPainter& painter);
    const LabelLook& look() const { return look_; }
    /// The caption or the check has changed.
    virtual void announce() {}

  private:
    Label& label_;
    LabelLook look_;
    bool checked_ = false;
};

/// A label that is pressed. Only Tab gives it the focus: a click leaves the
/// field that is being typed in alone.
class ButtonView : public QAbstractButton, public LabelView {
  public:
    ButtonView(Label& label, ScreenLink& link, QWidget* parent);

    QWidget& widget() override { return *this; }
    bool takesTab() const override { return label().tabStop && isPressable(); }
    void press() override { click(); }
    /// Space goes down; the release presses.
    void spaceDown(QKeyEvent& event);
    /// Presses it for an assistive tool, which knows nothing of open boxes.
    void assistivePress();

  protected:
    void announce() override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
    void nextCheckState() override {}
};

/// A label that is read. It passes the mouse on to its handlers all the same.
class CaptionView : public QLabel, public LabelView {
  public:
    CaptionView(Label& label, ScreenLink& link, QWidget* parent);

    QWidget& widget() override { return *this; }
    void press() override;

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
    void press() override {}

  protected:
    void announce() override;
    void paintEvent(QPaintEvent*) override {}
};

}  // namespace quillor
