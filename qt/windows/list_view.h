// A list box as a native list.
#pragma once

#include <QKeyEvent>
#include <QListWidget>

#include "qt/windows/control_view.h"

namespace quillor {

class ListView : public QListWidget, public ControlView {
  public:
    ListView(ListBox& list, ScreenLink& link, QWidget* parent);

    QWidget& widget() override { return *this; }
    bool isBehindOthers() const override { return false; }
    bool mayStray() const override { return true; }

    /// A key that is left to the list: it moves the selection.
    void move(QKeyEvent& event);

  protected:
    void syncLook() override;
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void paintBox();
    void syncFont();
    void syncColors();
    void syncItems();
    void syncSelection();
    void keepSelectionInView();
    int selectedRow() const;
    void selectionMade();

    ListBox& list_;
    QFont shownFont_;
    double shownScale_ = 0;
    std::vector<Text> shownItems_;
    bool writing_ = false;  // it is the screen that changes the list
};

}  // namespace quillor
