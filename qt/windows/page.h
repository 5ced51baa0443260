// One screen in a window, whichever it is: a widget for each control, the focus
// among them, keys and timers.
#pragma once

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <unordered_map>
#include <vector>

#include "qt/windows/control_view.h"
#include "qt/windows/shell.h"
#include "toolkit/timer_clock.h"

namespace quillor {

/// Runs a screen's timers.
class TimerSet {
  public:
    TimerSet(ScreenLink& link, Screen& screen);

    /// Starts, stops and re-times what has changed.
    void sync();
    void stop();

  private:
    void setAlarm();
    void tick();

    ScreenLink& link_;
    Screen& screen_;
    TimerClock clock_;
    QElapsedTimer time_;
    QTimer alarm_;  // for the tick that is due next
};

class PageWindow;

class Page : public QWidget {
  public:
    /// Stands hidden in `window` until that turns to it.
    Page(Shell& shell, Screen& screen, PageWindow& window);
    ~Page() override;

    /// Null once the screen is closed.
    const Screen* screen() const { return screen_; }
    PageWindow& pageWindow() const { return window_; }
    const TwipScale& scale() const { return scale_; }

    /// Applies what has changed on the screen since the last call.
    void sync(Shell::Cause cause);
    /// Stands the screen as it suits a room of that size.
    void fit(QSize room);
    /// It is on show from now on, and keys go to it, or no more.
    void enter();
    void leave();
    /// The player closes the window; the screen decides what becomes of it.
    void askToClose();
    /// The screen is closing: nothing of it is touched any more.
    void detach();

    /// The control whose widget has the focus; null: none.
    ControlView* focusedView() const;
    ControlView* view(const Control& control) const;
    /// The screen's controls that are told to a screen reader now, in their order.
    std::vector<ControlView*> told() const;
    /// Moves the focus to the next control in reading order, which the toolkit
    /// knows and not the chain of widgets: what takes Tab changes all the time.
    bool focusNextPrevChild(bool next) override;

    /// Keys, and the text of an input method that is not a field's. Any widget
    /// may have the focus; true: the event has been dealt with.
    bool eventFilter(QObject* object, QEvent* event) override;
    /// Another window takes the keys.
    void letKeysGo();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void makeViews();
    std::vector<ControlView*> toSync(Shell::Cause cause);
    void showChanged(const std::vector<ControlView*>& changed);
    void layOut();
    ControlView* fieldToComeTo();
    void giveFocus();
    void press(QKeyEvent& event);
    bool takeFiles(QDropEvent& event);

    Screen* screen_;
    PageWindow& window_;
    ScreenLink link_;
    std::vector<ControlView*> views_;  // as the screen adds its controls
    std::unordered_map<const Control*, ControlView*> viewOf_;
    TimerSet timers_;
    TwipScale scale_;
    const QWidget* given_ = nullptr;  // what the focus was given to last
    bool entered_ = false;
};

}  // namespace quillor
