// Plays sounds on a thread of its own, so that no audio device, however it
// misbehaves, holds up the game for longer than the sound lasts.
#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <thread>

#include "sound/player.h"
#include "sound/wave_decoder.h"

namespace quillor {

/// Called from one thread only; each call may take as long as it likes.
class SoundDevice {
  public:
    virtual ~SoundDevice() = default;
    /// Ready for sounds of that rate and number of channels; quick when it
    /// already is. False when there is no such device now.
    virtual bool open(int rate, int channels) = 0;
    /// Returns when the sound has been heard; false when the device failed.
    virtual bool play(const WaveSound& sound) = 0;
    /// Lets the device go after a failure; the next sound opens it again.
    virtual void close() = 0;
    /// No sound for a while: lets the device go if that saves anything.
    virtual void rest() { close(); }
};

class ThreadedSoundPlayer final : public SoundPlayer {
  public:
    struct Limits {
        /// How long a sound may wait for a device to open ...
        std::chrono::milliseconds opening{400};
        /// ... and when there was none the last time.
        std::chrono::milliseconds reopening{20};
        /// How much longer than the sound itself its playing may take.
        std::chrono::milliseconds overtime{400};
        /// After so long without a sound the device is let go: an open one
        /// keeps the sound card, and on some systems the machine, awake.
        std::chrono::milliseconds rest{10000};
    };

    explicit ThreadedSoundPlayer(std::unique_ptr<SoundDevice> device)
        : ThreadedSoundPlayer(std::move(device), Limits{}) {}
    ThreadedSoundPlayer(std::unique_ptr<SoundDevice> device, Limits limits);
    /// Leaves a device that does not come back to itself.
    ~ThreadedSoundPlayer() override;

    /// A sound asked for while an earlier one hangs in its device is not played.
    using SoundPlayer::play;
    void play(std::span<const std::byte> image, const std::function<void()>& meanwhile) override;

  private:
    class Worker;

    std::shared_ptr<const WaveSound> decoded(std::span<const std::byte> image);

    Limits limits_;
    std::map<std::size_t, std::shared_ptr<const WaveSound>> decoded_;
    /// Shared with the thread, which may outlive the player.
    std::shared_ptr<Worker> worker_;
    std::thread thread_;
};

/// The device of this build, where it is played on a thread.
std::unique_ptr<SoundDevice> makeSoundDevice();

}  // namespace quillor
