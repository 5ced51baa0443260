// How a game ends: the answer typed at once, and the one step that closes every game.
#pragma once

#include "game/rules/round.h"

namespace quillor {

/// Judges a typed answer: right wins, anything else kills. Blank input is no
/// attempt, and nothing happens while no game is being played.
Happened judgeAnswer(GameSettings& settings, const Round& round, TextView typed);

/// Closes the game that was just Won, or in which the player just Died: sets its
/// state, counts it, uncovers the phrase, settles the score and moves a tour on.
/// Returns whether that completed the tour.
bool eFinalStep(GameSettings& settings, Round& round, Happened how);

}  // namespace quillor
