// What moves beside the board: the dots of the status line, the rising points,
// and the pulse of a low score.
#pragma once

#include "core/game_settings.h"
#include "toolkit/controls.h"

namespace quillor {

class StatusAnimations {
  public:
    struct Animated {
        Label& lblStatus;
        Label& lblPoints;
        Label& lblBonus;
        Label& lblScore;
        Timer& tmrScore;  // switched on when the points have risen
    };

    /// At this score and below it the score line pulses.
    static constexpr std::int16_t kLowScore = 500;

    StatusAnimations(GameSettings& settings, Animated animated);

    Timer tmrState;
    Timer tmrUp;
    Timer tmrBlood;

    /// Lets the points label rise. Without a sound to wait for, it stands a
    /// moment first, so that it can be read.
    void startRise();
    /// The points are not shown (any more) and nothing is rising.
    void stopRise();

  private:
    void tmrState_Timer();
    void tmrUp_Timer();
    void tmrBlood_Timer();

    GameSettings& settings_;
    Animated animated_;
    bool bloodRising_ = true;
};

}  // namespace quillor
