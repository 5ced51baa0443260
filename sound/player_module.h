// What the program and its sound module know of each other.
#pragma once

#include "sound/player.h"

namespace quillor {

inline constexpr const char* kPlayerModule = "quillor-sound.so";
inline constexpr const char* kPlayerMaker = "quillorMakeSoundPlayer";

/// Returns a player that is the caller's; throws nothing, null: there is none.
using PlayerMaker = SoundPlayer* (*)();

}  // namespace quillor
