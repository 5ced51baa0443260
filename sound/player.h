// Playing sounds: the one thing that the shell asks of an audio library.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>

namespace quillor {

class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;

    /// Plays a whole WAVE image (RIFF header included; PCM or MPEG Layer 3
    /// inside) to its end. Returns at once when the image cannot be played or
    /// the machine has no audio device; never throws. `meanwhile`, if there is one, is
    /// called every few milliseconds until then, by the caller's thread.
    virtual void play(std::span<const std::byte> waveImage,
                      const std::function<void()>& meanwhile) = 0;
    void play(std::span<const std::byte> waveImage) { play(waveImage, {}); }
};

/// The player of this build. Where it is a module, `modules` is the folder that it is loaded
/// from, with the first sound; if it is not there, every sound is over at once.
std::unique_ptr<SoundPlayer> makeSoundPlayer(const std::filesystem::path& modules);

}  // namespace quillor
