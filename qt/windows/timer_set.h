// Runs a screen's timers.
#pragma once

#include <QTimer>
#include <memory>
#include <vector>

#include "qt/windows/screen_link.h"
#include "toolkit/screen.h"

namespace quillor {

class TimerSet {
  public:
    TimerSet(ScreenLink& link, const Screen& screen);

    /// Starts, stops and re-times what has changed.
    void sync();
    void stop();

  private:
    struct Served {
        Timer* timer;
        std::unique_ptr<QTimer> clock;
        bool inTick = false;
    };
    void tick(Served& served);

    ScreenLink& link_;
    std::vector<Served> served_;
};

}  // namespace quillor
