#include "game/rules/guess.h"

#include <algorithm>

#include "core/text_rules.h"

namespace quillor {

namespace {

constexpr std::size_t kShortestHint = 3;

void takeOffKeyboard(Round& round, char16_t key) {
    const std::size_t place = kGuessKeys.find(key);
    if (place != TextView::npos)
        round.used.set(place);
}

bool isInPhrase(const Round& round, char16_t key) {
    return round.folded.find(key) != Text::npos;
}

// `as` says who found the letters: the player or the hint.
Happened uncover(GameSettings& settings, Round& round, char16_t key, CellState as) {
    Happened happened = Happened::Repeated;
    for (std::size_t i = 0; i < round.cells.size(); ++i) {
        Cell& cell = round.cells[i];
        if (round.folded[i] != key || cell.state != CellState::Hidden)
            continue;
        cell.state = as;
        happened = Happened::Found;
    }
    const int found = round.found();
    settings.giLettersFound = static_cast<std::int16_t>(found);
    return found == round.letters() ? Happened::Won : happened;
}

}  // namespace

Happened eEnterKey(GameSettings& settings, Round& round, char16_t key) {
    if (settings.giGameState != kPlaying)
        return Happened::Nothing;
    key = upperCase(key);
    takeOffKeyboard(round, key);
    return isInPhrase(round, key) ? uncover(settings, round, key, CellState::Found)
                                  : ePutStrikes(settings, round, key);
}

Happened ePutStrikes(GameSettings& settings, Round& round, char16_t key) {
    if (round.mistakes.find(key) != Text::npos)
        return Happened::Repeated;
    round.mistakes.push_back(key);
    settings.giStrikes = static_cast<std::int16_t>(round.mistakes.size());
    return settings.giStrikes == kMostMistakes ? Happened::Died : Happened::Mistake;
}

Hint eHelpLetter(GameSettings& settings, Round& round) {
    if (settings.gsPhrase.size() < kShortestHint)
        return Hint::PhraseTooShort;
    const Text letters = replaceAll(round.folded, u" ", u"");
    const auto once = std::find_if(letters.begin(), letters.end(), [&letters](char16_t character) {
        return std::count(letters.begin(), letters.end(), character) == 1;
    });
    if (once == letters.end())
        return Hint::NoSingleLetter;
    takeOffKeyboard(round, *once);
    if (uncover(settings, round, *once, CellState::Given) == Happened::Won)
        return Hint::Won;  // a hint that ends the game is not counted against it
    settings.gbHintUsed = true;
    return Hint::Given;
}

}  // namespace quillor
