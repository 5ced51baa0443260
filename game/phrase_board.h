// The board: one cell for each character of the phrase, an underline under each
// one that is to be guessed, the topic above and the counter below.
#pragma once

#include "core/text_rules.h"
#include "toolkit/control_array.h"
#include "toolkit/controls.h"

namespace quillor {

class frmGame;

class PhraseBoard {
  public:
    explicit PhraseBoard(frmGame& game);

    Shape shpLimit;  // the area available for the board
    Frame frmeMagic;
    ControlArray<Line, 1, kBoardCells> lnLetter{"lnLetter"};
    ControlArray<Label, 1, kBoardCells> lblLetter{"lblLetter"};
    Label lblCont;
    Label lblTopic;

    /// Spaces in the laid-out phrase, counted as far as the board reaches.
    int BlankCells = 0;

    /// Lays out a new board while a game is being played; otherwise uncovers
    /// the whole phrase, unfound letters in red after a death.
    void ePutMagicWord();
    void ePutAllCenter();
    /// Hides every cell and underline.
    void clear();

    /// Characters of the laid-out phrase that have a cell; cells past the 42nd
    /// do not exist.
    int cells() const;
    /// Characters to find.
    int letters() const { return cells() - BlankCells; }
    /// Shows "found/letters".
    void showCount(int found);
    /// The number before the "/".
    int foundShown() const;
    bool isLetter(int cell) const { return lnLetter(cell).visible; }
    bool isFound(int cell) const { return lblLetter(cell).visible; }

  private:
    void layOut();
    void layOutCell(int cell);
    void uncover();

    frmGame& game_;
    Twips widestCell_ = 0;
};

}  // namespace quillor
