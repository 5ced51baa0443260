// A timer that stays as it is keeps its rhythm from look to look.
#include "tests/support/virtual_time.h"

#include <algorithm>

namespace quillor::testing {

void VirtualTime::look(const std::vector<Screen*>& screens) {
    std::map<Timer*, Running> found;
    for (Screen* screen : screens) {
        for (Timer* timer : screen->timers()) {
            if (!timer->enabled)
                continue;
            const auto known = running_.find(timer);
            const bool goesOn =
                known != running_.end() && known->second.interval == timer->servedInterval();
            found[timer] = goesOn ? known->second
                                  : Running{screen, timer->servedInterval(),
                                            now_ + timer->servedInterval(), started_++};
        }
    }
    running_ = std::move(found);
}

VirtualTime::Due VirtualTime::next(std::int64_t until) {
    const auto first =
        std::min_element(running_.begin(), running_.end(), [](const auto& a, const auto& b) {
            return std::pair(a.second.due, a.second.order) <
                   std::pair(b.second.due, b.second.order);
        });
    if (first == running_.end() || first->second.due > until) {
        now_ = std::max(now_, until);
        return {};
    }
    Running& running = first->second;
    now_ = std::max(now_, running.due);
    running.due += running.interval;
    return {running.screen, first->first};
}

}  // namespace quillor::testing
