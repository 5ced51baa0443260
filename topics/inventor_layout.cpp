// Where everything on the inventor stands, in twips, and its words.
#include "core/text_rules.h"
#include "toolkit/style.h"
#include "topics/inventor.h"

namespace quillor {

namespace {

constexpr int kPhraseLength = 35;
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
    imgBack.id = "imgBack";
    add(imgBack);
    layOutView({}, kInk);
    add(styled(shpHead, "shpHead"));
    add(styled(lblLabel(0), {Face::Display, 26, true}, Align::Center));
    add(styled(shpBack, "shpBack"));
    add(asButton(lblBack, "lblBack", style::kSmallButton));
    add(styled(shpOpen, "shpOpen"));
    add(asButton(lblOpen, "lblOpen", style::kSmallButton));
    add(styled(shpHelp, "shpHelp"));
    add(asButton(lblHelp, "lblHelp", {Face::Webdings, 18, false}, symbols::kQuestion));

    add(styled(lblLabel(1), style::kText, Align::Left));
    add(styled(txtTheme, "txtTheme", kNameLength));
    add(styled(lblLabel(2), style::kText, Align::Left));
    add(styled(txtFile, "txtFile", kNameLength));
    txtFile.backColor = rgb(224, 224, 224);

    constexpr Font kSign{Face::Wingdings, 18, false};
    add(styled(lblLabel(3), style::kText, Align::Left));
    lblCont.id = "lblCont";
    add(styled(lblCont, {Face::Display, 14, true}, Align::Right));
    add(styled(txtWord, "txtWord", kPhraseLength));
    add(styled(shpAdd, "shpAdd"));
    add(asButton(lblOk, "lblOk", kSign, symbols::kPlus));
    add(styled(shpDel, "shpDel"));
    add(asButton(lblDel, "lblDel", kSign, symbols::kDelete));
    lstTopics.id = "lstTopics";
    add(lstTopics);
    lblHint.id = "lblHint";
    lblHint.literal = true;
    add(styled(lblHint, style::kText, Align::Left));
    lblHint.textColor = style::kFaint;

