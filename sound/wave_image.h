// Reads the frame of a RIFF/WAVE image in memory: what it holds and where.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace quillor {

struct WaveImage {
    static constexpr int kPcm = 1;
    static constexpr int kMpegLayer3 = 85;

    int formatTag = 0;
    int channels = 0;    ///< 1 or 2
    int rate = 0;        ///< frames a second, 4000..192000
    int sampleBits = 0;  ///< 8 or 16 for PCM, 0 for MPEG Layer 3
    /// The samples or the MPEG frames; points into the image.
    std::span<const std::byte> data;
};

/// Nothing unless the image is whole: every chunk up to the data inside the
/// image, one of the two formats, and PCM data of whole frames. Bytes after the
/// data are not looked at.
std::optional<WaveImage> readWaveImage(std::span<const std::byte> image);

}  // namespace quillor
