// The player as a module of its own: it needs dozens of libraries, which make no start longer
// this way, and take nothing from whoever plays without sound.
#include <utility>

#include <dlfcn.h>

#include "sound/player.h"
#include "sound/player_module.h"

namespace quillor {

namespace {

/// Never lets the module go: a thread that waits for a device may still be in it.
std::unique_ptr<SoundPlayer> load(const std::filesystem::path& module) {
    void* library = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* maker = library ? dlsym(library, kPlayerMaker) : nullptr;
    return std::unique_ptr<SoundPlayer>(maker ? reinterpret_cast<PlayerMaker>(maker)() : nullptr);
}

class LoadedPlayer final : public SoundPlayer {
  public:
    explicit LoadedPlayer(std::filesystem::path module) : module_(std::move(module)) {}

    void play(std::span<const std::byte> image, const std::function<void()>& meanwhile) override {
        if (!std::exchange(tried_, true))
            player_ = load(module_);
        if (player_)
            player_->play(image, meanwhile);
    }

  private:
    const std::filesystem::path module_;
    bool tried_ = false;
    std::unique_ptr<SoundPlayer> player_;
};

}  // namespace

std::unique_ptr<SoundPlayer> makeSoundPlayer(const std::filesystem::path& modules) {
    return std::make_unique<LoadedPlayer>(modules / kPlayerModule);
}

}  // namespace quillor
