// When timers tick, by a time that the test turns.
#include "toolkit/timer_clock.h"

#include <gtest/gtest.h>

#include "tests/support/plain_screen.h"

namespace quillor {
namespace {

class Timers : public ::testing::Test {
  protected:
    Timers() {
        for (Timer* timer : {&slow, &fast})
            screen.add(*timer);
        slow.onTick = [this] { ticks += 's'; };
        fast.onTick = [this] { ticks += 'f'; };
    }
    void look() { clock.look({&screen}, now); }
    /// Lets the time jump, and everything tick that is due then.
    void jump(std::int64_t milliseconds) {
        now += milliseconds;
        while (clock.tick(now, [this](Screen& shown, Timer& timer) {
            shown.tick(timer);
            look();
        }))
            ;
    }

    PlainScreen screen;
    Timer slow{"tmrSlow", 100, true, {}};
    Timer fast{"tmrFast", 30, true, {}};
    TimerClock clock;
    std::int64_t now = 1000;
    std::string ticks;
};

TEST_F(Timers, SayWhenTheNextTickIsDue) {
    EXPECT_FALSE(clock.nextDue().has_value());
    look();
    EXPECT_EQ(clock.nextDue(), 1030);
    fast.enabled = false;
    look();
    EXPECT_EQ(clock.nextDue(), 1100);
}

TEST_F(Timers, TickWhenTheyAreDueAndNotBefore) {
    look();
    jump(29);
    EXPECT_EQ(ticks, "");
    for (const int step : {1, 30, 30, 10})
        jump(step);
    EXPECT_EQ(ticks, "fffs");
}

TEST_F(Timers, CountAnewWhenStartedOrOfAnotherInterval) {
    fast.enabled = false;
    look();
    jump(90);
    slow.interval = 50;
    look();
    EXPECT_EQ(clock.nextDue(), now + 50);
    jump(20);
    look();
    EXPECT_EQ(clock.nextDue(), now + 30);
}

TEST_F(Timers, DoNotMakeUpForTicksThatCameLate) {
    slow.enabled = false;
    look();
    jump(100);
    EXPECT_EQ(ticks, "f");
    EXPECT_EQ(clock.nextDue(), now + 30);
}

TEST_F(Timers, DoNotTickWithinTheirOwnTick) {
    slow.enabled = false;
    fast.onTick = [&] {
        ticks += 'f';
        look();
        jump(50);
    };
    look();
    jump(30);
    EXPECT_EQ(ticks, "f");
    jump(30);
    EXPECT_EQ(ticks, "ff");
}

TEST_F(Timers, AreForgottenWithTheirScreen) {
    look();
    clock.look({}, now);
    EXPECT_FALSE(clock.nextDue().has_value());
}

}  // namespace
}  // namespace quillor
