// Cells find their places once a game; afterwards they only show or hide.
#include "game/phrase_board.h"

#include "core/numbers.h"
#include "core/texts.h"
#include "ui/colors.h"

namespace quillor {

namespace {

Text captionOf(const Cell& cell, const Round& round) {
    const bool covered = cell.isLetter() && cell.state != CellState::Given;
    return Text(1, round.hiddenLetters && covered ? u'?' : cell.character);
}

}  // namespace

void PhraseBoard::ePutDesign(GameSettings& settings) {
    if (settings.giDesign < 0 || settings.giDesign >= kDesigns)
        return;
    for (int cell = 1; cell <= kBoardCells; ++cell)
        paintLetter(lblLetter(cell), lnLetter(cell), settings.giDesign, settings);
    settings.glDesignColor = lblLetter(1).textColor;
}

void PhraseBoard::layOut(const GameSettings& settings, const Round& round) {
    widestCell_ = 0;
    lblTopic.caption = settings.gsTopicName;
    for (std::size_t i = 0; i < round.cells.size(); ++i)
        placeCell(static_cast<int>(i) + 1, round.cells[i]);
    frmeMagic.height += lblCont.height;
    show(settings, round);
    ePutAllCenter();
}

// Frame and counter end up at the last letter of the phrase.
void PhraseBoard::placeCell(int cell, const Cell& state) {
    if (!state.isLetter())
        return;
    const Label& label = lblLetter(cell);
    lnLetter(cell).visible = true;
    lblCont.left = label.right() - lblCont.width;
    lblCont.top = label.bottom();
    frmeMagic.height = label.bottom();
    if (label.left > widestCell_) {
        frmeMagic.width = label.right();
        widestCell_ = label.left;
    }
}

void PhraseBoard::show(const GameSettings& settings, const Round& round) {
    for (std::size_t i = 0; i < round.cells.size(); ++i) {
        const Cell& cell = round.cells[i];
        Label& label = lblLetter(static_cast<int>(i) + 1);
        label.visible = cell.isFound();
        label.caption = captionOf(cell, round);
        label.textColor = cell.state == CellState::Missed ? settings.glRed : settings.glDesignColor;
    }
    lblCont.visible = settings.giGameState == kPlaying;
    lblCont.caption = inDigits(round.found()) + u"/" + inDigits(round.letters());
}

// The board stands a little left of the centre of its area: four fifths of the
// centring offset, and a bit.
void PhraseBoard::ePutAllCenter() {
    frmeMagic.top = shpLimit.top + shpLimit.height / 2 - frmeMagic.height / 2;
    frmeMagic.left = (shpLimit.width / 2 - frmeMagic.width / 2) * 0.8F + shpLimit.left - 120;
    alignPaper(paper_, frmeMagic);
}

void PhraseBoard::arrange(const Area& area) {
    shpLimit.place(area.left, area.top, area.width, area.height);
    frmeMagic.left = area.left;
    frmeMagic.top = area.top;
    if (frmeMagic.width > 0)
        ePutAllCenter();
}

void PhraseBoard::clear(const GameSettings& settings) {
    for (int cell = 1; cell <= kBoardCells; ++cell) {
        lblLetter(cell).caption.clear();
        lblLetter(cell).textColor = settings.glDesignColor;
        lblLetter(cell).visible = false;
        lnLetter(cell).visible = false;
    }
    lblCont.visible = false;
    lblTopic.caption = eLang(settings, texts::kNoTopicShown);
}

void alignPaper(Picture& picture, const Frame& frame) {
    picture.left = -frame.left;
    picture.top = -frame.top;
}

}  // namespace quillor
