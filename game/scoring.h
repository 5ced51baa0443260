// The score of arcade games: settled once at the end of each, then counted up
// or down to its new value before the player's eyes.
#pragma once

#include <cstdint>

#include "core/types.h"
#include "toolkit/controls.h"

namespace quillor {

class frmGame;

/// What a game's worth depends on.
struct GameResult {
    int letters = 0;      // to find, blanks not counted
    int found = 0;        // of them
    int blanks = 0;       // of the laid-out phrase
    int length = 0;       // of the laid-out phrase, blanks included
    int strikes = 0;      // 0..6
    int secondsLeft = 0;  // 0 without the clock
    bool hard = false;
    bool hintUsed = false;
    bool answerWritten = false;
};

/// Points won by a victory. Throws std::overflow_error beyond 16 bits.
std::int16_t victoryPoints(const GameResult& game);
/// Points lost by a death, 0 or less. Throws as above.
std::int16_t deathPoints(const GameResult& game);

class Scoring {
  public:
    explicit Scoring(frmGame& game);

    Frame frmePoints;
    Frame frmeBonus;
    Label lblScore;
    Label lblPoints;
    Label lblBonus;
    Timer tmrScore;

    /// Settles the score of the game that just ended.
    void eScoreUpDown();
    /// Brings the score to its new value at once, when the player goes on while
    /// the points are still rising or counting.
    void settle();
    /// The score line as the screen opens.
    void showOnOpening();
    /// Keeps the score while the screen is closed.
    void keepScore();

  private:
    GameResult result() const;
    void showPoints(TextView sign, Color color);
    void tmrScore_Timer();
    void count();
    void showScore();
    bool keepsNoScore() const;

    frmGame& game_;
};

}  // namespace quillor
