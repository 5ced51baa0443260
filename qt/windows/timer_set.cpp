// A QTimer for each timer, set anew after every event.
#include "qt/windows/timer_set.h"

namespace quillor {

TimerSet::TimerSet(ScreenLink& link, const Screen& screen) : link_(link) {
    for (Timer* timer : screen.timers()) {
        auto clock = std::make_unique<QTimer>();
        clock->setTimerType(Qt::PreciseTimer);
        served_.push_back({timer, std::move(clock)});
    }
    // Only now do the entries stay where they are.
    for (Served& served : served_)
        QObject::connect(served.clock.get(), &QTimer::timeout, [this, &served] { tick(served); });
}

void TimerSet::sync() {
    for (Served& served : served_) {
        QTimer& clock = *served.clock;
        if (!served.timer->enabled) {
            clock.stop();
            continue;
        }
        const int interval = served.timer->servedInterval();
        if (!clock.isActive() || clock.interval() != interval)
            clock.start(interval);
    }
}

void TimerSet::stop() {
    for (Served& served : served_)
        served.clock->stop();
}

// A tick that has opened a box is not run again while the box is open.
void TimerSet::tick(Served& served) {
    if (served.inTick)
        return;
    served.inTick = true;
    link_.event([&](Screen& screen) { screen.tick(*served.timer); });
    served.inTick = false;
}

}  // namespace quillor
