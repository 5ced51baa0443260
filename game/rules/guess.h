// A guessed key: letters uncovered, or a mistake; and the hint, which guesses
// for the player.
#pragma once

#include "game/rules/round.h"

namespace quillor {

/// Applies the guess of one key; small letters count as capitals. Nothing
/// happens while no game is being played.
Happened eEnterKey(GameSettings& settings, Round& round, char16_t key);

/// Records a mistake; the sixth is a death, one that was made before is Repeated.
Happened ePutStrikes(GameSettings& settings, Round& round, char16_t key);

enum class Hint { PhraseTooShort, NoSingleLetter, Given, Won };

/// Uncovers the first character that occurs once in the phrase.
Hint eHelpLetter(GameSettings& settings, Round& round);

}  // namespace quillor
