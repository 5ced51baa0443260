// PCM is copied; MPEG Layer 3 goes through mpg123.
#include "sound/wave_decoder.h"

#include <array>
#include <memory>
#include <optional>

#include <mpg123.h>

#include "sound/wave_image.h"

namespace quillor {
namespace {

using Bytes = std::span<const std::byte>;
using Decoder = std::unique_ptr<mpg123_handle, decltype(&mpg123_delete)>;

std::vector<std::int16_t> pcmSamples(const WaveImage& wave) {
    std::vector<std::int16_t> samples;
    if (wave.sampleBits == 8) {
        for (const std::byte sample : wave.data)
            samples.push_back(
                static_cast<std::int16_t>((std::to_integer<int>(sample) - 128) * 256));
        return samples;
    }
    for (std::size_t i = 0; i + 1 < wave.data.size(); i += 2)
        samples.push_back(static_cast<std::int16_t>(std::to_integer<int>(wave.data[i]) |
                                                    std::to_integer<int>(wave.data[i + 1]) << 8));
    return samples;
}

/// A decoder that gives 16-bit samples at the stream's own rate; null when the
/// library cannot make one.
Decoder makeDecoder() {
    static const bool ready = mpg123_init() == MPG123_OK;
    Decoder decoder(ready ? mpg123_new(nullptr, nullptr) : nullptr, &mpg123_delete);
    if (!decoder)
        return decoder;
    mpg123_param(decoder.get(), MPG123_ADD_FLAGS, MPG123_QUIET, 0);
    mpg123_format_none(decoder.get());
    const long* rates = nullptr;
    std::size_t count = 0;
    mpg123_rates(&rates, &count);
    for (const long rate : std::span(rates, count))
        mpg123_format(decoder.get(), rate, MPG123_MONO | MPG123_STEREO, MPG123_ENC_SIGNED_16);
    if (mpg123_open_feed(decoder.get()) != MPG123_OK)
        decoder.reset();
    return decoder;
}

bool tooLong(std::size_t samples, const WaveSound& sound) {
    return samples > static_cast<std::size_t>(kLongestSound.count()) *
                         static_cast<std::size_t>(sound.rate * sound.channels);
}

/// Reads on until the frames are used up or stop making sense; a stream that
/// changes its format ends there.
void readFrames(mpg123_handle* decoder, WaveSound& sound) {
    std::array<std::int16_t, 4096> block;
    bool formatKnown = false;
    for (;;) {
        std::size_t bytes = 0;
        const int result = mpg123_read(decoder, block.data(), sizeof block, &bytes);
        sound.samples.insert(sound.samples.end(), block.begin(),
                             block.begin() + static_cast<std::ptrdiff_t>(bytes / sizeof block[0]));
        if (result != MPG123_OK && (result != MPG123_NEW_FORMAT || formatKnown))
            return;
        if (result == MPG123_NEW_FORMAT) {
            long rate = 0;
            int encoding = 0;
            mpg123_getformat(decoder, &rate, &sound.channels, &encoding);
            sound.rate = static_cast<int>(rate);
            formatKnown = true;
        }
        if (tooLong(sound.samples.size(), sound))
            return;
    }
}

WaveSound decodeLayer3(const WaveImage& wave) {
    WaveSound sound;
    const Decoder decoder = makeDecoder();
    if (!decoder ||
        mpg123_feed(decoder.get(), reinterpret_cast<const unsigned char*>(wave.data.data()),
                    wave.data.size()) != MPG123_OK)
        return sound;
    readFrames(decoder.get(), sound);
    return sound;
}

}  // namespace

std::chrono::microseconds WaveSound::length() const {
    if (samples.empty())
        return {};
    const auto frames = static_cast<std::int64_t>(samples.size()) / channels;
    return std::chrono::microseconds(frames * 1'000'000 / rate);
}

WaveSound decodeWave(Bytes image) {
    const std::optional<WaveImage> wave = readWaveImage(image);
    if (!wave)
        return {};
    WaveSound sound = wave->formatTag == WaveImage::kPcm
                          ? WaveSound{wave->rate, wave->channels, pcmSamples(*wave)}
                          : decodeLayer3(*wave);
    return tooLong(sound.samples.size(), sound) ? WaveSound{} : sound;
}

}  // namespace quillor
