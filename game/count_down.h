// The time limit of a game played against the clock.
#pragma once

#include "core/types.h"
#include "toolkit/controls.h"

namespace quillor {

class frmGame;

/// Seconds allowed for a phrase of that length, 1 or more, blanks included. Very short
/// phrases get much time, long ones get time for their length.
int secondsAllowed(int letters, bool hiddenLetters);

class CountDown {
  public:
    explicit CountDown(frmGame& game);

    Label lblTime;
    Label lblClock;  // never shown: receives the time of day
    Timer tmrTime;

    void ePutSomeTime(int letters);
    void stop() { tmrTime.enabled = false; }
    /// Stops, and no time is left.
    void reset();
    int secondsLeft() const { return ClockSeconds + 60 * ClockMinutes; }

    int ClockMinutes = 0;
    int ClockSeconds = 0;

  private:
    Text timeOfDay() const;
    void tmrTime_Timer();
    void lblClock_Change();
    void show();

    frmGame& game_;
};

}  // namespace quillor
