// A tick that comes late is not made up for.
#include "toolkit/timer_clock.h"

#include <algorithm>
#include <utility>

namespace quillor {

void TimerClock::look(const std::vector<Screen*>& screens, std::int64_t now) {
    std::map<Timer*, Running> found;
    for (Screen* screen : screens) {
        for (Timer* timer : screen->timers()) {
            if (!timer->enabled)
                continue;
            const int interval = timer->servedInterval();
            const auto known = running_.find(timer);
            const bool goesOn = known != running_.end() && known->second.interval == interval;
            found[timer] =
                goesOn ? known->second : Running{screen, interval, now + interval, started_++};
        }
    }
    running_ = std::move(found);
}

std::map<Timer*, TimerClock::Running>::const_iterator TimerClock::first() const {
    return std::min_element(running_.begin(), running_.end(), [](const auto& a, const auto& b) {
        return std::pair(a.second.due, a.second.order) < std::pair(b.second.due, b.second.order);
    });
}

std::optional<std::int64_t> TimerClock::nextDue() const {
    const auto next = first();
    if (next == running_.end())
        return std::nullopt;
    return next->second.due;
}

std::optional<TimerClock::Due> TimerClock::takeDue(std::int64_t now) {
    const auto next = first();
    if (next == running_.end() || next->second.due > now)
        return std::nullopt;
    Running& running = running_.at(next->first);
    running.due += running.interval;
    if (running.due <= now)
        running.due = now + running.interval;
    return Due{running.screen, next->first};
}

}  // namespace quillor
