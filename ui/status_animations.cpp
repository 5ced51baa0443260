// Each tick takes one small step from what is on show.
#include "ui/status_animations.h"

#include <algorithm>

#include "core/texts.h"

namespace quillor {

namespace {

constexpr Twips kRiseEnd = 180;
constexpr Twips kRiseStep = 30;
constexpr int kSilentHold = 1000;  // ms
constexpr int kPulseStep = 100;    // ms
constexpr int kPulseHold = 300;    // ms
constexpr Color kPulseChange = rgb(5, 25, 25);

// One component of a pulsing colour, held between its two ends.
int stepped(int value, int change, int low, int high) {
    return std::clamp(value + change, std::min(low, high), std::max(low, high));
}

// A whole colour number gains or loses kPulseChange at each step; each
// component stops at its end, so that none runs over into its neighbour.
Color pulsed(Color color, bool rising, Color low, Color high) {
    const int sign = rising ? 1 : -1;
    return rgb(stepped(redOf(color), sign * redOf(kPulseChange), redOf(low), redOf(high)),
               stepped(greenOf(color), sign * greenOf(kPulseChange), greenOf(low), greenOf(high)),
               stepped(blueOf(color), sign * blueOf(kPulseChange), blueOf(low), blueOf(high)));
}

}  // namespace

StatusAnimations::StatusAnimations(GameSettings& settings, Animated animated)
    : settings_(settings), animated_(animated) {
    tmrState.id = "tmrState";
    tmrState.interval = 500;
    tmrState.enabled = true;
    tmrState.onTick = [this] { tmrState_Timer(); };
    tmrUp.id = "tmrUp";
    tmrUp.interval = 20;
    tmrUp.onTick = [this] { tmrUp_Timer(); };
    tmrBlood.id = "tmrBlood";
    tmrBlood.interval = kPulseStep;
    tmrBlood.enabled = true;
    tmrBlood.onTick = [this] { tmrBlood_Timer(); };
}

void StatusAnimations::tmrState_Timer() {
    if (settings_.giGameState != kPlaying)
        return;
    const auto& captions = texts::kPlaying;
    const auto current =
        std::find_if(captions.begin(), captions.end(), [this](const TextPair& pair) {
            return eLang(settings_, pair) == animated_.lblStatus.caption;
        });
    if (current == captions.end())
        return;
    const auto next = current + 1 == captions.end() ? captions.begin() : current + 1;
    animated_.lblStatus.caption = eLang(settings_, *next);
}

void StatusAnimations::startRise() {
    if (!settings_.gbUseSounds)
        tmrUp.interval = kSilentHold;
    tmrUp.enabled = true;
}

void StatusAnimations::stopRise() {
    animated_.lblBonus.visible = animated_.lblPoints.visible = false;
    tmrUp.enabled = false;
}

void StatusAnimations::tmrUp_Timer() {
    tmrUp.interval = 30;
    if (animated_.lblPoints.top <= kRiseEnd) {
        stopRise();
        animated_.tmrScore.enabled = true;
        return;
    }
    animated_.lblPoints.top -= kRiseStep;
    animated_.lblBonus.top = animated_.lblPoints.top;
    tmrUp.interval -= 4;
}

void StatusAnimations::tmrBlood_Timer() {
    Color& color = animated_.lblScore.textColor;
    if (settings_.giScore > kLowScore) {
        color = settings_.glWhite;
        tmrBlood.enabled = false;
        return;
    }
    if (color == (bloodRising_ ? settings_.glWhite : settings_.glRed)) {
        bloodRising_ = !bloodRising_;
        tmrBlood.interval = kPulseHold;
        return;
    }
    color = pulsed(color, bloodRising_, settings_.glRed, settings_.glWhite);
    tmrBlood.interval = kPulseStep;
}

}  // namespace quillor
