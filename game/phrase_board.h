// The board: one cell for each character of the phrase, an underline under each
// one that is to be guessed, the topic above and the counter below.
#pragma once

#include <bitset>
#include <optional>

#include "core/text_rules.h"
#include "game/rules/round.h"
#include "toolkit/control_array.h"
#include "toolkit/controls.h"

namespace quillor {

class PhraseBoard {
  public:
    /// `paper` is the picture inside the board's frame, which lines up with the
    /// one behind the frame.
    explicit PhraseBoard(Picture& paper) : paper_(paper) {}

    Shape shpLimit;  // the area available for the board
    Frame frmeMagic;
    ControlArray<Line, 1, kBoardCells> lnLetter{"lnLetter"};
    ControlArray<Label, 1, kBoardCells> lblLetter{"lblLetter"};
    Label lblBoard;  // all over the frame: read as a whole, and by arrow keys cell by cell
    Label lblCont;
    Label lblTopic;

    /// Ink and background of the letters by `giDesign`; an unknown design leaves
    /// them as they are.
    void ePutDesign(GameSettings& settings);
    /// A new phrase: cells, frame and counter find their places.
    void layOut(const GameSettings& settings, const Round& round);
    /// What has been found so far, and the counter while the game goes on.
    void show(const GameSettings& settings, const Round& round);
    /// Puts the frame, as large as its phrase, into the area available for the board.
    void ePutAllCenter();
    /// The area available for the board, in twips; the board moves into it.
    void arrange(const Area& area);
    /// Goes from letter to letter by an arrow key, Home or End, and says what the board
    /// shows there; nothing for another key.
    Text readCell(const Round& round, int keyCode, const GameSettings& settings);
    /// Hides every cell and underline.
    void clear(const GameSettings& settings);

  private:
    struct Stroke {
        Color color;
        Twips thickness;
    };
    void placeCell(int cell, const Cell& state);

    Picture& paper_;
    Twips widestCell_ = 0;
    std::optional<Stroke> plainLine_;  // under the letters, as the design has it
    std::bitset<kBoardCells> shown_;   // the cells whose character is seen
    std::size_t cursor_ = 0;           // the cell that was read last
};

/// The picture in a frame lines up with the one behind the frame.
void alignPaper(Picture& picture, const Frame& frame);

}  // namespace quillor
