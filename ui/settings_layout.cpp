// Where everything on the settings screen stands, in twips.
#include "toolkit/style.h"
#include "ui/settings_screen.h"

namespace quillor {

namespace {

using style::kInk;
using style::kPale;

constexpr Twips kBlank = 90;     // that the options' captions begin with
constexpr Twips kTileLine = 60;  // below a tile of the title
constexpr int kTiles = frmOptions::kLastTile + 1;

// The measures of one layout.
struct Measures {
    Twips left;       // of the column of boxes
    Twips firstRow;   // of the options
    Twips row;        // from one to the next
    Twips box;        // the side of a tick's box
    Twips tile;       // the side of a tile of the title
    Twips tilePitch;  // from one to the next
    Twips tilesTop;
    Twips backTop;
    float fontSize;  // of the options
};

Measures measuresFor(const Sheet& paper) {
    if (paper.layout == Layout::Wide)
        return {3240, 2520, 900, 600, 900, 1080, 840, 7080, 18};
    const Twips tiles = 1080 + (paper.height - kHalfSheet.height) * 0.3F;
    const Twips first = tiles + 2160;
    return {paper.width / 2 - 3720, first, 1200, 840, 960, 1140, tiles, first + 6360, 24};
}

}  // namespace

void frmOptions::layOut() {
    imgBack.id = "imgBack";
    add(imgBack);
    layOutView({}, style::kFaint);
    layOutTiles();
    layOutOptions();
    layOutDesigns();
    layOutBack();
    fit(kWideSheet.width, kWideSheet.height);
}

void frmOptions::layOutTiles() {
    add(lnLetter);
    add(lblLetter);
    for (Label& tile : lblLetter)
        tile.font = {Face::Display, 40, true};
    for (Line& line : lnLetter)
        line.thickness = kTileLine;
}

void frmOptions::layOutOptions() {
    for (int i = 0; i <= kLastOption; ++i) {
        add(shpCheck(i));
        Label& box = lblCheck(i);
        box.textColor = kPale;
        box.cornerRadius = shpCheck(i).radius;
        box.role = i == 0 ? LabelRole::Plain : LabelRole::CheckBox;
        box.group = 1;
        add(box);
        Label& words = lblOpts(i);
        words.textColor = kInk;
        words.align = Align::Left;
        words.role = i == 0 ? LabelRole::Plain : LabelRole::Button;
        words.tabStop = false;
        add(words);
    }
    // The heading's box never holds a tick: it is a mere dot.
    shpCheck(0).kind = ShapeKind::Oval;
}

void frmOptions::layOutDesigns() {
    for (int i = 0; i <= kLastDesign; ++i) {
        shpDs(i).borderColor = style::kEdge;
        add(shpDs(i));
        lblDs(i).caption = Text(1, static_cast<char16_t>(u'1' + i));
        lblDs(i).font = {Face::Display, 18, true};
        lblDs(i).textColor = kPale;
        lblDs(i).role = LabelRole::RadioButton;
        lblDs(i).group = 2;
        lblDs(i).cornerRadius = shpDs(i).radius;
        add(lblDs(i));
    }
}

void frmOptions::layOutBack() {
    shpBack.id = "shpBack";
    add(shpBack);
    lblBack(0).caption = symbols::kArrowLeft;
    lblBack(0).textColor = kPale;
    lblBack(0).role = lblBack(1).role = LabelRole::Button;
    add(lblBack(0));
    lblBack(1).textColor = rgb(250, 30, 30);
    lblBack(1).align = Align::Left;
    lblBack(1).tabStop = false;
    add(lblBack(1));
}

// Where everything stands, in twips.
void frmOptions::arrange(const Sheet& paper) {
    const bool wide = paper.layout == Layout::Wide;
    const Measures m = measuresFor(paper);
    width = paper.width;
    height = paper.height;
    imgBack.place(0, 0, width, height);
    imgBack.drawing = style::kSettingsDrawing;
    imgBack.drawn = {};
    if (!wide)
        drawBelow(imgBack, style::kTallSettingsDrawing, m.backTop + m.box);
    placeViewOnPaper(paper);
    const Twips tilesLeft =
        (width - static_cast<Twips>(kTiles) * m.tilePitch + m.tilePitch - m.tile) / 2;
    for (int i = 0; i < kTiles; ++i) {
        const Twips x = tilesLeft + m.tilePitch * static_cast<Twips>(i);
        lblLetter(i).place(x, m.tilesTop, m.tile, m.tile);
        const Twips y = m.tilesTop + m.tile - kTileLine / 2;
        lnLetter(i).span(x + kTileLine / 2, y, x + m.tile - kTileLine / 2, y);
    }
    const Font words{Face::Display, m.fontSize, true};
    const Font sign{Face::Webdings, m.fontSize + 2, false};
    for (int i = 0; i <= kLastOption; ++i) {
        const Twips y = m.firstRow + m.row * static_cast<Twips>(i);
        shpCheck(i).place(m.left, y, m.box, m.box);
        lblCheck(i).font = sign;
        lblCheck(i).place(m.left, y, m.box, m.box);
        lblOpts(i).font = words;
        lblOpts(i).place(m.left + m.box + 120, y, i == 0 ? 2400 : 6000, m.box);
    }
    const Twips dot = m.box * 0.4F;
    shpCheck(0).place(m.left + (m.box - dot) / 2, m.firstRow + (m.box - dot) / 2, dot, dot);
    const Twips side = m.box + (wide ? 120.F : 60.F);
    const Twips pitch = side + (wide ? 180.F : 120.F);
    for (int i = 0; i <= kLastDesign; ++i) {
        const Twips x = m.left + m.box + (wide ? 2760.F : 2940.F) + pitch * static_cast<Twips>(i);
        const Twips y = m.firstRow + (m.box - side) / 2;
        shpDs(i).place(x, y, side, side);
        lblDs(i).place(x, y, side, side);
        lblDs(i).font.size = m.fontSize;
    }
    shpBack.place(m.left, m.backTop, m.box, m.box);
    lblBack(0).font = {Face::Wingdings, m.fontSize + 2, false};
    lblBack(0).place(m.left, m.backTop, m.box, m.box);
    lblBack(1).font = words;
    lblBack(1).place(m.left + m.box + 120 + kBlank, m.backTop, 2700, m.box);
}

}  // namespace quillor
