// A timer looks at the wall clock five times a second and steps when it has.
#include "game/count_down.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

#include "core/text_codec.h"
#include "game/game_screen.h"

namespace quillor {

int secondsAllowed(int letters, bool hiddenLetters) {
    const int seconds = static_cast<int>(std::floor((360.0 / letters + 2.0 * letters) * 1.4));
    return hiddenLetters ? seconds * 3 : seconds;
}

CountDown::CountDown(frmGame& game) : game_(game) {
    tmrTime.id = "tmrTime";
    tmrTime.interval = 200;
    tmrTime.onTick = [this] { tmrTime_Timer(); };
}

void CountDown::ePutSomeTime(int letters) {
    const int seconds = secondsAllowed(letters, game_.menu.mHide.checked);
    ClockMinutes = seconds / 60;
    ClockSeconds = seconds % 60;
    show();
    lblTime.visible = true;
    // The first step comes with the next second, not with the first look at
    // the clock.
    lblClock.caption = timeOfDay();
    tmrTime.enabled = true;
}

void CountDown::reset() {
    stop();
    ClockMinutes = ClockSeconds = 0;
    lblTime.visible = false;
}

Text CountDown::timeOfDay() const {
    const TimeOfDay now = game_.program.desktop.timeOfDay();
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%02d:%02d:%02d", now.hour % 24, now.minute % 60,
                  now.second % 61);
    return fromUtf8(text.data());
}

// The time left follows the wall clock: however the timer is served, one step
// for each change of the time of day.
void CountDown::tmrTime_Timer() {
    Text now = timeOfDay();
    if (now == lblClock.caption)
        return;
    lblClock.caption = std::move(now);
    lblClock_Change();
}

void CountDown::lblClock_Change() {
    // The game may be over while its last message still stands.
    if (!tmrTime.enabled || game_.settings.giGameState != kPlaying)
        return;
    if (ClockSeconds > 0) {
        --ClockSeconds;
    } else if (ClockMinutes > 0) {
        ClockSeconds = 59;
        --ClockMinutes;
    }
    show();
    if (secondsLeft() == 0) {
        game_.settings.giGameState = kDead;
        game_.answer.eFinalStep();
    }
}

void CountDown::show() {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%d:%02d", ClockMinutes, ClockSeconds);
    lblTime.caption = fromUtf8(text.data());
}

}  // namespace quillor
