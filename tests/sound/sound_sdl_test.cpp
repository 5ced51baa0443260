// The real player, writing to a file, to a device that hears nothing, and to
// devices that are missing or do not move.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <span>

#include <gtest/gtest.h>

#include "sound/player_thread.h"
#include "tests/sound/wave_bytes.h"

namespace quillor::testing {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// Far more than anything here takes on a busy machine, far less than what hangs.
constexpr auto kSoon = 20s;

/// Waits for its device as long as a busy machine may need.
std::unique_ptr<SoundPlayer> patientPlayer() {
    return std::make_unique<ThreadedSoundPlayer>(
        makeSoundDevice(),
        ThreadedSoundPlayer::Limits{.opening = 1min, .reopening = 1min, .overtime = 1min});
}

Clock::duration play(SoundPlayer& player, const Image& image) {
    const auto start = Clock::now();
    player.play(image);
    return Clock::now() - start;
}

/// From the first frame that is no silence, for a search that does not stop at
/// every silent byte.
std::string audibleBytes(const Image& image) {
    const WaveSound sound = decodeWave(image);
    std::string bytes(reinterpret_cast<const char*>(sound.samples.data()),
                      sound.samples.size() * 2);
    return bytes.substr(bytes.find_first_not_of('\0'));
}

bool isSilent(std::string_view bytes) {
    return std::ranges::count(bytes, '\0') == std::ssize(bytes);
}

/// SDL's writer to a file; `delay` is what it takes for each buffer of 1024 frames.
class SoundFile : public ::testing::Test {
  protected:
    explicit SoundFile(const char* delay = "2") {
        file_ = std::filesystem::path(::testing::TempDir()) /
                (std::string("sound-") +
                 ::testing::UnitTest::GetInstance()->current_test_info()->name());
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", file_.c_str(), 1);
        setenv("SDL_DISKAUDIODELAY", delay, 1);
    }
    ~SoundFile() override { std::filesystem::remove(file_); }

    /// The file grows by silence for as long as there is a player.
    static void playAll(std::span<const int> ids) {
        const auto player = patientPlayer();
        for (const int id : ids)
            player->play(carriedSound(id));
    }

    std::filesystem::path file_;
};

TEST_F(SoundFile, HoldsEachSoundWholeAndInOrder) {
    const int ids[] = {102, 104, 106, 105, 104, 103};
    playAll(ids);
    const std::string written = fileBytes(file_);
    std::size_t end = 0;
    for (const int id : ids) {
        const std::string sound = audibleBytes(carriedSound(id));
        const std::size_t at = written.find(sound, end);
        ASSERT_NE(at, std::string::npos) << id;
        EXPECT_TRUE(isSilent(std::string_view(written).substr(end, at - end))) << "before " << id;
        end = at + sound.size();
    }
    EXPECT_TRUE(isSilent(std::string_view(written).substr(end)));
}

TEST_F(SoundFile, HoldsASoundOfAnotherFormatUnconverted) {
    playAll(std::array{104, 107});
    EXPECT_NE(fileBytes(file_).find(audibleBytes(carriedSound(107))), std::string::npos);
}

class StalledDevice : public SoundFile {
  protected:
    StalledDevice() : SoundFile("60000") { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    /// As the program would play; leaves 0 when nothing has waited for the device.
    [[noreturn]] static void playAndLeave() {
        std::unique_ptr<SoundPlayer> player =
            std::make_unique<ThreadedSoundPlayer>(makeSoundDevice());
        const Image image = carriedSound(104);
        bool held = play(*player, image) > kSoon;
        held |= play(*player, image) > kSoon;
        const auto start = Clock::now();
        player = nullptr;
        held |= Clock::now() - start > kSoon;
        std::_Exit(held ? 1 : 0);
    }
};

// In a process of its own: what hangs in the audio library would be in the next test's way.
TEST_F(StalledDevice, DoesNotHoldTheGame) {
    EXPECT_EXIT(playAndLeave(), ::testing::ExitedWithCode(0), "");
}

TEST(SilentDevice, ReturnsWhenTheSoundIsOver) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    const auto player = patientPlayer();
    const Image image = carriedSound(104);
    for (int i = 0; i < 2; ++i) {
        const auto taken = play(*player, image);
        EXPECT_GT(taken, decodeWave(image).length() - 30ms);
        EXPECT_LT(taken, kSoon);
    }
}

// Of four sounds not even one could be heard in that time, and no limit runs out.
TEST(MissingDevice, IsSilentAtOnce) {
    setenv("SDL_AUDIODRIVER", "there-is-no-such-driver", 1);
    const auto player = patientPlayer();
    const Image image = carriedSound(105);
    for (int i = 0; i < 4; ++i)
        EXPECT_LT(play(*player, image), decodeWave(image).length());
}

}  // namespace
}  // namespace quillor::testing
