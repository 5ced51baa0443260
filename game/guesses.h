// A guessed letter and what it does: the keyboard, the strike boxes, the hint.
#pragma once

#include <string_view>

#include "core/types.h"
#include "game/guess_result.h"
#include "toolkit/control_array.h"
#include "toolkit/controls.h"

namespace quillor {

class frmGame;

class Guesses {
  public:
    static constexpr int kLastGuessKey = 37;  // 1..27 letters, 28..37 digits
    static constexpr int kNumbersKey = 38;    // shows the digits
    static constexpr int kHideNumbersKey = 39;
    static constexpr int kWriteKey = 40;
    static constexpr int kStrikes = 6;

    explicit Guesses(frmGame& game);

    Frame frmeBoard;
    Frame frmeNumbers;
    ControlArray<Shape, 1, kWriteKey> shpKey{"shpKey"};
    ControlArray<Label, 1, kWriteKey> lblKey{"lblKey"};
    Shape shpStrikes;  // the ground of the strike boxes
    ControlArray<Line, 0, kStrikes> lnStrike{"lnStrike"};
    ControlArray<Label, 0, kStrikes - 1> lblStrike{"lblStrike"};

    /// True while a hint uncovers a letter, and until the player's next guess:
    /// the letter shows itself, without colour and sound.
    bool HintReveal = false;

    /// Applies one guess; small letters count as capitals.
    GuessResult eEnterKey(char16_t key);
    /// Records a mistake in the first free box; the sixth ends the game.
    void ePutStrikes(char16_t key);
    /// Uncovers the first character that occurs once in the phrase. Where there
    /// is none, or the phrase is too short, a box says so.
    void eHelpLetter();
    /// A guess of the player's own.
    void guess(char16_t key);
    void lblKey_Click(int index);

    void showAllKeys();
    void emptyStrikes();
    void eTranslate();

  private:
    struct Uncovered {
        int found = 0;
        bool all = true;
        bool any = false;  // a letter that was not found before
    };

    void hideKey(char16_t key);
    GuessResult enterMistake(char16_t key);
    GuessResult enterHit(char16_t key, TextView folded);
    Uncovered uncover(char16_t key, TextView folded);
    void uncoverCell(int cell, Uncovered& result);

    frmGame& game_;
};

}  // namespace quillor
