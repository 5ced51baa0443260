// Where everything on the settings screen stands, in twips.
#include "toolkit/style.h"
#include "ui/settings_screen.h"

namespace quillor {

namespace {

constexpr Color kInk = rgb(40, 40, 40);
constexpr Color kPale = rgb(250, 250, 250);
constexpr Twips kLeft = 3240;
constexpr Twips kFirstRow = 2520;
constexpr Twips kRow = 900;
constexpr Twips kBox = 600;
constexpr Twips kBlank = 90;  // that the options' captions begin with

}  // namespace

void frmOptions::layOut() {
    width = style::kScreenWidth;
    height = style::kScreenHeight;
    imgBack.id = "imgBack";
    imgBack.drawing = style::kSettingsDrawing;
    add(imgBack).place(0, 0, width, height);
    layOutView(style::kViewPlace, style::kFaint);
    layOutTiles();
    layOutOptions();
    layOutDesigns();
    layOutBack();
}

void frmOptions::layOutTiles() {
    constexpr Twips kTile = 900;
    constexpr Twips kTilePitch = 1080;
    constexpr Twips kTilesLeft = (style::kScreenWidth - 7 * kTilePitch + kTilePitch - kTile) / 2;
    constexpr Twips kTilesTop = 840;
    constexpr Twips kLine = 60;
    add(lnLetter);
    add(lblLetter);
    for (int i = 0; i <= kLastTile; ++i) {
        const Twips x = kTilesLeft + kTilePitch * static_cast<Twips>(i);
        lblLetter(i).font = {Face::Display, 40, true};
        lblLetter(i).place(x, kTilesTop, kTile, kTile);
        lnLetter(i).thickness = kLine;
        const Twips y = kTilesTop + kTile - kLine / 2;
        lnLetter(i).span(x + kLine / 2, y, x + kTile - kLine / 2, y);
    }
}

void frmOptions::layOutOptions() {
    for (int i = 0; i <= kLastOption; ++i) {
        const Twips y = kFirstRow + kRow * static_cast<Twips>(i);
        add(shpCheck(i)).place(kLeft, y, kBox, kBox);
        Label& box = lblCheck(i);
        box.font = {Face::Webdings, 20, false};
        box.textColor = kPale;
        box.cornerRadius = shpCheck(i).radius;
        box.role = i == 0 ? LabelRole::Plain : LabelRole::CheckBox;
        add(box).place(kLeft, y, kBox, kBox);
        Label& words = lblOpts(i);
        words.font = {Face::Display, 18, true};
        words.textColor = kInk;
        words.align = Align::Left;
        words.role = i == 0 ? LabelRole::Plain : LabelRole::Button;
        words.tabStop = false;
        add(words).place(kLeft + 720, y, i == 0 ? 2400 : 6000, kBox);
    }
    // The heading's box never holds a tick: it is a mere dot.
    shpCheck(0).kind = ShapeKind::Oval;
    shpCheck(0).place(kLeft + 180, kFirstRow + 180, kBox - 360, kBox - 360);
}

void frmOptions::layOutDesigns() {
    for (int i = 0; i <= kLastDesign; ++i) {
        const Twips x = kLeft + 3360 + 900 * static_cast<Twips>(i);
        shpDs(i).borderColor = style::kEdge;
        add(shpDs(i)).place(x, kFirstRow - 60, 720, 720);
        lblDs(i).caption = Text(1, static_cast<char16_t>(u'1' + i));
        lblDs(i).font = {Face::Display, 18, true};
        lblDs(i).textColor = kPale;
        lblDs(i).role = LabelRole::RadioButton;
        lblDs(i).cornerRadius = shpDs(i).radius;
        add(lblDs(i)).place(x, kFirstRow - 60, 720, 720);
    }
}

void frmOptions::layOutBack() {
    shpBack.id = "shpBack";
    add(shpBack).place(kLeft, 7080, kBox, kBox);
    lblBack(0).caption = symbols::kArrowLeft;
    lblBack(0).font = {Face::Wingdings, 20, false};
    lblBack(0).textColor = kPale;
    lblBack(0).role = lblBack(1).role = LabelRole::Button;
    add(lblBack(0)).place(kLeft, 7080, kBox, kBox);
    lblBack(1).font = {Face::Display, 18, true};
    lblBack(1).textColor = rgb(250, 30, 30);
    lblBack(1).align = Align::Left;
    lblBack(1).tabStop = false;
    add(lblBack(1)).place(kLeft + 720 + kBlank, 7080, 2700, kBox);
}

}  // namespace quillor
