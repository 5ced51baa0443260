// The game screen: owns a round and the parts that show it, and leads events to
// the rules and what they say to the parts.
#pragma once

#include "app/program_screen.h"
#include "core/progress.h"
#include "game/announcer.h"
#include "game/keyboard.h"
#include "game/phrase_board.h"
#include "game/rules/round.h"
#include "game/score_line.h"
#include "game/status.h"
#include "ui/colors.h"
#include "ui/figure.h"
#include "ui/game_menu.h"
#include "ui/sounds.h"

namespace quillor {

class frmGame : public ProgramScreen {
  public:
    explicit frmGame(Program& program);

    Round round;

    ControlArray<Picture, 0, 2> imgBack{"imgBack"};  // the screen, the figure, the board
    Label lblBluebar;
    Label lblMenu;  // opens the menu
    Label lblMode;
    Label lblHey;  // a tip; for a moment, what has been changed or could not be saved
    GameMenu menu;
    Sounds sounds;
    WebSearch webSearch;
    PhraseBoard board;
    Keyboard keyboard;
    StrikeBoxes strikes;
    Figure figure;
    ScoreLine score;
    ClockLine clock;
    StatusLine status;
    PlayButton playButton;
    Announcer announcer;
    Timer tmrTip;   // how long the tip line shows what it shows now
    Timer tmrKeep;  // when what has been played is kept
    Accent accent;

    void takePaper(const ImageRef& paper) override;
    Control* initialFocus() override { return &playButton.lblPlay(0); }

    /// Starts the phrase that is in the record now.
    void ePlayNewGame();
    /// Rebuilds the window title from mode, games, settings and tour.
    void eChangeTitle();
    /// Shows a tip drawn at random.
    void ePutSomeLucky();
    /// Has the board read, as it shows itself.
    void readBoard();

  protected:
    std::span<const Sheet> sheets() const override;
    void arrange(const Sheet& paper) override;  // game_places.cpp
    void onLoad() override;
    void onUnload() override;
    void onKeyDown(KeyEvent& event) override;
    TextPair ownKeys() const override { return texts::kKeysGame; }
    void goBack() override { mBack_Click(); }
    bool mayQuit() override;
    void onKeyPress(char16_t character) override;
    void onContextMenu() override { popUpMenu(nullptr); }
    void onCloseRequest() override { program_.end(); }

  private:
    void layOut();  // game_layout.cpp, as are the next six
    void layOutBar();
    void layOutFigure();
    void layOutBoard();
    void layOutKeyboard();
    void layOutControls();
    void layOutStrikes();
    void arrangeWide();  // game_places.cpp, as are the next two
    void arrangeTall();
    void setFonts(float larger);

    void addTimers();
    void connect();
    GameMenu::Commands commands();
    void paintAccent(Color color);
    void popUpMenu(const Control* under);
    void mouseLeftButtons();

    void eLoadData();
    void eTranslate();

    // game_play.cpp: from the play button to the ending.
    void ePlayButton();
    void eContinueToPlay();
    void dealNextPhrase();
    void eResetGame();
    void say(const TextPair& text);  // in a box
    void takeHint();
    void guess(char16_t key);
    void eEnterWord();
    void onSecond();
    void show(Happened happened);
    void endGame(Happened how);
    void showRound();  // what a guess changes
    void showState();  // and what a game's beginning and end change
    void showIdlePage(bool idle);
    void noteProgress(Played played);

    // game_commands.cpp: what else the menu and the keys do.
    bool mayLeaveGame();
    bool confirmsLeaving();
    void eBackStart();
    void mBack_Click();
    void mReboot_Click();
    void mDoWay_Click(int index);
    void mDoWayAll_Click(int index);
    void eChangeSound();
    void mHelpy_Click();
    void mHide_Click();
    void mColor_Click();
    void saveSwitches();
    void saveSettings();
    void tellWay();

    // game_screen.cpp: the tip line and the title.
    void tell(Text what, int hold = kTipHold);
    void noteSaved(bool saved, const TextPair& what);
    void tellUnsaved();
    void tellNext();
    void showTip();
    TextPair modeName() const;

    static constexpr int kTipHold = 4000;  // ms

    bool idlePage_ = false;    // nothing is played, and something is drawn in its place
    Text tip_;                 // that the tip line goes back to
    bool topicDealt_ = false;  // Repeat and Tour have a topic to start from
    Played typed_;             // what was typed since progress was noted
};

/// Makes the game screen known to the program.
void addGameScreens(Program& program);

}  // namespace quillor
