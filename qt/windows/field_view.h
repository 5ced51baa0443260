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
    bool isBehindOthers() const override { return false; }
    bool mayStray() const override { return true; }

    /// A key that is left to the field: it moves the caret, deletes, or serves
    /// the clipboard.
    void edit(QKeyEvent& event);

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

    TextField& field_;
    QFont fitted() const;

    QFont shownFont_;
    int shownPadding_ = -1;
    Color shownTextColor_ = -1;
    Color shownBackColor_ = -1;
    Color shownEdge_ = -1;
    bool writing_ = false;  // it is the screen that changes the field
};

}  // namespace quillor
