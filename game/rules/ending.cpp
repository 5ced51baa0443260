#include "game/rules/ending.h"

#include <limits>

#include "core/text_rules.h"
#include "game/rules/scoring.h"
#include "game/rules/ways.h"

namespace quillor {

namespace {

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
