// The judging of a typed answer, and the steps of every ending in their order.
#include "game/answer.h"

#include <limits>

#include "core/text_rules.h"
#include "game/game_screen.h"

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

void Answer::eEnterWord() {
    GameSettings& settings = game_.settings;
    if (settings.giGameState != kPlaying)
        return;
    const Text typed = game_.program.desktop.inputBox(game_.program.lang(texts::kEnterAnswer));
    // The clock may have ended the game while the box stood.
    if (settings.giGameState != kPlaying || trimmed(typed).empty())
        return;
    if (foldedAnswer(typed) == settings.gsPhrase) {
        settings.giGameState = kWon;
        if (2 * game_.board.foundShown() < game_.board.letters())
            settings.gbAnswerWritten = true;
    } else {
        settings.giGameState = kDead;
    }
    eFinalStep();
}

void Answer::showEnding() {
    const bool dead = game_.settings.giGameState == kDead;
    game_.colors.ePutNewColor(dead ? game_.settings.glRed : game_.settings.glGreen);
    game_.lifeCycle.lblStatus.caption = game_.program.lang(dead ? texts::kDead : texts::kVictory);
    if (dead)
        game_.figure.tmrDead.enabled = true;
    // Named at once: the sixth mistake's own sound must not play under the box
    // that completes a tour.
    game_.sounds.name(dead ? sound::kDeath : sound::kVictory);
}

void Answer::eFinalStep() {
    GameSettings& settings = game_.settings;
    showEnding();
    if (!settings.gbClassicMode &&
        settings.giGamesPlayed < std::numeric_limits<std::int16_t>::max())
        ++settings.giGamesPlayed;
    game_.board.ePutMagicWord();
    game_.scoring.eScoreUpDown();
    game_.announcer.sayEnding();
    game_.webSearch.offer(true);
    game_.board.lblCont.visible = false;
    game_.countDown.lblTime.visible = false;
    game_.menu.mWrite.enabled = false;
    moveTourOn();
    game_.countDown.stop();
    game_.sounds.playNamed();
}

void Answer::moveTourOn() {
    GameSettings& settings = game_.settings;
    if (settings.giWay != kTour || settings.gbClassicMode)
        return;
    settings.giTopicIndex = game_.ways.topicAfter(settings.giTopicIndex);
    if (settings.giTopicIndex == settings.giTourStart)
        game_.program.desktop.messageBox(MessageIcon::Information,
                                         game_.program.lang(texts::kTourCompleted));
}

}  // namespace quillor
