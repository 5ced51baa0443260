// Cells are laid out once a game; afterwards they are only shown or hidden.
#include "game/phrase_board.h"

#include <algorithm>

#include "core/numbers.h"
#include "game/game_screen.h"

namespace quillor {

PhraseBoard::PhraseBoard(frmGame& game) : game_(game) {}

int PhraseBoard::cells() const {
    return std::min(static_cast<int>(game_.settings.gsShownPhrase.size()), kBoardCells);
}

void PhraseBoard::ePutMagicWord() {
    if (game_.settings.giGameState == kPlaying)
        layOut();
    else
        uncover();
}

void PhraseBoard::layOut() {
    BlankCells = 0;
    widestCell_ = 0;
    for (int cell = 1; cell <= cells(); ++cell)
        layOutCell(cell);
    frmeMagic.height += lblCont.height;
    showCount(0);
    lblCont.visible = true;
    ePutAllCenter();
    if (game_.settings.gbFirstLetter)
        game_.guesses.eHelpLetter();
}

void PhraseBoard::layOutCell(int cell) {
    const char16_t character = game_.settings.gsShownPhrase.at(static_cast<std::size_t>(cell - 1));
    Label& label = lblLetter(cell);
    lblTopic.caption = game_.settings.gsTopicName;
    label.caption = Text(1, character);
    if (character == u' ') {
        ++BlankCells;
        return;
    }
    if (game_.menu.mHide.checked)
        label.caption = u"?";
    lnLetter(cell).visible = true;
    lblCont.left = label.right() - lblCont.width;
    lblCont.top = label.bottom();
    frmeMagic.height = label.bottom();
    if (label.left > widestCell_) {
        frmeMagic.width = label.right();
        widestCell_ = label.left;
    }
}

void PhraseBoard::uncover() {
    for (int cell = 1; cell <= cells(); ++cell) {
        Label& label = lblLetter(cell);
        if (!label.visible && game_.settings.giGameState == kDead)
            label.textColor = game_.settings.glRed;
        if (lnLetter(cell).visible)
            label.visible = true;
        label.caption = Text(1, game_.settings.gsCutPhrase.at(static_cast<std::size_t>(cell - 1)));
    }
}

// The board stands a little left of the centre of its area: four fifths of the
// centring offset, and a bit.
void PhraseBoard::ePutAllCenter() {
    frmeMagic.top = shpLimit.top + shpLimit.height / 2 - frmeMagic.height / 2;
    frmeMagic.left = (shpLimit.width / 2 - frmeMagic.width / 2) * 0.8F + shpLimit.left - 120;
    frmGame::alignPaper(game_.imgBack(2), frmeMagic);
}

void PhraseBoard::clear() {
    for (int cell = 1; cell <= kBoardCells; ++cell) {
        lblLetter(cell).caption.clear();
        lblLetter(cell).textColor = game_.settings.glDesignColor;
        lblLetter(cell).visible = false;
        lnLetter(cell).visible = false;
    }
}

void PhraseBoard::showCount(int found) {
    lblCont.caption = inDigits(found) + u"/" + inDigits(letters());
}

int PhraseBoard::foundShown() const {
    return static_cast<int>(leadingNumber(lblCont.caption));
}

}  // namespace quillor
