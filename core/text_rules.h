// The alphabets that decide what may be typed, folding of accents, and the
// wrapping of a phrase into the rows of the board.
#pragma once

#include "core/game_settings.h"
#include "core/types.h"

namespace quillor {

inline constexpr int kRowCells = 14;
inline constexpr int kBoardRows = 3;
inline constexpr int kBoardCells = kRowCells * kBoardRows;

/// The whole text in capitals; accents are kept. Own tables for Latin, Greek
/// and Cyrillic letters, never the C locale. Keeps the length.
Text upperCase(TextView text);
Text lowerCase(TextView text);
char16_t upperCase(char16_t character);
char16_t lowerCase(char16_t character);

/// Without the blanks (U+0020 only) at both ends.
Text trimmed(TextView text);

/// In one line: a line break within the text becomes one blank, those at its ends go.
Text oneLine(TextView text);

/// Whether it shows nothing and changes what follows: it ends the line, turns its direction,
/// or controls a terminal.
bool isHiddenSign(char16_t sign);

/// A text of somebody else's for a place in one of ours: without signs that would end the
/// line or turn its direction, and isolated where its own letters run from right to left.
Text isolated(TextView text);

/// The text with every occurrence of `what` replaced; `what` empty changes nothing.
Text replaceAll(TextView text, TextView what, TextView with);

/// full: digits 1..9 and 0, capitals, small letters (86 characters); otherwise
/// the 38 small letters. Each accented vowel stands behind its plain one.
TextView eAlphabet(bool full);

/// In capitals, with the accents of vowels folded; the letter Ñ stays. Keeps
/// the length.
Text eFoldAccents(TextView text);

/// A phrase laid out in rows of 14 cells. Between a row that its words fill exactly and the
/// next row there is no blank.
struct WrappedPhrase {
    Text shown;
    bool cut = false;  // it needed a fourth row, which was dropped
};
/// A word that does not fit into what is left of a row begins the next one; one that is
/// longer than a row overruns it. A phrase of one word stays as it is, however long.
WrappedPhrase wrapPhrase(TextView phrase);

/// Lays `gsPhrase` out for the board (`gsShownPhrase`, `gsCutPhrase`) and folds
/// it, whole. Returns whether it was cut for the board, which the caller says.
bool eCutPhrase(GameSettings& settings);

/// Each component lowered to a multiple of 10 and to at most 50.
Color eDarkShade(Color color);

/// The text of a field after a paste, and the new caret position (in characters).
struct PastedText {
    Text text;
    int caret = 0;
};
/// Replaces every occurrence of `selected` by the clipboard's text, or inserts
/// that text at the caret (clamped to the text) when nothing is selected.
PastedText ePasteText(TextView text, TextView selected, int caret, TextView clipboard);

}  // namespace quillor
