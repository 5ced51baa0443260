// The module that the program plays its sounds by.
#include <chrono>
#include <cstdlib>

#include <gtest/gtest.h>

#include "sound/player.h"
#include "sound/wave_decoder.h"
#include "tests/sound/wave_bytes.h"

namespace quillor::testing {
namespace {

using namespace std::chrono_literals;

TEST(SoundModule, IsLoadedAndPlays) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    const auto player = makeSoundPlayer(QUILLOR_MODULES);
    const Image image = carriedSound(104);
    const auto start = std::chrono::steady_clock::now();
    player->play(image);
    EXPECT_GT(std::chrono::steady_clock::now() - start, decodeWave(image).length() - 30ms);
}

TEST(SoundModule, ThatIsNotThereHoldsNobodyUp) {
    const auto player = makeSoundPlayer("/no/such/folder");
    bool waited = false;
    player->play(carriedSound(104), [&] { waited = true; });
    EXPECT_FALSE(waited);
}

}  // namespace
}  // namespace quillor::testing