    add(styled(shpSave, "shpSave"));
    lblSave(0).role = lblSave(1).role = LabelRole::Button;
    lblSave(1).tabStop = false;
    lblSave(0).cornerRadius = style::kButtonRadius;
    add(lblSave(0));
    add(lblSave(1));
    fit(kWideSheet.width, kWideSheet.height);
}

// Where everything stands, in twips: the two names beside each other, or below.
void frmInventor::arrange(const Sheet& paper) {
    const bool wide = paper.layout == Layout::Wide;
    width = paper.width;
    height = paper.height;
    imgBack.place(0, 0, width, height);
    const Twips left = wide ? 1260 : 300;
    const Twips inner = width - 2 * left;
    setFonts(wide ? 1 : 1.3F);
    lblView.place(wide ? 120 : 240, wide ? 360 : 180, wide ? 1020 : 1380, 540);
    arrangeHead(left, inner, wide ? Area{0, 360, 1920, 660} : Area{0, 840, 1980, 960});
    if (wide) {
        const Twips column = (inner - 360) / 2;
        arrangeField(lblLabel(1), txtTheme, {left, 1500, column, 990});
        arrangeField(lblLabel(2), txtFile, {left + column + 360, 1500, column, 990});
        arrangePhrases({left, 2700, inner, 3990}, 660);
        arrangeSave({left, 6780, inner, 900});
    } else {
        const Twips save = height - 300 - 1200;
        arrangeField(lblLabel(1), txtTheme, {left, 2340, inner, 1320});
        arrangeField(lblLabel(2), txtFile, {left, 3840, inner, 1320});
        arrangePhrases({left, 5340, inner, save - 120 - 5340}, 960);
        arrangeSave({left, save, inner, 1200});
    }
}

void frmInventor::setFonts(float larger) {
    for (Label* label : {&lblLabel(1), &lblLabel(2), &lblLabel(3), &lblHint})
        label->font.size = style::kText.size * larger;
    lblOpen.font.size = style::kSmallButton.size * larger;
    for (TextField* field : {&txtTheme, &txtFile, &txtWord})
        field->font.size = style::kField.size * larger;
    lstTopics.font = style::kField;
    lstTopics.font.size *= larger;
    lblView.font.size = lblBack.font.size = lblCont.font.size = style::kSmallButton.size * larger;
    lblSave(1).font = style::kButton;
    lblSave(1).font.size *= larger;
}

void frmInventor::arrangeHead(Twips left, Twips inner, const Area& back) {
    constexpr Twips kInset = 150;
    const Twips top = back.top;
    const Twips button = back.height;
    const Twips high = button + 2 * kInset;
    shpHead.place(left, top, inner, high);
    const auto put = [&](Shape& face, Label& label, Twips x, Twips wide) {
        face.place(x, top + kInset, wide, button);
        label.place(x, top + kInset, wide, button);
    };
    put(shpBack, lblBack, left + kInset + 30, back.width);
    const Twips help = left + inner - kInset - 30 - button;
    const Twips open = help - 120 - back.width * 0.72F;
    put(shpOpen, lblOpen, open, back.width * 0.72F);
    put(shpHelp, lblHelp, help, button);
    // In the middle, where there is room for that.
    const Twips beside = left + back.width + 2 * kInset;
    const Twips middle = 2 * (open - kInset - left - inner / 2);
    if (middle > 3000)
        lblLabel(0).place(left + (inner - middle) / 2, top, middle, high);
    else
        lblLabel(0).place(beside, top, open - kInset - beside, high);
}

void frmInventor::arrangeField(Label& words, TextField& field, const Area& area) {
    constexpr Twips kWords = 360;
    words.place(area.left, area.top, area.width, kWords);
    field.place(area.left, area.top + kWords + 30, area.width, area.height - kWords - 30);
}

void frmInventor::arrangePhrases(const Area& area, Twips button) {
    const Twips add = area.right() - 2 * button - 120;
    const Twips field = area.top + 390;
    lblLabel(3).place(area.left, area.top, add - area.left - 120, 360);
    lblCont.place(add, area.top - 60, area.right() - add, 420);
    txtWord.place(area.left, field, add - area.left - 120, button);
    shpAdd.place(add, field, button, button);
    lblOk.place(add, field, button, button);
    shpDel.place(area.right() - button, field, button, button);
    lblDel.place(area.right() - button, field, button, button);
    const Twips list = field + button + 180;
    const Twips hint = area.bottom() - 420;
    lstTopics.place(area.left, list, area.width, hint - 120 - list);
    lblHint.place(area.left, hint, area.width, 360);
}

void frmInventor::arrangeSave(const Area& area) {
    shpSave.place(area.left, area.top, area.width, area.height);
    lblSave(0).place(area.left, area.top, area.width, area.height);
    lblSave(1).place(area.left + 240, area.top + 90, area.width - 480, area.height - 180);
}

void frmInventor::eTranslate() {
    title = texts::kInventorTitle;
    lblBack.caption = program_.lang(texts::kBack);
    lblBack.toolTip = program_.lang(texts::kBackTip);
    lblOpen.caption = program_.lang(texts::kOpen);
    lblOpen.toolTip = program_.lang(texts::kOpenTip);
    lblHelp.toolTip = program_.lang(texts::kInventorHelpTip);
    lblHelp.spokenName = program_.lang(texts::kSpokenHelp);
    lblLabel(0).caption = program_.lang(texts::kInventorHeading);
    lblLabel(1).caption = program_.lang(texts::kTopicNameLabel);
    lblLabel(2).caption = program_.lang(texts::kFileNameLabel);
    lblLabel(3).caption = program_.lang(texts::kAddPhrasesLabel);
    txtTheme.spokenName = program_.lang(texts::kSpokenTopicName);
    txtFile.spokenName = program_.lang(texts::kSpokenFileName);
    lblCont.toolTip = program_.lang(texts::kCounterTip);
    txtWord.toolTip = program_.lang(texts::kPhraseToAddTip);
    txtWord.spokenName = program_.lang(texts::kSpokenPhraseToAdd);
    lblOk.toolTip = program_.lang(texts::kAddTip);
    lblOk.spokenName = program_.lang(texts::kSpokenAdd);
    lblDel.toolTip = program_.lang(texts::kDeleteTip);
    lblDel.spokenName = program_.lang(texts::kSpokenDelete);
    lstTopics.toolTip = program_.lang(texts::kPhrasesTip);
    lstTopics.spokenName = program_.lang(texts::kSpokenPhrases);
    lblSave(1).caption = program_.lang(texts::kSave);
    lblSave(0).spokenName = replaceAll(lblSave(1).caption, u"&&", u"&");
}

}  // namespace quillor
