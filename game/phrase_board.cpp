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

// Not by their colour alone is it seen which letters the player did not find.
void underlineMissed(Line& line, const GameSettings& settings) {
    constexpr Twips kThick = 120;
    line.color = settings.glRed;
    line.thickness = kThick;
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
    plainLine_ = lnLetter(1);
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
        const int number = static_cast<int>(i) + 1;
        Label& label = lblLetter(number);
        const bool missed = cell.state == CellState::Missed;
        if (cell.isFound() && !label.visible && !missed)
            label.move(Motion::Appear);
        label.visible = cell.isFound();
        label.caption = captionOf(cell, round);
        label.textColor = missed ? settings.glRed : settings.glDesignColor;
        if (missed)
            underlineMissed(lnLetter(number), settings);
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
        if (plainLine_) {
            lnLetter(cell).color = plainLine_->color;
            lnLetter(cell).thickness = plainLine_->thickness;
        }
    }
    lblCont.visible = false;
    lblTopic.caption = eLang(settings, texts::kNoTopicShown);
}

void alignPaper(Picture& picture, const Frame& frame) {
    picture.left = -frame.left;
    picture.top = -frame.top;
}

}  // namespace quillor
