#include "game/rules/guess.h"

#include <algorithm>
#include <limits>

#include "core/text_rules.h"
#include "game/rules/scoring.h"
#include "game/rules/ways.h"

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
Happened uncoverKey(GameSettings& settings, Round& round, char16_t key, CellState as) {
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

// Records a mistake; the kMostMistakes-th is a death, one that was made before is Repeated.
Happened ePutStrikes(GameSettings& settings, Round& round, char16_t key) {
    if (round.mistakes.find(key) != Text::npos)
        return Happened::Repeated;
    round.mistakes.push_back(key);
    settings.giStrikes = static_cast<std::int16_t>(round.mistakes.size());
    return settings.giStrikes == kMostMistakes ? Happened::Died : Happened::Mistake;
}

// Only the five acute vowels: an answer typed with a grave accent or a Ü never
// matches.
Text foldedAnswer(TextView typed) {
    Text answer = upperCase(typed);
    constexpr TextView kAcute = u"ÁÉÍÓÚ";
    constexpr TextView kPlain = u"AEIOU";
    for (char16_t& character : answer)
        if (const auto place = kAcute.find(character); place != TextView::npos)
            character = kPlain.at(place);
    return answer;
}

}  // namespace

Happened eEnterKey(GameSettings& settings, Round& round, char16_t key) {
    if (settings.giGameState != kPlaying)
        return Happened::Nothing;
    key = upperCase(key);
    takeOffKeyboard(round, key);
    return isInPhrase(round, key) ? uncoverKey(settings, round, key, CellState::Found)
                                  : ePutStrikes(settings, round, key);
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
    if (uncoverKey(settings, round, *once, CellState::Given) == Happened::Won)
        return Hint::Won;  // a hint that ends the game is not counted against it
    settings.gbHintUsed = true;
    return Hint::Given;
}

Happened judgeAnswer(GameSettings& settings, const Round& round, TextView typed) {
    if (settings.giGameState != kPlaying || trimmed(typed).empty())
        return Happened::Nothing;
    if (foldedAnswer(typed) != settings.gsPhrase)
        return Happened::Died;
    settings.gbAnswerWritten = 2 * round.found() < round.letters();
    return Happened::Won;
}

bool eFinalStep(GameSettings& settings, Round& round, Happened how) {
    settings.giGameState = how == Happened::Won ? kWon : kDead;
    if (!settings.gbClassicMode &&
        settings.giGamesPlayed < std::numeric_limits<std::int16_t>::max())
        ++settings.giGamesPlayed;
    ePutMagicWord(settings, round);
    eScoreUpDown(settings, round);
    return moveTourOn(settings);
}

}  // namespace quillor
