// What happens in the game, in words, for players who do not see it.
#pragma once

#include "core/types.h"
#include "game/guess_result.h"
#include "toolkit/controls.h"

namespace quillor {

class frmGame;

class Announcer {
  public:
    explicit Announcer(frmGame& game);

    Label lblSpoken;  // never drawn; spoken whenever its caption changes

    void sayNewGame();
    void sayGuess(char16_t key, GuessResult result);
    void sayEnding();

  private:
    /// The phrase spelled as the board shows it, with its gaps.
    Text board() const;

    frmGame& game_;
};

}  // namespace quillor
