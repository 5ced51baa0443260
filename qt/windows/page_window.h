// A window that shows pages, one at a time. There is one for the large screens,
// which follow each other in it; a screen that stands over another one gets a
// window of its own, a dialog.
#pragma once

#include <QMainWindow>

#include "qt/windows/page.h"

class QGridLayout;

namespace quillor {

class PageWindow : public QMainWindow {
  public:
    /// With an owner it is a dialog of it, and the owner deletes it.
    explicit PageWindow(PageWindow* owner = nullptr);

    bool isDialog() const { return parentWidget() != nullptr; }
    /// The page on show; null: none.
    Page* page() const { return page_; }
    /// Puts a page, made for this window, on show, and its screen's title on the
    /// window, which appears with its first page. Null takes it off the display.
    void turnTo(Page* page);

    /// What fills the window, in twips, when a screen of that size is shown: a
    /// dialog fits its screen, pages of one window have one scale.
    QSizeF sheet(QSizeF screen) const;

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void syncTitle();
    void open();
    QRect firstPlace() const;

    QGridLayout* room_;  // has one cell, which each visible page fills
    Page* page_ = nullptr;
    bool opened_ = false;
};

}  // namespace quillor
