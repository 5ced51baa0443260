// The window that shows a screen, whichever it is.
#pragma once

#include <QColor>
#include <QMainWindow>
#include <optional>
#include <unordered_map>
#include <vector>

#include "qt/windows/control_view.h"
#include "qt/windows/key_router.h"
#include "qt/windows/screen_link.h"
#include "qt/windows/timer_set.h"
#include "qt/windows/twip_scale.h"
#include "qt/windows/window_place.h"

namespace quillor {

class ScreenWindow : public QMainWindow {
  public:
    ScreenWindow(Shell& shell, Screen& screen);
    ~ScreenWindow() override;

    /// Null once the screen is closed.
    const Screen* screen() const { return screen_; }
    const Screen* over() const { return screen_ ? screen_->over : nullptr; }
    /// The screen's size.
    QSizeF twips() const { return twips_; }
    const TwipScale& scale() const { return scale_; }

    /// Applies what has changed on the screen since the last call.
    void sync();
    /// One of the large screens, which take each other's place.
    bool isLarge() const;
    WindowPlace windowPlace() const;

    /// Shows the window: a large one in the place `before`, any other one in
    /// that scale; over the window `owner`, or in the middle when it is null.
    void present(const std::optional<WindowPlace>& before, ScreenWindow* owner);
    bool isPresented() const { return presented_; }
    void comeToFront();
    /// The screen is closing: nothing of it is touched any more.
    void detach();

    ControlView* focusedView() const;
    ControlView* view(const Control& control) const;
    const std::vector<ControlView*>& views() const { return views_; }
    /// Moves the focus to the next control in reading order. Always succeeds.
    bool focusNextPrevChild(bool next) override;

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    friend class Canvas;

    void makeViews();
    void layOut(QSize space);
    void syncWindow();
    void syncFocus();
    void giveFocus(const Control* control);
    void placeAnew(double pixelsPerTwip, const ScreenWindow* owner);

    Screen* screen_;
    const QSizeF twips_;
    ScreenLink link_;
    QWidget* canvas_;
    std::vector<ControlView*> views_;  // as the screen adds its controls
    std::unordered_map<const Control*, ControlView*> viewOf_;
    KeyRouter keys_;
    TimerSet timers_;
    TwipScale scale_;
    ImageRef marginImage_;              // the picture that goes on around the screen
    QColor marginColor_;                // invalid: the notebook page goes on
    const Control* focused_ = nullptr;  // kept while the screen is disabled
    bool presented_ = false;
};

}  // namespace quillor
