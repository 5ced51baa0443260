// A sound waits 20 ms, so that what it belongs to is on the display before it plays.
#include "ui/sounds.h"

#include <stdexcept>

#include "core/guard.h"
#include "toolkit/style.h"

namespace quillor {

namespace {
constexpr int kFirstSound = 101;
constexpr int kLastPlayed = 6;  // the seventh sound is carried but never asked for
}  // namespace

Sounds::Sounds(Program& program) : program_(program), settings_(program.settings) {
    tmrSound.id = "tmrSound";
    tmrSound.interval = 20;
    tmrSound.onTick = [this] { tmrSound_Timer(); };
    showPress(lblWave(0), lblWave(0).textColor, settings_.glGrey, settings_.glWhite);
}

void Sounds::load() {
    for (int i = 0; i < kSounds; ++i)
        images_.at(static_cast<std::size_t>(i)) = program_.desktop.sound(kFirstSound + i);
}

void Sounds::request(int soundToPlay) {
    name(soundToPlay);
    playNamed();
}

void Sounds::playNamed() {
    if (settings_.gbUseSounds)
        tmrSound.enabled = true;
}

void Sounds::ePlay_Sound(std::span<const std::byte> image) {
    if (image.empty())
        throw std::out_of_range("no sound image");
    program_.desktop.playWave(image);
}

void Sounds::tmrSound_Timer() {
    if (SoundToPlay_ >= 1 && SoundToPlay_ <= kLastPlayed)
        quietly("ePlay_Sound",
                [&] { ePlay_Sound(images_.at(static_cast<std::size_t>(SoundToPlay_ - 1))); });
    SoundToPlay_ = sound::kNone;
    tmrSound.enabled = false;
}

void Sounds::eTranslate() {
    lblWave(0).spokenName = program_.lang(texts::kSpokenSounds);
}

void Sounds::eActiveSound() {
    const bool on = settings_.gbUseSounds;
    lblWave(0).caption = on ? symbols::kLoudspeaker : symbols::kLoudspeakerOff;
    lblWave(0).toolTip = program_.lang(on ? texts::kSoundsOnTip : texts::kSoundsOffTip);
    lblWave(0).checked = on;
}

}  // namespace quillor
