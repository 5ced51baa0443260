// A game as a value: what has been found, missed and used since its phrase was
// laid out. The record holds the rest: phrase, state, mistakes counted.
#pragma once

#include <bitset>
#include <cstdint>
#include <vector>

#include "core/game_settings.h"

namespace quillor {

/// What came of something that the player, the hint or the clock did.
enum class Happened {
    Nothing,
    Repeated,  // a key that had been found, or missed, before
    Found,     // letters were uncovered
    Mistake,
    Won,
    Died,
};

/// What has become of a cell of the board.
enum class CellState : std::uint8_t {
    Blank,   // nothing to find there
    Hidden,  // still to be found
    Found,   // by the player; shows "?" while letters are hidden
    Given,   // by the hint, which shows the character itself
    Missed,  // uncovered by a death
};

struct Cell {
    char16_t character = u' ';  // as it is shown at last, with its accent
    CellState state = CellState::Blank;
    bool startsWord = false;

    bool isLetter() const { return state != CellState::Blank; }
    bool isFound() const { return isLetter() && state != CellState::Hidden; }
};

/// The keys that can be guessed, in the order of the on-screen keyboard.
inline constexpr TextView kGuessKeys = u"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ1234567890";
/// Whether a sign is one of them; small letters count as capitals.
bool isGuessKey(char16_t sign);

/// The mistake that ends a game. Where something belongs to each, as a piece of the figure
/// and the tip of a box, the compiler asks for one more.
inline constexpr int kMostMistakes = 6;
/// From this many mistakes on, a player may not run from a game to another one
/// or to the main menu.
inline constexpr int kTooManyMistakes = 4;

struct Round {
    std::vector<Cell> cells;              // at most 42: characters past them have no cell
    Text folded;                          // the whole laid-out phrase, each character as its key
    bool hiddenLetters = false;           // as the option stood when the board was laid out
    Text mistakes;                        // the wrong keys in their order, at most kMostMistakes
    std::bitset<kGuessKeys.size()> used;  // keys that are not offered any more
    int secondsLeft = 0;                  // 0 without the clock

    /// Characters to find, characters found, and blanks, all of them on the board.
    int letters() const;
    int found() const;
    int blanks() const { return static_cast<int>(cells.size()) - letters(); }
};

/// While a game is being played: lays out a new board from `gsShownPhrase`, all
/// of it hidden. After its end: uncovers every letter; those that a death left
/// hidden are Missed.
void ePutMagicWord(const GameSettings& settings, Round& round);

/// Starts the phrase that is in the record, without the clock (`ePutSomeTime`).
void startRound(GameSettings& settings, Round& round);
/// Back to idle: no phrase, no mistakes, no time.
void clearRound(GameSettings& settings, Round& round);

/// A game has ended, and its phrase is still there to be seen.
bool isOver(const GameSettings& settings);

/// The phrase spelled as the board shows it, with its gaps.
Text spelled(const Round& round);
/// The answer as the board has it at last, with its accents, one blank between words.
Text answerOf(const Round& round);

}  // namespace quillor
