// Where everything on the inventor stands, in twips.
#include "toolkit/style.h"
#include "toolkit/symbols.h"
#include "topics/inventor.h"

namespace quillor {

void frmInventor::layOut() {
    constexpr int kNameLength = 22;
    constexpr int kPhraseLength = 35;
    constexpr Twips kLeft = 1260;
    constexpr Twips kFieldWidth = 5160;
    constexpr Twips kRight = kLeft + kFieldWidth + 360;
    constexpr Twips kInner = 2 * kFieldWidth + 360;
    constexpr Color kInk = rgb(40, 40, 40);
    width = style::kScreenWidth;
    height = style::kScreenHeight;
    imgBack.id = "imgBack";
    add(imgBack).place(0, 0, width, height);

    const auto shape = [this](Shape& control, const char* id, Twips x, Twips y, Twips w, Twips h) {
        control.id = id;
        control.radius = style::kButtonRadius;
        add(control).place(x, y, w, h);
    };
    const auto label = [this](Label& control, const Font& font, Align align) -> Label& {
        control.font = font;
        control.textColor = kInk;
        control.align = align;
        return add(control);
    };
    const auto button = [this](Label& control, const char* id, const Font& font) -> Label& {
        control.id = id;
        control.font = font;
        control.role = LabelRole::Button;
        return add(control);
    };
    const auto field = [this](TextField& control, const char* id, int length) -> TextField& {
        control.id = id;
        control.font = style::kField;
        control.maxLength = length;
        return add(control);
    };

    shape(shpHead, "shpHead", kLeft, 360, kInner, 960);
    label(lblLabel(0), {Face::Display, 26, true}, Align::Center)
        .place(kLeft + 2400, 360, kInner - 4800, 960);
    shape(shpBack, "shpBack", kLeft + 180, 510, 1920, 660);
    button(lblBack, "lblBack", style::kSmallButton).place(kLeft + 180, 510, 1920, 660);
    shape(shpHelp, "shpHelp", kLeft + kInner - 840, 510, 660, 660);
    button(lblHelp, "lblHelp", {Face::Webdings, 18, false})
        .place(kLeft + kInner - 840, 510, 660, 660);
    lblHelp.caption = symbols::kQuestion;

    label(lblLabel(1), style::kText, Align::Left).place(kLeft, 1500, kFieldWidth, 360);
    field(txtTheme, "txtTheme", kNameLength).place(kLeft, 1890, kFieldWidth, 600);
    label(lblLabel(2), style::kText, Align::Left).place(kRight, 1500, kFieldWidth, 360);
    field(txtFile, "txtFile", kNameLength).place(kRight, 1890, kFieldWidth, 600);
    txtFile.backColor = rgb(224, 224, 224);

    label(lblLabel(3), style::kText, Align::Left).place(kLeft, 2700, kInner - 1560, 360);
    lblCont.id = "lblCont";
    label(lblCont, {Face::Display, 14, true}, Align::Right)
        .place(kLeft + kInner - 1440, 2640, 1440, 420);
    field(txtWord, "txtWord", kPhraseLength).place(kLeft, 3090, kInner - 1560, 660);
    shape(shpAdd, "shpAdd", kLeft + kInner - 1440, 3090, 660, 660);
    button(lblOk, "lblOk", {Face::Wingdings, 18, false})
        .place(kLeft + kInner - 1440, 3090, 660, 660);
    lblOk.caption = symbols::kPlus;
    shape(shpDel, "shpDel", kLeft + kInner - 660, 3090, 660, 660);
    button(lblDel, "lblDel", {Face::Wingdings, 18, false})
        .place(kLeft + kInner - 660, 3090, 660, 660);
    lblDel.caption = symbols::kDelete;

    lstTopics.id = "lstTopics";
    lstTopics.font = style::kField;
    add(lstTopics).place(kLeft, 3930, kInner, 2640);

    shape(shpSave, "shpSave", kLeft, 6780, kInner, 900);
    lblSave(0).role = lblSave(1).role = LabelRole::Button;
    lblSave(0).tabStop = false;
    add(lblSave(0)).place(kLeft, 6780, kInner, 900);
    lblSave(1).font = style::kButton;
    add(lblSave(1)).place(kLeft + 240, 6870, kInner - 480, 720);
}

}  // namespace quillor
