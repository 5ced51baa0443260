// The game's menu: its entries in order, and the commands that leave or restart
// the game, show the About box and open the manual.
#pragma once

#include <array>
#include <functional>

#include "app/program.h"

namespace quillor {

class GameMenu {
  public:
    /// What the menu asks of the game screen it belongs to.
    struct Commands {
        std::function<void()> eBackStart;  // leaves for the main menu
    };

    GameMenu(Program& program, Screen& gameScreen, Commands commands);

    MenuItem mMenu;
    MenuItem mBack;
    MenuItem mReboot;
    MenuItem mAuto;
    ControlArray<MenuItem, 0, 2> mDoWay{"mDoWay"};        // Manual, Repeat, Tour
    ControlArray<MenuItem, 0, 1> mDoWayAll{"mDoWayAll"};  // Any topic, Hidden
    MenuItem mWrite;
    MenuItem mWave;
    MenuItem mHelpy;
    MenuItem mHide;
    MenuItem mColor;
    MenuItem mAbout;
    MenuItem mHelp;

    void eTranslate();
    void popUp() { program_.desktop.popUp(screen_, mMenu); }

    void mBack_Click();
    void mReboot_Click();
    void mAbout_Click();
    void mHelp_Click();

    /// Asks whether to leave the game in play. False, whatever was answered,
    /// when the game ended while the question stood.
    bool mayLeaveGame();

  private:
    void nameItems();
    void buildTree();

    Program& program_;
    Screen& screen_;
    Commands commands_;
    std::array<MenuItem, 5> separators_;
};

/// From this many mistakes on, a player may not run from a game to another one
/// or to the main menu.
inline constexpr int kTooManyMistakes = 4;

}  // namespace quillor
