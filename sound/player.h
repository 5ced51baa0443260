// Playing sounds: the one thing that the shell asks of an audio library.
#pragma once

#include <cstddef>
#include <memory>
#include <span>

namespace quillor {

class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;

    /// Plays a whole WAVE image (RIFF header included; PCM or MPEG Layer 3
    /// inside) to its end. Returns at once when the image cannot be played or
    /// the machine has no audio device; never throws.
    virtual void play(std::span<const std::byte> waveImage) = 0;
};

/// The player of this build.
std::unique_ptr<SoundPlayer> makeSoundPlayer();

}  // namespace quillor
