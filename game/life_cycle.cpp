// Who may leave a game, what a reset puts back, and how the next phrase is fetched.
#include "game/life_cycle.h"

#include "core/settings_file.h"
#include "game/game_screen.h"
#include "topics/topic_selection.h"

namespace quillor {

LifeCycle::LifeCycle(frmGame& game) : game_(game) {
    Label& play = lblPlay(0);
    play.onClick = [this] { ePlayButton(); };
    play.onRightClick = [this] { game_.menu.popUp(); };
    play.onMouseMove = [this] {
        game_.colors.leaveKeys();
        hovered_ = true;
        shpPlay.backColor = game_.settings.glGreen;
    };
    play.onMouseDown = [this] { shpPlay.backColor = game_.settings.glGreen - rgb(0, 30, 0); };
    play.onMouseUp = [this] { shpPlay.backColor = game_.colors.accent(); };
}

void LifeCycle::leavePlay() {
    if (hovered_)
        shpPlay.backColor = game_.colors.accent();
    hovered_ = false;
}

void LifeCycle::eTranslate() {
    lblStatus.toolTip = game_.program.lang(texts::kStatusTip);
    lblPlay(0).toolTip = game_.program.lang(texts::kPlayTip);
    lblStatus.caption = game_.program.lang(texts::kNewGame);
    lblPlay(0).caption = game_.program.lang(texts::kPlay);
}

void LifeCycle::ePlayButton() {
    const GameSettings& settings = game_.settings;
    Desktop& desktop = game_.program.desktop;
    if (settings.giTopicMax < 0) {
        desktop.messageBox(MessageIcon::Information, game_.program.lang(texts::kNoTopics));
        return;
    }
    if (game_.scoring.tmrScore.enabled)
        return;
    const bool playing = settings.giGameState == kPlaying;
    if (playing && settings.giStrikes >= kTooManyMistakes)
        desktop.messageBox(MessageIcon::Information, game_.program.lang(texts::kTooManyMistakes));
    else if (!playing || game_.menu.mayLeaveGame())
        eContinueToPlay();
}

void LifeCycle::eContinueToPlay() {
    const GameSettings& settings = game_.settings;
    game_.scoring.settle();
    if (settings.gbClassicMode) {
        eResetGame();
        game_.program.show(ScreenId::Word1);
    } else if (settings.giScore > 0 || settings.gbInfiniteScore) {
        eResetGame();
        dealNextPhrase();
    } else {
        game_.program.desktop.messageBox(MessageIcon::Information,
                                         game_.program.lang(texts::kNoPoints));
    }
}

void LifeCycle::dealNextPhrase() {
    GameSettings& settings = game_.settings;
    Program& program = game_.program;
    if (settings.giWay == kManual) {
        program.show(ScreenId::Word2);
        return;
    }
    if (settings.giWay >= kAnyTopic) {
        program.desktop.seedRandom();
        settings.giTopicIndex =
            static_cast<std::int16_t>(program.desktop.random() * (settings.giTopicMax + 1));
    }
    settings.gbAutoChoice = true;
    // The selection screen deals without being shown, and is gone again.
    auto& selection = dynamic_cast<frmWord2&>(program.load(ScreenId::Word2));
    selection.eChoiceTopic(settings.giTopicIndex);
    if (Screen* left = program.find(ScreenId::Word2))
        program.close(*left);
}

void LifeCycle::eResetGame() {
    game_.scoring.settle();
    game_.settings.giGameState = kIdle;
    game_.setUp.eChangeTitle();
    game_.board.clear();
    game_.guesses.showAllKeys();
    game_.guesses.emptyStrikes();
    game_.colors.leaveKeys();
    game_.colors.ePutNewColor(game_.settings.glThemeNow);
    game_.figure.ePutItHangman();
    game_.figure.eResetHangman();
    lblStatus.caption = game_.program.lang(texts::kNewGame);
    lblPlay(0).caption = game_.program.lang(texts::kPlay);
    game_.board.lblTopic.caption = game_.program.lang(texts::kNoTopicShown);
    game_.showIdlePage(true);
    game_.guesses.frmeBoard.visible = false;
    game_.guesses.frmeNumbers.visible = false;
    game_.webSearch.offer(false);
    game_.board.lblCont.visible = false;
    game_.menu.mWrite.enabled = false;
    clearGameState();
}

void LifeCycle::clearGameState() {
    game_.countDown.reset();
    game_.settings.giStrikes = 0;
    game_.settings.gbAnswerWritten = false;
    game_.settings.gbHintUsed = false;
}

void LifeCycle::ePlayNewGame() {
    GameSettings& settings = game_.settings;
    settings.giGameState = kPlaying;
    game_.menu.mWrite.enabled = true;
    game_.board.ePutMagicWord();
    eSaveSettings(settings, game_.program.folder);
    game_.setUp.ePutSomeLucky();
    game_.setUp.eChangeTitle();
    lblPlay(0).caption = game_.program.lang(texts::kPlayAnother);
    game_.showIdlePage(false);
    game_.guesses.frmeBoard.visible = true;
    // A phrase of one letter and blanks is won by its first-letter hint.
    if (settings.giGameState != kPlaying)
        return;
    lblStatus.caption = game_.program.lang(texts::kPlaying.front());
    game_.announcer.sayNewGame();
    if (settings.gbAgainstClock)
        game_.countDown.ePutSomeTime(static_cast<int>(settings.gsPhrase.size()));
    game_.sounds.request(sound::kNewGame);
}

void LifeCycle::eBackStart() {
    eResetGame();
    game_.program.show(ScreenId::Menu).takePaper(game_.paper());
    game_.program.close(game_);
}

}  // namespace quillor
