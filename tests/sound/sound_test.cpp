// The sound player: to the end of each sound, and never much longer.
#include <atomic>
#include <chrono>
#include <future>
#include <mutex>

#include <gtest/gtest.h>

#include "sound/player_thread.h"
#include "tests/sound/wave_bytes.h"

namespace quillor::testing {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// What a test does to a device, and what the device was asked for.
struct DeviceScript {
    std::mutex mutex;
    std::vector<std::string> calls;
    std::atomic<bool> present = true;
    std::atomic<bool> fails = false;
    std::shared_future<void> openingHangsUntil;
    std::shared_future<void> playingHangsUntil;

    void note(const std::string& call) {
        const std::lock_guard lock(mutex);
        calls.push_back(call);
    }
    std::vector<std::string> noted() {
        const std::lock_guard lock(mutex);
        return calls;
    }
};

class ScriptedDevice final : public SoundDevice {
  public:
    explicit ScriptedDevice(std::shared_ptr<DeviceScript> script) : script_(std::move(script)) {}

    bool open(int rate, int channels) override {
        script_->note("open " + std::to_string(rate) + " " + std::to_string(channels));
        if (script_->openingHangsUntil.valid())
            script_->openingHangsUntil.wait();
        return script_->present;
    }
    bool play(const WaveSound& sound) override {
        script_->note("play " + std::to_string(sound.samples.size()));
        if (script_->playingHangsUntil.valid())
            script_->playingHangsUntil.wait();
        return !script_->fails;
    }
    void close() override { script_->note("close"); }
    void rest() override { script_->note("rest"); }

  private:
    std::shared_ptr<DeviceScript> script_;
};

using Calls = std::vector<std::string>;

class SoundPlayerTest : public ::testing::Test {
  protected:
    /// Far more than a busy machine needs, far less than the limits that must not run out.
    static constexpr auto kSoon = 20s;

    /// None that a busy machine runs into.
    void SetUp() override { limit({1min, 1min, 1min, 1h}); }
    void TearDown() override { letGo_.set_value(); }

    Clock::duration play(const Image& image) {
        const auto start = Clock::now();
        player_->play(image);
        return Clock::now() - start;
    }
    /// Many sounds that are not waited for, which would take minutes otherwise.
    void expectNoWaiting() {
        const auto start = Clock::now();
        for (int i = 0; i < 1000; ++i)
            player_->play(image_);
        EXPECT_LT(Clock::now() - start, kSoon);
    }

    std::promise<void> letGo_;
    std::shared_future<void> never_ = letGo_.get_future().share();
    std::shared_ptr<DeviceScript> script_ = std::make_shared<DeviceScript>();
    std::unique_ptr<ThreadedSoundPlayer> player_;
    const Image image_ = makeWave({});  // 100 frames
    const Image other_ = makeWave({.channels = 1, .rate = 8000, .blockAlign = 2});

    void limit(ThreadedSoundPlayer::Limits limits) {
        player_ = std::make_unique<ThreadedSoundPlayer>(std::make_unique<ScriptedDevice>(script_),
                                                        limits);
    }
};

TEST_F(SoundPlayerTest, PlaysEachSoundInItsOwnFormatBeforeItReturns) {
    play(image_);
    EXPECT_EQ(script_->noted(), (Calls{"open 44100 2", "play 200"}));
    play(other_);
    EXPECT_EQ(script_->noted(), (Calls{"open 44100 2", "play 200", "open 8000 1", "play 200"}));
}

TEST_F(SoundPlayerTest, AnotherImageAtTheSamePlaceIsAnotherSound) {
    Image image = makeWave({.data = std::string(8, '\1')});
    play(image);
    image = makeWave({.data = std::string(4, '\1')});
    play(image);
    EXPECT_EQ(script_->noted(), (Calls{"open 44100 2", "play 4", "open 44100 2", "play 2"}));
}

TEST_F(SoundPlayerTest, NeverTroublesTheDeviceWithABrokenImage) {
    play({});
    play(makeWave({.rate = 0}));
    EXPECT_EQ(script_->noted(), Calls{});
}

TEST_F(SoundPlayerTest, WithoutADeviceItIsSilentAtOnce) {
    script_->present = false;
    for (int i = 0; i < 5; ++i)
        EXPECT_LT(play(image_), kSoon);
}

TEST_F(SoundPlayerTest, FindsADeviceThatIsPluggedInLater) {
    script_->present = false;
    play(image_);
    script_->present = true;
    const auto deadline = Clock::now() + 10s;
    while (script_->noted().back() != "play 200" && Clock::now() < deadline)
        play(image_);
    EXPECT_EQ(script_->noted().back(), "play 200");
}

TEST_F(SoundPlayerTest, ClosesADeviceThatFailsAndOpensItAgain) {
    script_->fails = true;
    play(image_);
    player_ = nullptr;
    EXPECT_EQ(script_->noted(), (Calls{"open 44100 2", "play 200", "close"}));
}

TEST_F(SoundPlayerTest, DoesNotWaitForADeviceThatHangsWhileItOpens) {
    limit({100ms, 100ms, 1min, 1h});
    script_->openingHangsUntil = never_;
    EXPECT_LT(play(image_), kSoon);
    expectNoWaiting();
    EXPECT_EQ(script_->noted(), Calls{"open 44100 2"});
}

TEST_F(SoundPlayerTest, WaitsNoLongerThanTheSoundForADeviceThatHangs) {
    limit({1min, 1min, 100ms, 1h});
    script_->playingHangsUntil = never_;
    EXPECT_LT(play(image_), kSoon);
    expectNoWaiting();
    EXPECT_EQ(script_->noted(), (Calls{"open 44100 2", "play 200"}));
}

TEST_F(SoundPlayerTest, EndsWhileTheDeviceHangs) {
    limit({1min, 1min, 100ms, 1h});
    script_->playingHangsUntil = never_;
    play(image_);
    const auto start = Clock::now();
    player_ = nullptr;
    EXPECT_LT(Clock::now() - start, kSoon);
}

TEST_F(SoundPlayerTest, PlaysAgainOnceADeviceThatHungComesBack) {
    limit({10s, 1min, 1ms, 1h});
    std::promise<void> back;
    script_->playingHangsUntil = back.get_future().share();
    EXPECT_LT(play(image_), kSoon);
    expectNoWaiting();
    EXPECT_EQ(script_->noted(), (Calls{"open 44100 2", "play 200"}));
    back.set_value();
    const auto deadline = Clock::now() + kSoon;
    while (script_->noted().size() < 4 && Clock::now() < deadline)
        play(image_);
    EXPECT_EQ(script_->noted(), (Calls{"open 44100 2", "play 200", "open 44100 2", "play 200"}));
}

TEST_F(SoundPlayerTest, LetsTheDeviceRestAfterAWhileWithoutSounds) {
    limit({1min, 1min, 1min, 1ms});
    play(image_);
    const auto deadline = Clock::now() + 10s;
    while (script_->noted().back() != "rest" && Clock::now() < deadline)
        std::this_thread::yield();
    EXPECT_EQ(script_->noted(), (Calls{"open 44100 2", "play 200", "rest"}));
}

}  // namespace
}  // namespace quillor::testing
