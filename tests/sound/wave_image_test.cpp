// The carried sounds are what they claim to be, and no bytes break the reader.
#include "sound/wave_image.h"

#include <algorithm>
#include <cstdlib>
#include <ostream>
#include <span>

#include <gtest/gtest.h>

#include "sound/wave_decoder.h"
#include "tests/sound/wave_bytes.h"

namespace quillor::testing {
namespace {

struct Carried {
    int id, formatTag, channels, rate, sampleBits;
    double seconds;
};

void PrintTo(const Carried& carried, std::ostream* out) {
    *out << carried.id;
}

class CarriedSound : public ::testing::TestWithParam<Carried> {};

TEST_P(CarriedSound, HasItsFormatAndLength) {
    const Carried& expected = GetParam();
    const Image image = carriedSound(expected.id);
    const auto wave = readWaveImage(image);
    ASSERT_TRUE(wave);
    EXPECT_EQ(wave->formatTag, expected.formatTag);
    EXPECT_EQ(wave->channels, expected.channels);
    EXPECT_EQ(wave->rate, expected.rate);
    EXPECT_EQ(wave->sampleBits, expected.sampleBits);
    const WaveSound sound = decodeWave(image);
    EXPECT_EQ(sound.rate, expected.rate);
    EXPECT_EQ(sound.channels, expected.channels);
    EXPECT_NEAR(static_cast<double>(sound.length().count()) / 1e6, expected.seconds, 0.05);
}

/// Neither silent nor clipped, and softly begun and ended.
TEST_P(CarriedSound, IsHeardWithoutClipsOrClicks) {
    const WaveSound sound = decodeWave(carriedSound(GetParam().id));
    const auto [lowest, highest] = std::ranges::minmax(sound.samples);
    EXPECT_GT(highest, 3000);
    EXPECT_LT(highest, 30000);
    EXPECT_GT(lowest, -30000);
    EXPECT_LT(std::abs(sound.samples.front()), 100);
    EXPECT_LT(std::abs(sound.samples.back()), 100);
}

INSTANTIATE_TEST_SUITE_P(
    Each, CarriedSound,
    ::testing::Values(Carried{101, 85, 2, 44100, 0, 1.33}, Carried{102, 85, 2, 44100, 0, 1.15},
                      Carried{103, 1, 2, 44100, 16, 0.90}, Carried{104, 1, 2, 44100, 16, 0.53},
                      Carried{105, 1, 2, 44100, 16, 1.62}, Carried{106, 85, 2, 44100, 0, 0.78},
                      Carried{107, 1, 1, 16000, 16, 0.90}),
    [](const auto& test) { return std::to_string(test.param.id); });

class MpegSound : public ::testing::TestWithParam<int> {};

TEST_P(MpegSound, ConsistsOfLayer3FramesOf160Kbits) {
    const Image image = carriedSound(GetParam());
    std::span<const std::byte> left = readWaveImage(image)->data;
    int frames = 0;
    for (; left.size() >= 4; ++frames) {
        // Sync, MPEG 1, Layer 3, no check sum; bit rate 10, 44100 Hz; two channels.
        EXPECT_EQ(left[0], std::byte{0xFF});
        EXPECT_EQ(left[1], std::byte{0xFB});
        EXPECT_EQ(left[2] & std::byte{0xFC}, std::byte{0xA0});
        EXPECT_NE(left[3] & std::byte{0xC0}, std::byte{0xC0});
        const auto padding = std::to_integer<std::size_t>(left[2] >> 1 & std::byte{1});
        left = left.subspan(std::min(522 + padding, left.size()));
    }
    EXPECT_TRUE(left.empty());
    EXPECT_EQ(decodeWave(image).samples.size(), static_cast<std::size_t>(frames * 1152 * 2));
}

INSTANTIATE_TEST_SUITE_P(Each, MpegSound, ::testing::Values(101, 102, 106),
                         ::testing::PrintToStringParamName());

TEST(WaveImage, PcmSamplesComeThroughUnchanged) {
    const auto sound =
        decodeWave(makeWave({.data = number(0x80007FFF, 4) + number(0x0102FFFE, 4)}));
    EXPECT_EQ(sound.samples, (std::vector<std::int16_t>{32767, -32768, -2, 258}));
}

TEST(WaveImage, EightBitSamplesAreWidened) {
    const auto sound = decodeWave(makeWave(
        {.channels = 1, .bits = 8, .blockAlign = 1, .data = std::string("\x00\x80\xFF", 3)}));
    EXPECT_EQ(sound.channels, 1);
    EXPECT_EQ(sound.samples, (std::vector<std::int16_t>{-32768, 0, 32512}));
}

TEST(WaveImage, OtherChunksAndTheirPaddingAreSkipped) {
    const std::string pcm = "fmt " + number(16, 4) + number(1, 2) + number(1, 2) + number(8000, 4) +
                            number(16000, 4) + number(2, 2) + number(16, 2);
    const std::string body = "WAVELIST" + number(3, 4) + std::string("abc\0", 4) + pcm + "data" +
                             number(2, 4) + number(7, 2) + "cue " + number(9, 4);
    const auto sound =
        decodeWave(toImage("RIFF" + number(static_cast<std::uint32_t>(body.size()), 4) + body));
    EXPECT_EQ(sound.samples, (std::vector<std::int16_t>{7}));
    EXPECT_EQ(sound.rate, 8000);
}

TEST(BrokenWaveImage, NoBytesAtAllAreSilence) {
    EXPECT_TRUE(decodeWave({}).samples.empty());
}

TEST(BrokenWaveImage, CutAnywhereItIsSilence) {
    for (const int id : {101, 104}) {
        const Image image = carriedSound(id);
        for (std::size_t size = 0; size < 400; ++size)
            EXPECT_TRUE(decodeWave(std::span(image).first(size)).samples.empty()) << size;
        EXPECT_TRUE(decodeWave(std::span(image).first(image.size() - 1)).samples.empty());
    }
}

TEST(BrokenWaveImage, WrongFieldsAreSilence) {
    const WaveFields broken[] = {
        {.channels = 0, .blockAlign = 0},
        {.channels = 3, .blockAlign = 6},
        {.channels = 65535},
        {.rate = 0},
        {.rate = 1},
        {.rate = 0xFFFFFFFF},
        {.bits = 0, .blockAlign = 0},
        {.bits = 24, .blockAlign = 6},
        {.blockAlign = 0},
        {.blockAlign = 3},
        {.tag = 0},
        {.tag = 2},
        {.tag = 0xFFFE},
        {.data = {}},
        {.data = std::string(401, '\1')},
        {.data = std::string(3, '\1')},
        {.riffBytesTooMany = 1},
        {.riffBytesTooMany = 0xFFFFFF00},
        {.dataBytesTooMany = 1},
        {.dataBytesTooMany = 0xFFFFFE00},
        {.formatBytes = 0},
        {.formatBytes = 15},
        {.formatBytes = 17},
        {.formatBytes = 0xFFFFFFFF},
    };
    EXPECT_FALSE(decodeWave(makeWave({})).samples.empty()) << "the fields not set are right";
    for (const WaveFields& fields : broken)
        EXPECT_TRUE(decodeWave(makeWave(fields)).samples.empty()) << &fields - broken;
}

TEST(BrokenWaveImage, ATailThatIsNoChunkDoesNotMatter) {
    Image image = makeWave({});
    image.resize(image.size() + 5);
    EXPECT_EQ(decodeWave(image).samples.size(), 200U);
}

TEST(BrokenWaveImage, LongerThanTheLimitIsSilence) {
    const auto seconds = [](std::size_t n) {
        return makeWave({.channels = 1,
                         .rate = 4000,
                         .bits = 8,
                         .blockAlign = 1,
                         .data = std::string(4000 * n, '\1')});
    };
    EXPECT_FALSE(decodeWave(seconds(30)).samples.empty());
    EXPECT_TRUE(decodeWave(seconds(31)).samples.empty());
}

TEST(BrokenWaveImage, GarbageInsteadOfMpegFramesIsSilence) {
    std::string noise;
    std::uint32_t state = 1;
    for (int i = 0; i < 40000; ++i)
        noise += static_cast<char>((state = state * 1664525 + 1013904223) >> 24);
    for (const std::string& data : {noise, std::string(5000, '\xFF'), std::string(5000, '\0'),
                                    std::string(1, '\xFF'), std::string("\xFF\xFB\xA0\0", 4)})
        EXPECT_TRUE(decodeWave(makeWave({.tag = 85, .bits = 0, .blockAlign = 1, .data = data}))
                        .samples.empty());
}

/// Whatever comes of it, it ends, and within the limit.
TEST(BrokenWaveImage, DamagedMpegFramesNeitherCrashNorHang) {
    const Image whole = carriedSound(106);
    std::uint32_t state = 7;
    for (int round = 0; round < 200; ++round) {
        Image image = whole;
        for (int i = 0; i < 20; ++i) {
            state = state * 1664525 + 1013904223;
            image[80 + (state >> 8) % (image.size() - 80)] ^=
                std::byte{static_cast<std::uint8_t>(state >> 24)};
        }
        EXPECT_LE(decodeWave(image).length(), kLongestSound);
    }
}

}  // namespace
}  // namespace quillor::testing
