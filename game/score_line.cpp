#include "game/score_line.h"

#include "core/numbers.h"
#include "game/rules/scoring.h"

namespace quillor {

namespace {

constexpr Twips kRiseEnd = 180;
constexpr Twips kRiseStep = 30;
constexpr int kRiseTick = 30;      // ms, less what each step takes off
constexpr int kRiseQuicker = 4;    // ms
constexpr int kSilentHold = 1000;  // ms
constexpr int kPulseTick = 100;    // ms
constexpr int kPulseHold = 300;    // ms
constexpr Color kPulseStep = rgb(5, 25, 25);

}  // namespace

ScoreLine::ScoreLine(Program& program) : program_(program), settings_(program.settings) {
    tmrUp.id = "tmrUp";
    tmrUp.interval = 20;
    tmrUp.onTick = [this] { tmrUp_Timer(); };
    tmrScore.id = "tmrScore";
    tmrScore.interval = 1;
    tmrScore.onTick = [this] { tmrScore_Timer(); };
    tmrBlood.id = "tmrBlood";
    tmrBlood.interval = kPulseTick;
    tmrBlood.enabled = true;
    tmrBlood.onTick = [this] { tmrBlood_Timer(); };
}

void ScoreLine::eTranslate() {
    lblScore.toolTip = program_.lang(texts::kScoreTip);
    lblBonus.caption = program_.lang(texts::kBonus);
}

void ScoreLine::showOnOpening() {
    if (settings_.gbInfiniteScore)
        settings_.giScore = kFirstScore;
    else if (!settings_.gbClassicMode)
        settings_.giScore = settings_.giScoreKept;
    showScore();
    lblScore.visible = !settings_.gbClassicMode;
}

void ScoreLine::showScore() {
    if (!keepsScore(settings_))
        lblScore.caption = program_.lang(texts::kInfiniteScore);
    else if (settings_.giScore > 0)
        lblScore.caption = program_.lang(texts::kScore) + inDigits(settings_.giScore);
    else
        lblScore.caption = program_.lang(texts::kZeroScore);
    if (settings_.giScore <= kLowScore)
        tmrBlood.enabled = true;
}

void ScoreLine::showPoints() {
    const bool won = settings_.giGameState == kWon;
    const Text sign = won && settings_.giScoreStep >= 0 ? u"+" : u"";
    lblPoints.caption = sign + inDigits(settings_.giScoreStep);
    lblPoints.textColor = won ? settings_.glGreen - rgb(0, 50, 0) : settings_.glRed - rgb(50, 0, 0);
    lblBonus.textColor = lblPoints.textColor;
    lblPoints.top = lblBonus.top = kPointsTop;
    lblPoints.visible = !settings_.gbClassicMode;
    lblBonus.visible = settings_.gbAnswerWritten && !settings_.gbClassicMode;
    if (!settings_.gbUseSounds || isStill())
        tmrUp.interval = kSilentHold;
    enter(Phase::Rising);
}

bool ScoreLine::isStill() const {
    return program_.desktop.preferences().reducedMotion;
}

void ScoreLine::enter(Phase phase) {
    phase_ = phase;
    tmrUp.enabled = phase == Phase::Rising;
    tmrScore.enabled = phase == Phase::Counting;
    if (phase != Phase::Rising)
        lblBonus.visible = lblPoints.visible = false;
}

void ScoreLine::tmrUp_Timer() {
    if (lblPoints.top <= kRiseEnd || isStill()) {
        tmrUp.interval = kRiseTick;
        // Where no score is kept there is nothing to count.
        enter(keepsScore(settings_) ? Phase::Counting : Phase::Rest);
        return;
    }
    lblPoints.top -= kRiseStep;
    lblBonus.top = lblPoints.top;
    tmrUp.interval = kRiseTick - kRiseQuicker;
}

// Ends with the last point, not a tick later: whoever sees it may press play.
void ScoreLine::tmrScore_Timer() {
    if (isStill())
        settleScore(settings_);
    if (isStill() || countScore(settings_))
        enter(Phase::Rest);
    showScore();
}

void ScoreLine::settle() {
    if (phase_ == Phase::Rest)
        return;
    enter(Phase::Rest);
    settleScore(settings_);
    showScore();
}

void ScoreLine::keepScore() {
    if (keepsScore(settings_))
        settings_.giScoreKept = settings_.giScore;
}

// Between white and red; past an end, one tick waits and the direction turns.
void ScoreLine::tmrBlood_Timer() {
    Color& color = lblScore.textColor;
    if (settings_.giScore > kLowScore) {
        color = settings_.glWhite;
        tmrBlood.enabled = false;
        return;
    }
    if (isStill()) {
        color = settings_.glRed;
        return;
    }
    if (bloodRising_ ? color >= settings_.glWhite : color <= settings_.glRed) {
        bloodRising_ = !bloodRising_;
        tmrBlood.interval = kPulseHold;
        return;
    }
    color += bloodRising_ ? kPulseStep : -kPulseStep;
    tmrBlood.interval = kPulseTick;
}

}  // namespace quillor
