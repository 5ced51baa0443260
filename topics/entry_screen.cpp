// Looks, wiring and texts of what such screens have.
#include "topics/entry_screen.h"

#include "toolkit/style.h"

namespace quillor {

EntryScreen::EntryScreen(const std::string& screenName, Program& program)
    : ProgramScreen(screenName, program) {}

void EntryScreen::layOutPanel() {
    imgBack.id = "imgBack";
    add(imgBack);
    shpFond.id = "shpFond";
    shpFond.radius = style::kButtonRadius;
    add(shpFond);
}

void EntryScreen::layOutAccept() {
    shpOk.id = "shpOk";
    shpOk.radius = style::kButtonRadius;
    add(shpOk);
    lblOk(0).role = lblOk(1).role = LabelRole::Button;
    lblOk(0).tabStop = false;
    add(lblOk(0));
    lblOk(1).font = style::kButton;
    lblOk(1).textColor = kPale;
    lblOk(1).cornerRadius = style::kButtonRadius;
    add(lblOk(1));
    enableAccept(false);
}

void EntryScreen::layOutView() {
    ProgramScreen::layOutView({}, kPale);
}

void EntryScreen::arrangePanel(const Sheet& paper) {
    width = paper.width;
    height = paper.height;
    imgBack.place(0, 0, width, height);
    shpFond.place(240, 240, width - 480, height - 480);
}

void EntryScreen::arrangeAccept() {
    const Twips high = 960 * largerOn(sheet());
    const Twips top = height - 780 - high;
    shpOk.place(kEdge, top, kInner, high);
    lblOk(0).place(kEdge, top, kInner, high);
    lblOk(1).font.size = style::kButton.size * largerOn(sheet());
    lblOk(1).place(kEdge + 240, top + 120, kInner - 480, high - 240);
    // In the panel's last line.
    const Twips view = 1020 * largerOn(sheet());
    lblView.font.size = style::kBarText.size * largerOn(sheet());
    lblView.place(kEdge + kInner - view, shpOk.bottom() + 60, view, 360 * largerOn(sheet()));
}

void EntryScreen::connectAccept(const std::function<void()>& handler) {
    for (Label& label : lblOk) {
        label.onClick = handler;
        showPress(label, shpOk.backColor, settings_.glGreen, settings_.glRed);
    }
}

void EntryScreen::translateAccept() {
    lblOk(1).caption = program_.lang(texts::kOk);
    lblOk(0).spokenName = lblOk(1).caption;
}

void EntryScreen::colour() {
    shpFond.backColor = shpFond.borderColor = settings_.glTheme;
    shpOk.backColor = settings_.glRed;
}

void EntryScreen::onKeyDown(KeyEvent& event) {
    if (event.code != key::kEscape)
        return;
    event.handled = true;
    program_.close(*this);
}

}  // namespace quillor
