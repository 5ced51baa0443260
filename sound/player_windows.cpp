// The sound player of Windows, whose own player takes a whole WAVE image,
// MPEG Layer 3 included, and blocks until its end.
#include <windows.h>
// After windows.h, which it builds on.
#include <chrono>
#include <future>

#include <mmsystem.h>

#include "sound/player.h"
#include "sound/wave_image.h"

namespace quillor {
namespace {

constexpr std::chrono::milliseconds kMeanwhile{15};

class WindowsSoundPlayer final : public SoundPlayer {
  public:
    void play(std::span<const std::byte> image, const std::function<void()>& meanwhile) override {
        // It would trust the sizes in a broken image, and beep where it finds none.
        if (!readWaveImage(image))
            return;
        const auto heard = std::async(std::launch::async, [image] {
            sndPlaySoundA(reinterpret_cast<LPCSTR>(image.data()), SND_MEMORY);
        });
        while (meanwhile && heard.wait_for(kMeanwhile) != std::future_status::ready)
            meanwhile();
    }
};

}  // namespace

std::unique_ptr<SoundPlayer> makeSoundPlayer(const std::filesystem::path&) {
    return std::make_unique<WindowsSoundPlayer>();
}

}  // namespace quillor
