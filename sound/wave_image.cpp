// No length in an image is believed before it is checked.
#include "sound/wave_image.h"

#include <algorithm>
#include <string_view>

namespace quillor {
namespace {

using Bytes = std::span<const std::byte>;

std::uint32_t number(Bytes bytes, std::size_t at, int width) {
    std::uint32_t value = 0;
    for (int i = width - 1; i >= 0; --i)
        value =
            value << 8 | std::to_integer<std::uint32_t>(bytes[at + static_cast<std::size_t>(i)]);
    return value;
}

bool hasName(Bytes bytes, std::string_view name) {
    return bytes.size() >= name.size() &&
           std::string_view(reinterpret_cast<const char*>(bytes.data()), name.size()) == name;
}

constexpr std::size_t kChunkHeader = 8;

/// What the RIFF chunk holds after the word WAVE; empty when it is no whole one.
Bytes waveChunks(Bytes image) {
    constexpr std::size_t kStart = kChunkHeader + 4;
    if (image.size() < kStart || !hasName(image, "RIFF") ||
        !hasName(image.subspan(kChunkHeader), "WAVE"))
        return {};
    const std::size_t size = number(image, 4, 4);
    if (size < 4 || size > image.size() - kChunkHeader)
        return {};
    return image.subspan(kStart, size - 4);
}

/// The body of the first chunk of that name; nothing when a chunk on the way
/// to it, or itself, reaches beyond the end.
std::optional<Bytes> chunk(Bytes chunks, std::string_view name) {
    while (chunks.size() >= kChunkHeader) {
        const std::size_t size = number(chunks, 4, 4);
        if (size > chunks.size() - kChunkHeader)
            return std::nullopt;
        if (hasName(chunks, name))
            return chunks.subspan(kChunkHeader, size);
        const std::size_t padded = kChunkHeader + size + size % 2;
        chunks = chunks.subspan(std::min(padded, chunks.size()));
    }
    return std::nullopt;
}

bool playableRate(int rate, int channels) {
    return rate >= 4000 && rate <= 192000 && (channels == 1 || channels == 2);
}

bool playableData(const WaveImage& wave, std::size_t frameBytes) {
    if (wave.data.empty())
        return false;
    if (wave.formatTag == WaveImage::kMpegLayer3)
        return true;
    const auto expected = static_cast<std::size_t>(wave.channels * wave.sampleBits / 8);
    return wave.formatTag == WaveImage::kPcm && (wave.sampleBits == 8 || wave.sampleBits == 16) &&
           frameBytes == expected && wave.data.size() % frameBytes == 0;
}

}  // namespace

std::optional<WaveImage> readWaveImage(Bytes image) {
    const Bytes chunks = waveChunks(image);
    const auto format = chunk(chunks, "fmt ");
    const auto data = chunk(chunks, "data");
    if (!format || !data || format->size() < 16)
        return std::nullopt;
    WaveImage wave;
    wave.formatTag = static_cast<int>(number(*format, 0, 2));
    wave.channels = static_cast<int>(number(*format, 2, 2));
    // A rate beyond 31 bits is refused as well: it turns negative.
    wave.rate = static_cast<int>(number(*format, 4, 4));
    wave.sampleBits = static_cast<int>(number(*format, 14, 2));
    wave.data = *data;
    if (!playableRate(wave.rate, wave.channels) || !playableData(wave, number(*format, 12, 2)))
        return std::nullopt;
    return wave;
}

}  // namespace quillor
