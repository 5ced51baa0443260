// What a game is worth, and the score that counts to its new value.
#pragma once

#include <cstdint>

#include "game/rules/round.h"

namespace quillor {

/// What a game's worth depends on.
struct GameResult {
    int letters = 0;      // to find, blanks not counted
    int found = 0;        // of them, or of an earlier game's (`giLettersFound`)
    int blanks = 0;       // of the laid-out phrase
    int length = 0;       // of the laid-out phrase, blanks included
    int strikes = 0;      // 0..kMostMistakes
    int secondsLeft = 0;  // 0 without the clock
    bool hard = false;
    bool hintUsed = false;
    bool answerWritten = false;
};

/// Points won by a victory. Throws std::overflow_error beyond 16 bits.
std::int16_t victoryPoints(const GameResult& game);
/// Points lost by a death, 0 or less. Throws as above.
std::int16_t deathPoints(const GameResult& game);

/// Settles the score of the game that just ended: by what was found as `giLettersFound` has
/// it, which only a good guess or a hint writes. A game that ends without any is settled by
/// what was found in the one before, and the first game of a run by nothing. `giScoreStep`
/// is what the game was worth, `giScoreShown` (0..32767) where the score is to count.
/// Throws as above.
void eScoreUpDown(GameSettings& settings, const Round& round);

/// Classic games and those with infinite score leave the score alone.
bool keepsScore(const GameSettings& settings);
/// One step of `giScore` towards its new value. Returns whether it is there.
bool countScore(GameSettings& settings);
/// The score as it is after the count, at once.
void settleScore(GameSettings& settings);

}  // namespace quillor
