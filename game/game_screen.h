// The game screen: puts its parts together and hands events to them.
#pragma once

#include "app/phrase_taker.h"
#include "app/program.h"
#include "game/announcer.h"
#include "game/answer.h"
#include "game/count_down.h"
#include "game/guesses.h"
#include "game/life_cycle.h"
#include "game/phrase_board.h"
#include "game/scoring.h"
#include "game/selection_ways.h"
#include "game/set_up.h"
#include "toolkit/screen.h"
#include "ui/colors.h"
#include "ui/figure.h"
#include "ui/game_menu.h"
#include "ui/sounds.h"
#include "ui/status_animations.h"
#include "ui/web_search.h"

namespace quillor {

class frmGame : public Screen, public PhraseTaker {
  public:
    explicit frmGame(Program& program);

    Program& program;
    GameSettings& settings;

    ControlArray<Picture, 0, 2> imgBack{"imgBack"};  // the screen, the figure, the board
    Label lblBluebar;

    // In the order in which they need each other.
    GameMenu menu;
    Sounds sounds;
    WebSearch webSearch;
    SetUp setUp;
    PhraseBoard board;
    Guesses guesses;
    Figure figure;
    Scoring scoring;
    CountDown countDown;
    LifeCycle lifeCycle;
    SelectionWays ways;
    Answer answer;
    Announcer announcer;
    Colors colors;
    StatusAnimations animations;

    void takePaper(const ImageRef& paper) override;
    /// Between two games something is drawn where the board and the keys will be.
    void showIdlePage(bool idle);
    Control* initialFocus() override { return &lifeCycle.lblPlay(0); }

    void eDoWay(std::int16_t way) override { ways.eDoWay(way); }
    void ePlayNewGame() override { lifeCycle.ePlayNewGame(); }
    void enableRepeatAndTour() override;
    void setGameEnabled(bool isEnabled) override { enabled = isEnabled; }
    ImageRef paper() const override { return imgBack(0).image; }
    const Screen& screen() const override { return *this; }

    /// The picture in a frame lines up with the one behind the frame.
    static void alignPaper(Picture& picture, const Frame& frame);

  protected:
    void onLoad() override { setUp.Form_Load(); }
    void onUnload() override { scoring.keepScore(); }
    void onKeyDown(KeyEvent& event) override;
    void onKeyPress(char16_t character) override;
    void onCloseRequest() override { program.end(); }

  private:
    void layOut();  // game_layout.cpp, as are the next five
    void layOutBar();
    void layOutFigure();
    void layOutBoard();
    void layOutKeyboard();
    void layOutControls();
    void layOutStrikes();
    void addTimers();
    void connect();
    bool runShortcut(const KeyEvent& event);
    ColoredControls coloredControls();
};

/// Makes the game screen known to the program.
void addGameScreens(Program& program);

}  // namespace quillor
