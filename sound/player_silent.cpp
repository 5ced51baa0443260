// The player of a build without an audio library: every sound is over at once.
#include "sound/player.h"

namespace quillor {

namespace {

class SilentPlayer : public SoundPlayer {
  public:
    void play(std::span<const std::byte>, const std::function<void()>&) override {}
};

}  // namespace

std::unique_ptr<SoundPlayer> makeSoundPlayer(const std::filesystem::path&) {
    return std::make_unique<SilentPlayer>();
}

}  // namespace quillor
