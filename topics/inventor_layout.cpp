// Where everything on the inventor stands, in twips.
#include "toolkit/style.h"
#include "topics/inventor.h"

namespace quillor {

namespace {

constexpr int kPhraseLength = 35;
constexpr Twips kLeft = 1260;
constexpr Twips kFieldWidth = 5160;
constexpr Twips kRight = kLeft + kFieldWidth + 360;
constexpr Twips kInner = 2 * kFieldWidth + 360;
constexpr Color kInk = rgb(40, 40, 40);

Shape& styled(Shape& shape, const char* id) {
    shape.id = id;
    shape.radius = style::kButtonRadius;
    return shape;
}

Label& styled(Label& label, const Font& font, Align align) {
    label.font = font;
    label.textColor = kInk;
    label.align = align;
    return label;
}

Label& asButton(Label& label, const char* id, const Font& font, TextView caption = {}) {
    label.id = id;
    label.font = font;
    label.caption = caption;
    label.role = LabelRole::Button;
    return label;
}

TextField& styled(TextField& field, const char* id, int length) {
    field.id = id;
    field.font = style::kField;
    field.maxLength = length;
    return field;
}

}  // namespace

void frmInventor::layOut() {
    width = style::kScreenWidth;
    height = style::kScreenHeight;
    imgBack.id = "imgBack";
    add(imgBack).place(0, 0, width, height);
    layOutView({120, 360, 1020, 540}, kInk);
    layOutHead();
    layOutNames();
    layOutPhrases();

    add(styled(shpSave, "shpSave")).place(kLeft, 6780, kInner, 900);
    lblSave(0).role = lblSave(1).role = LabelRole::Button;
    lblSave(0).tabStop = false;
    add(lblSave(0)).place(kLeft, 6780, kInner, 900);
    lblSave(1).font = style::kButton;
    add(lblSave(1)).place(kLeft + 240, 6870, kInner - 480, 720);
}

void frmInventor::layOutHead() {
    add(styled(shpHead, "shpHead")).place(kLeft, 360, kInner, 960);
    add(styled(lblLabel(0), {Face::Display, 26, true}, Align::Center))
        .place(kLeft + 2400, 360, kInner - 4800, 960);
    add(styled(shpBack, "shpBack")).place(kLeft + 180, 510, 1920, 660);
    add(asButton(lblBack, "lblBack", style::kSmallButton)).place(kLeft + 180, 510, 1920, 660);
    constexpr Twips kOpen = kLeft + kInner - 2340;
    add(styled(shpOpen, "shpOpen")).place(kOpen, 510, 1380, 660);
    add(asButton(lblOpen, "lblOpen", style::kSmallButton)).place(kOpen, 510, 1380, 660);
    add(styled(shpHelp, "shpHelp")).place(kLeft + kInner - 840, 510, 660, 660);
    add(asButton(lblHelp, "lblHelp", {Face::Webdings, 18, false}, symbols::kQuestion))
        .place(kLeft + kInner - 840, 510, 660, 660);
}

void frmInventor::layOutNames() {
    add(styled(lblLabel(1), style::kText, Align::Left)).place(kLeft, 1500, kFieldWidth, 360);
    add(styled(txtTheme, "txtTheme", kNameLength)).place(kLeft, 1890, kFieldWidth, 600);
    add(styled(lblLabel(2), style::kText, Align::Left)).place(kRight, 1500, kFieldWidth, 360);
    add(styled(txtFile, "txtFile", kNameLength)).place(kRight, 1890, kFieldWidth, 600);
    txtFile.backColor = rgb(224, 224, 224);
}

void frmInventor::layOutPhrases() {
    constexpr Font kSign{Face::Wingdings, 18, false};
    constexpr Twips kAdd = kLeft + kInner - 1440;
    constexpr Twips kDelete = kLeft + kInner - 660;
    add(styled(lblLabel(3), style::kText, Align::Left)).place(kLeft, 2700, kInner - 1560, 360);
    lblCont.id = "lblCont";
    add(styled(lblCont, {Face::Display, 14, true}, Align::Right)).place(kAdd, 2640, 1440, 420);
    add(styled(txtWord, "txtWord", kPhraseLength)).place(kLeft, 3090, kInner - 1560, 660);
    add(styled(shpAdd, "shpAdd")).place(kAdd, 3090, 660, 660);
    add(asButton(lblOk, "lblOk", kSign, symbols::kPlus)).place(kAdd, 3090, 660, 660);
    add(styled(shpDel, "shpDel")).place(kDelete, 3090, 660, 660);
    add(asButton(lblDel, "lblDel", kSign, symbols::kDelete)).place(kDelete, 3090, 660, 660);

    lstTopics.id = "lstTopics";
    lstTopics.font = style::kField;
    add(lstTopics).place(kLeft, 3930, kInner, 2220);
    lblHint.id = "lblHint";
    lblHint.literal = true;
    add(styled(lblHint, style::kText, Align::Left)).place(kLeft, 6270, kInner, 360);
    lblHint.textColor = style::kFaint;
}

}  // namespace quillor
