// Looks, wiring and texts of what both screens have.
#include "topics/entry_screen.h"

#include "toolkit/style.h"

namespace quillor {

EntryScreen::EntryScreen(const std::string& screenName, Program& program)
    : ProgramScreen(screenName, program) {}

void EntryScreen::layOutPanel(Twips screenHeight) {
    width = kWidth;
    height = screenHeight;
    imgBack.id = "imgBack";
    add(imgBack).place(0, 0, width, height);
    shpFond.id = "shpFond";
    shpFond.radius = style::kButtonRadius;
    add(shpFond).place(240, 240, width - 480, height - 480);
}

void EntryScreen::layOutAccept(Twips top) {
    shpOk.id = "shpOk";
    shpOk.radius = style::kButtonRadius;
    add(shpOk).place(kEdge, top, kInner, 960);
    lblOk(0).role = lblOk(1).role = LabelRole::Button;
    lblOk(0).tabStop = false;
    add(lblOk(0)).place(kEdge, top, kInner, 960);
    lblOk(1).font = style::kButton;
    lblOk(1).textColor = kPale;
    lblOk(1).cornerRadius = style::kButtonRadius;
    add(lblOk(1)).place(kEdge + 240, top + 120, kInner - 480, 720);
    enableAccept(false);
}

// In the panel's last line.
void EntryScreen::layOutView() {
    constexpr Twips kButton = 1020;
    const Twips top = shpOk.bottom() + 60;
    ProgramScreen::layOutView({kEdge + kInner - kButton, top, kButton, 360}, kPale);
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
