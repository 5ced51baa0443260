// How much time there is for a phrase, and what its last second does.
#pragma once

#include "game/rules/round.h"

namespace quillor {

/// Seconds allowed for a phrase of that length, blanks included; an empty one
/// counts as 1. Very short phrases get much time, long ones get time for their length.
int secondsAllowed(int letters, bool hiddenLetters);
/// Starts the count-down for a phrase of that length.
void ePutSomeTime(Round& round, int letters);
/// A second of the time of day is over. Dies with the last one allowed; nothing
/// happens without the clock or while no game is being played.
Happened passSecond(const GameSettings& settings, Round& round);

}  // namespace quillor
