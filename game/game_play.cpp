// A game from the play button to its ending. What a rule says has happened is
// looked at in one place, `show`, and painted from there.
#include <utility>

#include "core/text_rules.h"
#include "core/topic_library.h"
#include "game/game_screen.h"
#include "game/rules/clock.h"
#include "game/rules/guess.h"
#include "game/rules/scoring.h"
#include "game/rules/ways.h"
#include "toolkit/style.h"
#include "topics/topics.h"

namespace quillor {

namespace {

// The topic that was dealt from last: a tour has moved on by now.
Played playedGame(const GameSettings& settings, Happened how) {
    Played played;
    played.won = how == Happened::Won;
    if (settings.gbClassicMode)
        return played;
    if (keepsScore(settings))
        played.score = settings.giScoreShown;
    const auto topic = static_cast<std::size_t>(settings.giSavedTopic);
    if (topic < settings.gaTopicLines.size()) {
        played.topic = topicTitle(settings.gaTopicLines[topic]);
        played.phrase = settings.gsLastPhrase;
    }
    return played;
}

}  // namespace

void frmGame::say(const TextPair& text) {
    program_.desktop.messageBox(MessageIcon::Information, program_.lang(text));
}

void frmGame::ePlayButton() {
    if (settings_.giTopicMax < 0)
        say(texts::kNoTopics);
    else if (!score.isCounting() && mayLeaveGame())
        eContinueToPlay();
}

void frmGame::eContinueToPlay() {
    score.settle();
    if (settings_.gbClassicMode) {
        eResetGame();
        program_.showOver(ScreenId::Word1, *this, imgBack(0).image, [this] { ePlayNewGame(); });
    } else if (settings_.giScore > 0 || settings_.gbInfiniteScore) {
        eResetGame();
        dealNextPhrase();
    } else {
        say(texts::kNoPoints);
    }
}

void frmGame::dealNextPhrase() {
    const auto play = [this] {
        topicDealt_ = true;
        ePlayNewGame();
    };
    if (settings_.giWay == kManual) {
        program_.showOver(ScreenId::Word2, *this, imgBack(0).image, play);
        return;
    }
    drawTopic(settings_, [this] { return program_.desktop.draw(); });
    settings_.gbAutoChoice = true;
    if (eChoiceTopic(program_, settings_.giTopicIndex, settings_.giWay))
        play();
}

void frmGame::eResetGame() {
    score.settle();
    clearRound(settings_, round);
    board.clear(settings_);
    keyboard.leaveKeys();
    accent.ePutNewColor(settings_.glThemeNow);
    figure.eResetHangman();
    clock.stop();
    webSearch.offer(false);
    showIdlePage(true);
    showState();
    eChangeTitle();
}

void frmGame::ePlayNewGame() {
    startRound(settings_, round);
    board.layOut(settings_, round);
    showIdlePage(false);
    showState();
    if (settings_.gbFirstLetter)
        takeHint();
    saveSettings();
    ePutSomeLucky();
    eChangeTitle();
    // A phrase of one letter and blanks is won by its first-letter hint.
    if (settings_.giGameState != kPlaying)
        return;
    announcer.sayNewGame(round);
    setFocus(keyboard.firstKey());
    if (settings_.gbAgainstClock) {
        ePutSomeTime(round, static_cast<int>(settings_.gsPhrase.size()));
        clock.start(round);
    }
    sounds.request(sound::kNewGame);
}

void frmGame::takeHint() {
    switch (eHelpLetter(settings_, round)) {
        case Hint::PhraseTooShort:
            say(texts::kHintTooShort);
            break;
        case Hint::NoSingleLetter:
            say(texts::kHintNone);
            break;
        case Hint::Given:
            showRound();
            break;
        case Hint::Won:
            show(Happened::Won);
            break;
    }
}

void frmGame::guess(char16_t key) {
    const std::size_t mistakes = round.mistakes.size();
    const Happened happened = eEnterKey(settings_, round, key);
    // Also the last one; the ending names its own sound before this one plays.
    if (round.mistakes.size() > mistakes)
        sounds.request(sound::kMistake);
    if (happened != Happened::Nothing)
        ++typed_.letters;
    show(happened);
    if (settings_.giGameState == kPlaying)
        announcer.sayGuess(upperCase(key), happened, round);
}

void frmGame::eEnterWord() {
    if (settings_.giGameState != kPlaying)
        return;
    // The clock may end the game while the box stands: then the answer is no attempt.
    const Text typed = program_.desktop.inputBox(program_.lang(texts::kEnterAnswer));
    const Happened happened = judgeAnswer(settings_, round, typed);
    if (happened != Happened::Nothing)
        ++typed_.answers;
    show(happened);
}

void frmGame::onSecond() {
    const Happened happened = passSecond(settings_, round);
    clock.show(round);
    if (happened == Happened::Nothing && settings_.giGameState == kPlaying)
        announcer.sayTime(round);
    show(happened);
}

void frmGame::show(Happened happened) {
    switch (happened) {
        case Happened::Nothing:
            return;
        case Happened::Repeated:
            accent.flash(settings_.glYellow);
            break;
        case Happened::Found:
            accent.flash(settings_.glGreen);
            sounds.request(sound::kGoodLetter);
            break;
        case Happened::Mistake:
            accent.flash(settings_.glRed);
            break;
        case Happened::Won:
        case Happened::Died:
            endGame(happened);
            return;
    }
    showRound();
}

void frmGame::endGame(Happened how) {
    const bool tourCompleted = eFinalStep(settings_, round, how);
    const bool dead = how == Happened::Died;
    noteProgress(playedGame(settings_, how));
    tmrKeep.enabled = true;
    accent.ePutNewColor(dead ? settings_.glRed : settings_.glGreen);
    figure.tmrDead.enabled = dead;
    showState();
    clock.stop();
    webSearch.offer(true);
    score.showPoints();
    announcer.sayEnding(round);
    // Named at once: the last mistake's own sound must not play under the box.
    sounds.name(dead ? sound::kDeath : sound::kVictory);
    if (tourCompleted)
        say(texts::kTourCompleted);
    sounds.playNamed();
}

void frmGame::noteProgress(Played played) {
    const Played typed = std::exchange(typed_, {});
    played.letters = typed.letters;
    played.answers = typed.answers;
    if (played.won || played.letters + played.answers > 0)
        program_.notePlayed(std::move(played));
}

void frmGame::showRound() {
    board.show(settings_, round);
    keyboard.show(settings_, round);
    strikes.show(round);
    figure.ePutItHangman(settings_.giStrikes);
}

void frmGame::showState() {
    showRound();
    status.show();
    playButton.show();
    menu.show(topicDealt_);
}

// Between two games something is drawn where the board and the keys will be.
void frmGame::showIdlePage(bool idle) {
    idlePage_ = idle;
    const bool wide = sheet().layout == Layout::Wide;
    for (Picture& picture : imgBack)
        picture.drawing = !idle ? "" : wide ? style::kIdleDrawing : style::kTallIdleDrawing;
}

}  // namespace quillor
