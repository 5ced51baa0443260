// What a player does to the phrase, by letters, by the hint or by the whole
// answer; and the one step that closes every game.
#pragma once

#include "game/rules/round.h"

namespace quillor {

/// Applies the guess of one key; small letters count as capitals. Nothing
/// happens while no game is being played.
Happened eEnterKey(GameSettings& settings, Round& round, char16_t key);

enum class Hint {
    PhraseTooShort,  // nothing has changed: fewer than three characters
    NoSingleLetter,  // nothing has changed: each character occurs more than once
    Given,           // one cell shows its character; the hint has its price
    Won,             // it was the last one to find, and costs nothing
};

/// Uncovers the first character that occurs once in the phrase, at the start of a game.
Hint eHelpLetter(GameSettings& settings, Round& round);

/// Judges a typed answer: right wins, anything else kills. Blank input is no
/// attempt, and nothing happens while no game is being played. `gbAnswerWritten`, which
/// pays half as much again, says of a right one whether less than half was found.
Happened judgeAnswer(GameSettings& settings, const Round& round, TextView typed);

/// Closes the game that was just Won, or in which the player just Died: sets its
/// state, counts it, uncovers the phrase, settles the score and moves a tour on.
/// Returns whether that completed the tour.
bool eFinalStep(GameSettings& settings, Round& round, Happened how);

}  // namespace quillor
