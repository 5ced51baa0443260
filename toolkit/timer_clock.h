// Which timers of the shown screens are due. The time is the shell's own, in
// milliseconds since whenever; it never runs backwards.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

#include "toolkit/screen.h"

namespace quillor {

/// A timer counts from when it is first found enabled, and anew when its interval is
/// found changed. One that stays as it is keeps its rhythm.
class TimerClock {
  public:
    /// Looks at the timers of these screens, after each event, and forgets all others.
    void look(const std::vector<Screen*>& screens, std::int64_t now);

    /// When the next tick is due; nothing while no timer runs.
    std::optional<std::int64_t> nextDue() const;

    /// Has the timer that is due first ticked by `deliver(screen, timer)`, and returns
    /// whether there was one. A timer whose tick is still running, since it has opened a
    /// box, is passed over.
    template <typename Deliver>
    bool tick(std::int64_t now, Deliver&& deliver) {
        const std::optional<Due> due = takeDue(now);
        if (!due)
            return false;
        if (std::find(ticking_.begin(), ticking_.end(), due->timer) != ticking_.end())
            return true;
        ticking_.push_back(due->timer);
        deliver(*due->screen, *due->timer);
        std::erase(ticking_, due->timer);
        return true;
    }

  private:
    struct Running {
        Timer* timer;
        Screen* screen;
        int interval;
        std::int64_t due;
        std::uint64_t order;  // of starting, for timers due at one moment
    };
    struct Due {
        Screen* screen;
        Timer* timer;
    };
    std::vector<Running>::const_iterator first() const;
    std::optional<Due> takeDue(std::int64_t now);

    std::vector<Running> running_;
    std::vector<Running> before_;  // what ran before the latest look; kept for its room
    std::vector<const Timer*> ticking_;
    std::uint64_t started_ = 0;
};

}  // namespace quillor
