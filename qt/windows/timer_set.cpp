// One alarm for all of them, set anew after every event.
#include "qt/windows/timer_set.h"

#include <algorithm>

namespace quillor {

TimerSet::TimerSet(ScreenLink& link, Screen& screen) : link_(link), screen_(screen) {
    time_.start();
    alarm_.setSingleShot(true);
    alarm_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&alarm_, &QTimer::timeout, [this] { tick(); });
}

void TimerSet::sync() {
    clock_.look({&screen_}, time_.elapsed());
    setAlarm();
}

void TimerSet::setAlarm() {
    const std::optional<std::int64_t> due = clock_.nextDue();
    if (due)
        alarm_.start(static_cast<int>(std::max<std::int64_t>(*due - time_.elapsed(), 0)));
    else
        alarm_.stop();
}

void TimerSet::stop() {
    clock_.look({}, time_.elapsed());
    alarm_.stop();
}

void TimerSet::tick() {
    clock_.tick(time_.elapsed(), [this](Screen&, Timer& timer) {
        link_.event([&](Screen& screen) { screen.tick(timer); });
    });
    setAlarm();
}

}  // namespace quillor
