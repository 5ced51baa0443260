// Wave images of any bytes.
#include "sound/wave_decoder.h"
#include "sound/wave_image.h"
#include "tests/fuzz/bytes.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillor;
    const std::span<const std::byte> image = std::as_bytes(std::span(data, size));
    const auto read = readWaveImage(image);
    const WaveSound sound = decodeWave(image);
    testing::require(read || sound.samples.empty(), "what is no image is silent");
    testing::require(sound.samples.empty() || (sound.rate > 0 && sound.channels > 0),
                     "samples have a rate and channels");
    testing::require(sound.length() <= kLongestSound, "no sound holds up the game");
    return 0;
}
