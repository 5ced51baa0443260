// The life of a game: the play button, the reset between games, and the start
// of a new one.
#pragma once

#include "toolkit/control_array.h"
#include "toolkit/controls.h"

namespace quillor {

class frmGame;

class LifeCycle {
  public:
    explicit LifeCycle(frmGame& game);

    Label lblStatus;
    Shape shpPlay;
    ControlArray<Label, 0, 0> lblPlay{"lblPlay"};

    /// The play button and the Enter key.
    void ePlayButton();
    /// Leaves the current game and fetches the next phrase.
    void eContinueToPlay();
    /// Empties board and keyboard for the next phrase.
    void eResetGame();
    /// Starts the phrase that is in the record now.
    void ePlayNewGame();
    /// Leaves the game screen for the main menu.
    void eBackStart();
    void eTranslate();
    /// The play button as it looks while the mouse is elsewhere.
    void leavePlay();

  private:
    void dealNextPhrase();
    void clearGameState();

    frmGame& game_;
    bool hovered_ = false;
};

}  // namespace quillor
