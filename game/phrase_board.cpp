// Cells find their places once a game; afterwards they only show or hide.
#include "game/phrase_board.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

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

// Where a key leads among the letters' cells, as a position in `letters`; at the ends it
// stays. A cursor that is nowhere yet comes to the first one.
std::optional<std::size_t> letterAt(const std::vector<std::size_t>& letters, std::size_t cursor,
                                    int keyCode) {
    if (letters.empty())
        return std::nullopt;
    const auto found = std::find(letters.begin(), letters.end(), cursor);
    const bool known = found != letters.end();
    const auto at = known ? static_cast<std::size_t>(found - letters.begin()) : 0;
    const auto nearest = [&](std::ptrdiff_t cell) {
        const auto row = cell < 0 ? -1 : cell / kRowCells;
        std::size_t best = at;
        std::ptrdiff_t distance = kBoardCells;
        for (std::size_t i = 0; i < letters.size(); ++i) {
            const auto each = static_cast<std::ptrdiff_t>(letters[i]);
            if (each / kRowCells == row && std::abs(each - cell) < distance) {
                best = i;
                distance = std::abs(each - cell);
            }
        }
        return best;
    };
    const auto here = static_cast<std::ptrdiff_t>(letters[at]);
    switch (keyCode) {
        case key::kLeft:
            return at > 0 ? at - 1 : 0;
        case key::kRight:
            return known && at + 1 < letters.size() ? at + 1 : at;
        case key::kHome:
            return 0;
        case key::kEnd:
            return letters.size() - 1;
        case key::kUp:
            return nearest(here - kRowCells);
        case key::kDown:
            return nearest(here + kRowCells);
        default:
            return std::nullopt;
    }
}

}  // namespace

void PhraseBoard::ePutDesign(GameSettings& settings) {
    if (settings.giDesign < 0 || settings.giDesign >= kDesigns)
        return;
    for (int cell = 1; cell <= kBoardCells; ++cell)
        paintLetter(lblLetter(cell), lnLetter(cell), settings.giDesign, settings);
    settings.glDesignColor = letterColor(settings.giDesign, settings);
}

void PhraseBoard::layOut(const GameSettings& settings, const Round& round) {
    plainLine_ = {lnLetter(1).color, lnLetter(1).thickness};
    widestCell_ = 0;
    lblTopic.caption = settings.gsTopicName;
    for (std::size_t i = 0; i < round.cells.size(); ++i)
        placeCell(static_cast<int>(i) + 1, round.cells[i]);
    frmeMagic.height += lblCont.height;
    lblBoard.place(0, 0, frmeMagic.width, frmeMagic.height);
    cursor_ = round.cells.size();
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
    lblBoard.visible = settings.giGameState != kIdle;
    lblBoard.spokenName = eLang(settings, texts::kBoardName) + spelled(round);
    for (std::size_t i = 0; i < round.cells.size(); ++i) {
        const Cell& cell = round.cells[i];
        const int number = static_cast<int>(i) + 1;
        Label& label = lblLetter(number);
        const bool missed = cell.state == CellState::Missed;
        if (cell.isFound() && !shown_.test(i) && !missed)
            label.move(Motion::Appear);
        label.visible = cell.isFound();
        shown_.set(i, cell.isFound());
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

Text PhraseBoard::readCell(const Round& round, int keyCode, const GameSettings& settings) {
    std::vector<std::size_t> letters;
    for (std::size_t i = 0; i < round.cells.size(); ++i)
        if (round.cells[i].isLetter())
            letters.push_back(i);
    const std::optional<std::size_t> to = letterAt(letters, cursor_, keyCode);
    if (!to)
        return {};
    cursor_ = letters[*to];
    const Cell& cell = round.cells[cursor_];
    Text words = eLang(settings, texts::kCell) + inDigits(static_cast<int>(*to) + 1) + u": ";
    if (cell.startsWord && *to > 0)
        words = eLang(settings, texts::kCellBlank) + u". " + words;
    const Text shown = captionOf(cell, round);
    if (!cell.isFound())
        return words + eLang(settings, texts::kCellHidden);
    return words + (shown == u"?" ? eLang(settings, texts::kCellCovered) : shown);
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
    shown_.reset();
    lblCont.visible = lblBoard.visible = false;
    lblTopic.caption = eLang(settings, texts::kNoTopicShown);
}

void alignPaper(Picture& picture, const Frame& frame) {
    picture.left = -frame.left;
    picture.top = -frame.top;
}

}  // namespace quillor
