// The designs of the player's letters, as the board and the settings screen show
// them.
#pragma once

#include "core/game_settings.h"
#include "toolkit/controls.h"

namespace quillor {

inline constexpr int kDesigns = 4;

/// Paints a letter and the line under it in one of the designs: 0 black ink,
/// 1 ink of the theme's colour, 2 white on black, 3 white on the theme's colour.
void paintLetter(Label& letter, Line& underline, int design, const GameSettings& settings);

}  // namespace quillor
