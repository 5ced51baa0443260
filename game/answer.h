// The whole answer typed at once, and the one step that closes every game.
#pragma once

namespace quillor {

class frmGame;

class Answer {
  public:
    explicit Answer(frmGame& game) : game_(game) {}

    /// Asks for the answer and judges it: right wins, wrong kills. Blank input
    /// is no attempt.
    void eEnterWord();
    /// Closes the game; the caller has set `giGameState` to dead or won.
    void eFinalStep();

  private:
    void showEnding();
    void moveTourOn();

    frmGame& game_;
};

}  // namespace quillor
