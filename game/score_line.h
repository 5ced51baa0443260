// The score as it is shown: the line itself with the pulse of a low score, and
// the points of the last game, which rise before the score counts.
#pragma once

#include "app/program.h"

namespace quillor {

class ScoreLine {
  public:
    /// At this score and below it the score line pulses.
    static constexpr std::int16_t kLowScore = 500;

    /// Where the points stand in their frame before they rise, in twips.
    static constexpr Twips kPointsTop = 660;

    explicit ScoreLine(Program& program);

    Frame frmePoints;
    Frame frmeBonus;
    Label lblScore;
    Label lblPoints;
    Label lblBonus;
    Timer tmrUp;
    Timer tmrScore;
    Timer tmrBlood;

    void eTranslate();
    /// The score line as the screen opens.
    void showOnOpening();
    /// The points of the game that just ended, which begin to rise. Without a
    /// sound to wait for they stand a moment first, so that they can be read.
    void showPoints();
    /// Whether the score is counting to its new value.
    bool isCounting() const { return phase_ == Phase::Counting; }
    /// Brings the score to its new value at once, when the player goes on while
    /// the points are still rising or counting.
    void settle();
    /// Keeps the score while the screen is closed.
    void keepScore();

  private:
    enum class Phase { Rest, Rising, Counting };  // of the points, then of the score

    void enter(Phase phase);
    void showScore();
    bool isStill() const;  // nothing is to move
    void tmrUp_Timer();
    void tmrScore_Timer();
    void tmrBlood_Timer();

    Program& program_;
    GameSettings& settings_;
    Phase phase_ = Phase::Rest;
    bool bloodRising_ = true;
};

}  // namespace quillor
