// One worker thread, for which the caller waits, but only so long.
#include "sound/player_thread.h"

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <string_view>
#include <utility>

namespace quillor {

/// What the player and its thread share.
class ThreadedSoundPlayer::Worker {
  public:
    Worker(std::unique_ptr<SoundDevice> device, Limits limits)
        : device_(std::move(device)), limits_(limits) {}

    /// On the caller's thread.
    void play(std::shared_ptr<const WaveSound> sound, const std::function<void()>& meanwhile);
    /// On the caller's thread: true when the thread is about to return.
    bool end();
    /// The whole life of the thread.
    void run();

  private:
    enum class Stage { Idle, Opening, Playing, Closing, Ended };
    using Lock = std::unique_lock<std::mutex>;

    void serve(Lock& lock);
    /// Until that stage is left; false when it has not been for so long.
    bool waitFor(Lock& lock, std::chrono::steady_clock::duration most, Stage stage,
                 const std::function<void()>& meanwhile);
    void close(Lock& lock);
    void enter(Stage stage);

    std::unique_ptr<SoundDevice> device_;
    const Limits limits_;
    std::mutex mutex_;
    std::condition_variable changed_;
    Stage stage_ = Stage::Idle;
    /// The sound asked for; null again when the caller has given up on it.
    std::shared_ptr<const WaveSound> sound_;
    bool wasSilent_ = false;
    bool ending_ = false;
};

void ThreadedSoundPlayer::Worker::play(std::shared_ptr<const WaveSound> sound,
                                       const std::function<void()>& meanwhile) {
    Lock lock(mutex_);
    if (stage_ != Stage::Idle)
        return;
    const auto overtime = sound->length() + limits_.overtime;
    sound_ = std::move(sound);
    enter(Stage::Opening);
    const auto opening = wasSilent_ ? limits_.reopening : limits_.opening;
    if (waitFor(lock, opening, Stage::Opening, meanwhile))
        waitFor(lock, overtime, Stage::Playing, meanwhile);
    sound_ = nullptr;
}

bool ThreadedSoundPlayer::Worker::waitFor(Lock& lock, std::chrono::steady_clock::duration most,
                                          Stage stage, const std::function<void()>& meanwhile) {
    constexpr std::chrono::milliseconds kMeanwhile{15};
    const auto end = std::chrono::steady_clock::now() + most;
    const auto over = [this, stage] { return stage_ != stage; };
    while (meanwhile && std::chrono::steady_clock::now() + kMeanwhile < end) {
        if (changed_.wait_for(lock, kMeanwhile, over))
            return true;
        lock.unlock();
        meanwhile();
        lock.lock();
    }
    return changed_.wait_until(lock, end, over);
}

bool ThreadedSoundPlayer::Worker::end() {
    Lock lock(mutex_);
    ending_ = true;
    changed_.notify_all();
    return changed_.wait_for(lock, limits_.overtime, [this] { return stage_ == Stage::Ended; });
}

void ThreadedSoundPlayer::Worker::run() {
    Lock lock(mutex_);
    const auto wanted = [this] { return ending_ || stage_ == Stage::Opening; };
    while (!ending_) {
        if (!changed_.wait_for(lock, limits_.rest, wanted)) {
            lock.unlock();
            device_->rest();
            lock.lock();
            changed_.wait(lock, wanted);
        }
        if (stage_ == Stage::Opening)
            serve(lock);
    }
    lock.unlock();
    device_.reset();
    lock.lock();
    enter(Stage::Ended);
}

void ThreadedSoundPlayer::Worker::serve(Lock& lock) {
    const auto sound = sound_;
    if (!sound) {
        enter(Stage::Idle);
        return;
    }
    lock.unlock();
    bool well = device_->open(sound->rate, sound->channels);
    lock.lock();
    wasSilent_ = !well;
    // When nobody waits for it any more it would be heard out of place.
    if (well && sound_) {
        enter(Stage::Playing);
        lock.unlock();
        well = device_->play(*sound);
        lock.lock();
    }
    if (!well)
        close(lock);
    enter(Stage::Idle);
}

/// The caller goes on meanwhile: leaving an audio system takes its time.
void ThreadedSoundPlayer::Worker::close(Lock& lock) {
    enter(Stage::Closing);
    lock.unlock();
    device_->close();
    lock.lock();
}

void ThreadedSoundPlayer::Worker::enter(Stage stage) {
    stage_ = stage;
    changed_.notify_all();
}

ThreadedSoundPlayer::ThreadedSoundPlayer(std::unique_ptr<SoundDevice> device, Limits limits)
    : limits_(limits), worker_(std::make_shared<Worker>(std::move(device), limits)) {}

ThreadedSoundPlayer::~ThreadedSoundPlayer() {
    if (!thread_.joinable())
        return;
    if (worker_->end())
        thread_.join();
    else
        thread_.detach();
}

void ThreadedSoundPlayer::play(std::span<const std::byte> image,
                               const std::function<void()>& meanwhile) {
    try {
        const auto sound = decoded(image);
        if (sound->samples.empty())
            return;
        if (!thread_.joinable())
            thread_ = std::thread([worker = worker_] { worker->run(); });
        worker_->play(sound, meanwhile);
    } catch (const std::exception&) {
        // No memory or no thread to be had: silence.
    }
}

/// Each image is decoded once; known again by its bytes, for its place in
/// memory may come to hold another one.
std::shared_ptr<const WaveSound> ThreadedSoundPlayer::decoded(std::span<const std::byte> image) {
    const std::string_view bytes(reinterpret_cast<const char*>(image.data()), image.size());
    auto& sound = decoded_[std::hash<std::string_view>{}(bytes)];
    if (!sound)
        sound = std::make_shared<const WaveSound>(decodeWave(image));
    return sound;
}

}  // namespace quillor
