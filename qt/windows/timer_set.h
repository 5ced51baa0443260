// Runs a screen's timers.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include "qt/windows/screen_link.h"
#include "toolkit/timer_clock.h"

namespace quillor {

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

}  // namespace quillor
