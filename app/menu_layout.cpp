// Where everything on the main menu stands, in twips.
#include "app/menu_screen.h"
#include "toolkit/style.h"

namespace quillor {

void frmMenu::layOut() {
    constexpr Twips kButtonWidth = 5160;
    constexpr Twips kButtonHeight = 930;
    constexpr Twips kPitch = 1230;
    constexpr Twips kLeft = (style::kScreenWidth - kButtonWidth) / 2;
    constexpr Twips kTop = 2580;
    width = style::kScreenWidth;
    height = style::kScreenHeight;

    imgBack.id = "imgBack";
    imgBack.drawing = style::kMenuDrawing;
    add(imgBack).place(0, 0, width, height);

    lblWelcome.id = "lblWelcome";
    lblWelcome.font = {Face::Display, 44, true};
    lblWelcome.textColor = rgb(40, 40, 40);
    add(lblWelcome).place(kLeft, 1080, kButtonWidth, 1080);

    for (int i = 0; i < kOptions; ++i) {
        const Twips top = kTop + static_cast<Twips>(i) * kPitch;
        Shape& face = shpOption(i + kFirstButton);
        face.radius = style::kButtonRadius;
        add(face).place(kLeft, top, kButtonWidth, kButtonHeight);
        Label& button = lblOption(i + kFirstButton);
        button.role = LabelRole::Button;
        button.cornerRadius = style::kButtonRadius;
        add(button).place(kLeft, top, kButtonWidth, kButtonHeight);
        Label& caption = lblOption(i);
        caption.font = style::kButton;
        caption.textColor = rgb(250, 250, 250);
        caption.role = LabelRole::Button;
        caption.cornerRadius = style::kButtonRadius;
        caption.tabStop = false;  // the button behind it is the one to tab to
        add(caption).place(kLeft + 240, top + 180, kButtonWidth - 480, kButtonHeight - 360);
    }
}

}  // namespace quillor
