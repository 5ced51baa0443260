// A window that shows pages, one at a time. There is one for the large screens,
// which follow each other in it; a screen that stands over another one gets a
// window of its own, a dialog.
#pragma once

#include <QMainWindow>
#include <QTimer>

#include "qt/windows/page.h"
#include "qt/windows/window_memory.h"

class QGridLayout;

namespace quillor {

class PageWindow : public QMainWindow {
  public:
    /// Opens where `memory` has it from the last run, and tells it of each change; null: in
    /// the middle of the display.
    explicit PageWindow(const WindowMemory* memory = nullptr);
    /// A dialog of its owner, which deletes it.
    explicit PageWindow(PageWindow& owner);

    bool isDialog() const { return parentWidget() != nullptr; }
    /// The page on show; null: none.
    Page* page() const { return page_; }
    /// Puts a page, made for this window, on show, and its screen's title on the
    /// window, which appears with its first page. Null takes it off the display.
    void turnTo(Page* page);

    /// What fills the window, in twips, when a screen is shown: a dialog fits its screen,
    /// pages of one window have one scale.
    QSizeF sheet(const Screen& screen) const;

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    PageWindow(QWidget* parent, const WindowMemory* memory);
    void syncTitle();
    void open();
    QRect firstPlace() const;
    QRect dialogPlace() const;
    QSize smallestDialog() const;
    void restore(const WindowState& state);
    void noteChange();
    void keepState();

    QGridLayout* room_;  // has one cell, which each visible page fills
    Page* page_ = nullptr;
    bool opened_ = false;
    const WindowMemory* memory_ = nullptr;
    std::optional<WindowState> known_;  // as it was last kept, or as it opened
    QTimer settled_;                    // runs out when the window has not changed for a while
};

}  // namespace quillor
