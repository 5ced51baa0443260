// Turns a WAVE image into samples that an audio device takes.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quillor {

/// 16-bit samples in the machine's byte order, the channels interleaved.
struct WaveSound {
    int rate = 0;      ///< frames a second
    int channels = 0;  ///< 1 or 2
    std::vector<std::int16_t> samples;

    std::chrono::microseconds length() const;
};

/// Longer sounds are not played: they would hold up the game.
inline constexpr std::chrono::seconds kLongestSound{30};

/// PCM as it is (8 bits widened to 16), MPEG Layer 3 decoded at its own rate.
/// No samples when the image is broken, holds nothing, or is too long.
WaveSound decodeWave(std::span<const std::byte> image);

}  // namespace quillor
