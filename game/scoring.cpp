// The formulas of the points, and the count from the old score to the new one.
#include "game/scoring.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "game/game_screen.h"

namespace quillor {

namespace {

constexpr double kDeathBase = 1000;
constexpr double kHardDeathBase = 3000;
constexpr int kLargestScore = 32767;
constexpr int kCountStep = 10;
constexpr int kCountSlowly = 50;  // points before the target, where single steps begin
constexpr Twips kPointsTop = 660;

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
    // Divided by the whole length, and only then less the blanks: with many
    // blanks the hint raises the reward.
    const int penalty = game.hintUsed ? toInteger(raw / game.length - game.blanks) : 0;
    const int timeBonus = game.secondsLeft / 2;
    const std::int16_t points = toInteger(timeBonus + std::floor(raw - penalty));
    return game.answerWritten ? toInteger(std::floor(points * 1.5)) : points;
}

Scoring::Scoring(frmGame& game) : game_(game) {
    tmrScore.id = "tmrScore";
    tmrScore.interval = 1;
    tmrScore.onTick = [this] { tmrScore_Timer(); };
}

GameResult Scoring::result() const {
    const GameSettings& settings = game_.settings;
    GameResult game;
    game.letters = game_.board.letters();
    game.found = settings.giLettersFound;
    game.blanks = game_.board.BlankCells;
    game.length = game_.board.cells();
    game.strikes = settings.giStrikes;
    game.secondsLeft = game_.countDown.secondsLeft();
    game.hard = settings.gbHardScore;
    game.hintUsed = settings.gbHintUsed;
    game.answerWritten = settings.gbAnswerWritten;
    return game;
}

void Scoring::eScoreUpDown() {
    GameSettings& settings = game_.settings;
    if (settings.giGameState == kDead) {
        settings.giScoreStep = deathPoints(result());
        showPoints(u"", settings.glRed - rgb(50, 0, 0));
    } else {
        settings.giScoreStep = victoryPoints(result());
        showPoints(settings.giScoreStep >= 0 ? u"+" : u"", settings.glGreen - rgb(0, 50, 0));
        lblBonus.textColor = lblPoints.textColor;
        lblBonus.visible = settings.gbAnswerWritten;
    }
    if (settings.gbClassicMode)
        lblPoints.visible = lblBonus.visible = false;
    settings.giScoreShown = static_cast<std::int16_t>(
        std::clamp(settings.giScore + settings.giScoreStep, 0, kLargestScore));
    game_.animations.startRise();
}

void Scoring::showPoints(TextView sign, Color color) {
    lblPoints.caption = Text(sign) + inDigits(game_.settings.giScoreStep);
    lblPoints.textColor = color;
    lblPoints.top = lblBonus.top = kPointsTop;
    lblPoints.visible = true;
}

bool Scoring::keepsNoScore() const {
    return game_.settings.gbInfiniteScore || game_.settings.gbClassicMode;
}

void Scoring::tmrScore_Timer() {
    count();
    showScore();
}

// Steps of 10 until the target is near, then of 1, so that the last points tick
// visibly.
void Scoring::count() {
    GameSettings& settings = game_.settings;
    const int score = settings.giScore;
    const int target = settings.giScoreShown;
    int next = score;
    if (settings.giGameState == kWon && score < target)
        next += score + kCountSlowly < target ? kCountStep : 1;
    else if (settings.giGameState == kDead && score > target)
        next -= score - kCountSlowly > target ? kCountStep : 1;
    settings.giScore = static_cast<std::int16_t>(next);
    // With the last point, not a tick later: whoever sees it may press play.
    if (next == target)
        tmrScore.enabled = false;
}

void Scoring::showScore() {
    GameSettings& settings = game_.settings;
    if (keepsNoScore()) {
        settings.giScore = kFirstScore;
        tmrScore.enabled = false;
        lblScore.caption = game_.program.lang(texts::kInfiniteScore);
    } else if (settings.giScore > 0) {
        lblScore.caption = game_.program.lang(texts::kScore) + inDigits(settings.giScore);
        if (settings.giScore <= StatusAnimations::kLowScore)
            game_.animations.tmrBlood.enabled = true;
    } else {
        lblScore.caption = game_.program.lang(texts::kZeroScore);
    }
}

void Scoring::settle() {
    if (!tmrScore.enabled && !game_.animations.tmrUp.enabled)
        return;
    game_.animations.stopRise();
    tmrScore.enabled = false;
    game_.settings.giScore = game_.settings.giScoreShown;
    showScore();
}

void Scoring::showOnOpening() {
    GameSettings& settings = game_.settings;
    if (settings.gbInfiniteScore)
        settings.giScore = kFirstScore;
    else if (!settings.gbClassicMode)
        settings.giScore = settings.giScoreKept;
    showScore();
    lblScore.visible = !settings.gbClassicMode;
}

void Scoring::keepScore() {
    if (!keepsNoScore())
        game_.settings.giScoreKept = game_.settings.giScore;
}

}  // namespace quillor
