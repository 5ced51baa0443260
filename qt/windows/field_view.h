// A text field as a native line edit.
#pragma once

#include <QKeyEvent>
#include <QLineEdit>

#include "qt/windows/control_view.h"

namespace quillor {

class FieldView : public QLineEdit, public ControlView {
  public:
    FieldView(TextField& field, ScreenLink& link, QWidget* parent);

    QWidget& widget() override { return *this; }
    TextField& field() const { return field_; }
    bool takesTab() const override { return isUsable(); }

    /// A key that the screen has left to the field. Its characters pass the
    /// field's filter first.
    void type(QKeyEvent& event);

  protected:
    void syncLook() override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void syncFont();
    void syncColors();
    void syncText();
    void syncSelection();
    void report();  // what the player has done, to the screen
    QString filtered(const QString& text);

    TextField& field_;
    Font shownFont_;
    double shownScale_ = 0;
    Color shownTextColor_ = -1;
    Color shownBackColor_ = -1;
    bool writing_ = false;   // it is the screen that changes the field
    bool hasFocus_ = false;  // as the screen has been told
};

}  // namespace quillor
