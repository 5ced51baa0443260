// Opening the game screen: settings, menu checks, colours, score and mode; the
// window title and the tip line.
#pragma once

#include "toolkit/controls.h"

namespace quillor {

class frmGame;

class SetUp {
  public:
    explicit SetUp(frmGame& game) : game_(game) {}

    Label lblMode;
    Label lblHey;

    void Form_Load();
    void eLoadData();
    void eChangeTitle();
    /// Shows a tip drawn at random.
    void ePutSomeLucky();

  private:
    void eTranslate();
    void showMode();

    frmGame& game_;
};

}  // namespace quillor
