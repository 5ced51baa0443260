// Time that a test turns by hand, and the timers that it drives.
#pragma once

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "toolkit/screen.h"

namespace quillor::testing {

/// A timer starts counting when it is found enabled, and anew when its interval
/// is found changed: it is looked at between events, as a window does.
class VirtualTime {
  public:
    std::int64_t now() const { return now_; }  // ms since the test began

    /// Looks at the timers of these screens and forgets all others.
    void look(const std::vector<Screen*>& screens);

    /// Moves on to the next timer that is due no later than `until` and returns
    /// it with its screen; moves to `until` and returns nulls when there is none.
    struct Due {
        Screen* screen = nullptr;
        Timer* timer = nullptr;
    };
    Due next(std::int64_t until);

  private:
    struct Running {
        Screen* screen;
        int interval;
        std::int64_t due;
        std::uint64_t order;  // of starting, for timers due at one moment
    };
    std::map<Timer*, Running> running_;
    std::int64_t now_ = 0;
    std::uint64_t started_ = 0;
};

}  // namespace quillor::testing
