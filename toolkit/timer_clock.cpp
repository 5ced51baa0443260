// A tick that comes late is not made up for.
#include "toolkit/timer_clock.h"

#include <utility>

namespace quillor {

void TimerClock::look(const std::vector<Screen*>& screens, std::int64_t now) {
    std::swap(running_, before_);
    running_.clear();
    for (Screen* screen : screens) {
        for (Timer* timer : screen->timers()) {
            if (!timer->enabled)
                continue;
            const int interval = timer->servedInterval();
            const auto known =
                std::find_if(before_.begin(), before_.end(), [&](const Running& running) {
                    return running.timer == timer && running.interval == interval;
                });
            running_.push_back(known != before_.end()
                                   ? *known
                                   : Running{timer, screen, interval, now + interval, started_++});
        }
    }
}

std::vector<TimerClock::Running>::const_iterator TimerClock::first() const {
    return std::min_element(running_.begin(), running_.end(),
                            [](const Running& a, const Running& b) {
                                return std::pair(a.due, a.order) < std::pair(b.due, b.order);
                            });
}

std::optional<std::int64_t> TimerClock::nextDue() const {
    const auto next = first();
    if (next == running_.end())
        return std::nullopt;
    return next->due;
}

std::optional<TimerClock::Due> TimerClock::takeDue(std::int64_t now) {
    const auto next = first();
    if (next == running_.end() || next->due > now)
        return std::nullopt;
    Running& running = running_[static_cast<std::size_t>(next - running_.cbegin())];
    running.due += running.interval;
    if (running.due <= now)
        running.due = now + running.interval;
    return Due{running.screen, running.timer};
}

}  // namespace quillor
