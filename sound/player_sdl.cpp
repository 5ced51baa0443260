// The sound device where SDL knows the audio devices: Linux and macOS.
#define SDL_MAIN_HANDLED
#include <chrono>
#include <memory>
#include <string_view>

#include <SDL.h>
#include <dlfcn.h>

#include "sound/player_thread.h"

namespace quillor {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// Frames a buffer: 23 ms at 44100, well below what is felt as late.
constexpr int kBuffer = 1024;
/// How much longer than its length a sound may take before its device counts
/// as stalled; within what the player allows.
constexpr milliseconds kOvertime{250};

void sayNothing(const char*, int, const char*, int, const char*, ...) {}

/// The ALSA library complains on the standard error about each missing device.
/// SDL loads it at run time, and so it is asked for where SDL has left it.
void muteAlsa() {
    void* library = dlopen("libasound.so.2", RTLD_LAZY | RTLD_NOLOAD);
    if (!library)
        return;
    if (void* setter = dlsym(library, "snd_lib_error_set_handler"))
        reinterpret_cast<int (*)(decltype(&sayNothing))>(setter)(&sayNothing);
    dlclose(library);
}

/// The audio system is left together with the device, so that a device plugged
/// in later is found.
class SdlSoundDevice final : public SoundDevice {
  public:
    /// On the thread that used it, so that SDL gives back what it kept for it.
    ~SdlSoundDevice() override {
        SdlSoundDevice::close();
        SDL_Quit();
        SDL_TLSCleanup();
    }

    bool open(int rate, int channels) override;
    bool play(const WaveSound& sound) override;
    void close() override;
    void rest() override;

  private:
    bool start();
    /// How long a buffer is heard.
    milliseconds buffer() const { return milliseconds(kBuffer * 1000 / rate_ + 1); }
    bool stopped() const { return SDL_GetAudioDeviceStatus(device_) == SDL_AUDIO_STOPPED; }
    bool drained(Clock::time_point deadline) const;

    bool started_ = false;
    SDL_AudioDeviceID device_ = 0;
    int rate_ = 0;
    int channels_ = 0;
};

bool SdlSoundDevice::start() {
    SDL_SetMainReady();
    // The program's own answer to an interrupt stays as it is.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Quillor");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_ROLE, "game");
    started_ = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
    muteAlsa();
    return started_;
}

bool SdlSoundDevice::open(int rate, int channels) {
    if (device_ && rate == rate_ && channels == channels_ && !stopped())
        return true;
    close();
    if (!start())
        return false;
    SDL_AudioSpec spec{};
    spec.freq = rate;
    spec.format = AUDIO_S16SYS;
    spec.channels = static_cast<Uint8>(channels);
    spec.samples = kBuffer;
    // No changes allowed: SDL converts where the device itself needs another format.
    device_ = SDL_OpenAudioDevice(nullptr, 0, &spec, nullptr, 0);
    rate_ = rate;
    channels_ = channels;
    if (device_)
        SDL_PauseAudioDevice(device_, 0);
    return device_ != 0;
}

bool SdlSoundDevice::play(const WaveSound& sound) {
    const auto deadline = Clock::now() + sound.length() + kOvertime;
    const auto bytes = static_cast<Uint32>(sound.samples.size() * sizeof sound.samples[0]);
    if (SDL_QueueAudio(device_, sound.samples.data(), bytes) != 0 || !drained(deadline))
        return false;
    // What has left the queue is still in the device's two buffers.
    SDL_Delay(static_cast<Uint32>(2 * buffer().count()));
    return true;
}

/// False when the device has vanished or has stopped taking samples.
bool SdlSoundDevice::drained(Clock::time_point deadline) const {
    while (SDL_GetQueuedAudioSize(device_) > 0) {
        if (stopped() || Clock::now() > deadline)
            return false;
        SDL_Delay(2);
    }
    return true;
}

void SdlSoundDevice::close() {
    if (device_)
        SDL_CloseAudioDevice(device_);
    device_ = 0;
    if (started_)
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    started_ = false;
}

void SdlSoundDevice::rest() {
    // SDL's writer to a file begins the file anew at every opening.
    const char* driver = SDL_GetCurrentAudioDriver();
    if (driver && std::string_view(driver) != "disk")
        close();
}

}  // namespace

std::unique_ptr<SoundDevice> makeSoundDevice() {
    return std::make_unique<SdlSoundDevice>();
}

}  // namespace quillor
