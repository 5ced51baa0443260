#include "game/rules/scoring.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"

namespace quillor {

namespace {

constexpr double kDeathBase = 1000;
constexpr double kHardDeathBase = 3000;
constexpr int kLargestScore = 32767;
constexpr int kCountStep = 10;
constexpr int kCountSlowly = 50;  // points before the target, where single steps begin

GameResult resultOf(const GameSettings& settings, const Round& round) {
    GameResult game;
    game.letters = round.letters();
    game.found = settings.giLettersFound;
    game.blanks = round.blanks();
    game.length = static_cast<int>(round.cells.size());
    game.strikes = settings.giStrikes;
    game.secondsLeft = round.secondsLeft;
    game.hard = settings.gbHardScore;
    game.hintUsed = settings.gbHintUsed;
    game.answerWritten = settings.gbAnswerWritten;
    return game;
}

// Divided by the whole length, and only then less the blanks: with many blanks the hint
// raises the reward.
int hintPrice(const GameResult& game, double reward) {
    return game.hintUsed ? toInteger(reward / game.length - game.blanks) : 0;
}

}  // namespace

std::int16_t deathPoints(const GameResult& game) {
    const double base = game.hard ? kHardDeathBase : kDeathBase;
    // A phrase whose characters all lie past the board has no letter to share by.
    const double kept = game.letters > 0 ? base * game.found / game.letters : 0;
    // The letters found may be those of an earlier, longer phrase: a death is
    // never a gain, for the score would count towards it without end.
    return toInteger(std::floor(-(base - std::min(kept, base))));
}

std::int16_t victoryPoints(const GameResult& game) {
    // A long phrase is worth less than a short one, on purpose.
    const double raw = (900.0 - 20 * game.found) / ((game.hard ? 2 : 1) * (1 + game.strikes));
    const int timeBonus = game.secondsLeft / 2;
    const std::int16_t points = toInteger(timeBonus + std::floor(raw - hintPrice(game, raw)));
    return game.answerWritten ? toInteger(std::floor(points * 1.5)) : points;
}

void eScoreUpDown(GameSettings& settings, const Round& round) {
    const GameResult game = resultOf(settings, round);
    settings.giScoreStep = settings.giGameState == kDead ? deathPoints(game) : victoryPoints(game);
    settings.giScoreShown = static_cast<std::int16_t>(
        std::clamp(settings.giScore + settings.giScoreStep, 0, kLargestScore));
}

bool keepsScore(const GameSettings& settings) {
    return !settings.gbInfiniteScore && !settings.gbClassicMode;
}

// Steps of 10 until the target is near, then of 1, so that the last points tick
// visibly. A step never leads away from the target.
bool countScore(GameSettings& settings) {
    const int left = settings.giScoreShown - settings.giScore;
    const int step = std::abs(left) > kCountSlowly ? kCountStep : std::min(std::abs(left), 1);
    settings.giScore = static_cast<std::int16_t>(settings.giScore + (left < 0 ? -step : step));
    return settings.giScore == settings.giScoreShown;
}

void settleScore(GameSettings& settings) {
    settings.giScore = keepsScore(settings) ? settings.giScoreShown : kFirstScore;
}

}  // namespace quillor
