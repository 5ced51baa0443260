#include "game/status.h"

#include <array>
#include <cstdio>
#include <utility>

#include "core/text_codec.h"

namespace quillor {

StatusLine::StatusLine(Program& program) : program_(program) {
    tmrState.id = "tmrState";
    tmrState.interval = 500;
    tmrState.enabled = true;
    tmrState.onTick = [this] { tmrState_Timer(); };
}

void StatusLine::show() {
    const auto state = static_cast<std::size_t>(program_.settings.giGameState);
    if (state != kPlaying)
        dots_ = 0;
    const std::array<TextPair, 4> captions{texts::kNewGame, texts::kPlaying.at(dots_), texts::kDead,
                                           texts::kVictory};
    lblStatus.caption = program_.lang(captions.at(state));
}

void StatusLine::tmrState_Timer() {
    if (program_.settings.giGameState != kPlaying || program_.desktop.preferences().reducedMotion)
        return;
    dots_ = (dots_ + 1) % texts::kPlaying.size();
    lblStatus.caption = program_.lang(texts::kPlaying.at(dots_));
}

PlayButton::PlayButton(Program& program, std::function<void()> mouseCame) : program_(program) {
    Label& play = lblPlay(0);
    const GameSettings& settings = program.settings;
    play.onMouseMove = [this, &settings, came = std::move(mouseCame)] {
        came();
        hovered_ = true;
        shpPlay.backColor = settings.glGreen;
    };
    play.onMouseDown = [this, &settings] { shpPlay.backColor = settings.glGreen - rgb(0, 30, 0); };
    play.onMouseUp = [this] { shpPlay.backColor = accent_; };
}

void PlayButton::eTranslate() {
    lblPlay(0).toolTip = program_.lang(texts::kPlayTip);
}

void PlayButton::show() {
    const bool idle = program_.settings.giGameState == kIdle;
    lblPlay(0).caption = program_.lang(idle ? texts::kPlay : texts::kPlayAnother);
}

void PlayButton::setAccent(Color color) {
    accent_ = color;
    shpPlay.backColor = color;
}

void PlayButton::leave() {
    if (hovered_)
        shpPlay.backColor = accent_;
    hovered_ = false;
}

ClockLine::ClockLine(Program& program, std::function<void()> onSecond)
    : program_(program), onSecond_(std::move(onSecond)) {
    tmrTime.id = "tmrTime";
    tmrTime.interval = 200;
    tmrTime.onTick = [this] { tmrTime_Timer(); };
}

// The first step comes with the next second, not with the first look at the clock.
void ClockLine::start(const Round& round) {
    lastSecond_ = program_.desktop.timeOfDay();
    lblTime.visible = true;
    tmrTime.enabled = true;
    show(round);
}

void ClockLine::show(const Round& round) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%d:%02d", round.secondsLeft / 60,
                  round.secondsLeft % 60);
    lblTime.caption = fromUtf8(text.data());
}

void ClockLine::stop() {
    lblTime.visible = false;
    tmrTime.enabled = false;
}

// The time left follows the wall clock, not the timer: one step whenever the time of day
// has changed since the last look, be it by a second, or by more after a pause or a jump.
void ClockLine::tmrTime_Timer() {
    const TimeOfDay now = program_.desktop.timeOfDay();
    if (now == lastSecond_)
        return;
    lastSecond_ = now;
    onSecond_();
}

}  // namespace quillor
