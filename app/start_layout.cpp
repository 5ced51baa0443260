// Where everything on the start screen stands, in twips.
#include "app/start_screen.h"
#include "toolkit/style.h"

namespace quillor {

namespace {
constexpr Twips kWidth = 7860;
constexpr Twips kHeight = 4500;
}  // namespace

void frmStart::layOut() {
    title = texts::kProgramName;

    add(imgBack(0)).place(0, 0, kWidth, kHeight);
    layOutTitle();
    lnGo.id = "lnGo";
    lnGo.thickness = 60;
    lnGo.span(1920, 2820, 1950, 2820);
    add(lnGo);
    layOutFontPanel();

    tmrBar.id = "tmrBar";
    tmrBar.interval = 20;
    tmrBar.enabled = true;
    add(tmrBar);
    fit(kWideSheet.width, kWideSheet.height);
}

// It stands in the middle of either sheet, with the same room for the name and the line.
void frmStart::arrange(const Sheet& paper) {
    width = kWidth;
    height = kHeight;
    const bool wide = paper.layout == Layout::Wide;
    lblMarca.font.size = wide ? 9 : 11;
    lblManual.font.size = wide ? 11 : 14;
    lblAction.font.size = wide ? 12 : 15;
    lblEsc.font.size = wide ? 12 : 15;
}

// The end of the name slides out from behind the title frame, which shows the
// same picture as the screen and so seems not to be there.
void frmStart::layOutTitle() {
    lblSub.id = "lblSub";
    lblSub.caption = u"or";
    lblSub.font = {Face::Display, 60, true};
    lblSub.align = Align::Left;
    add(lblSub).place(3000, 870, 1440, 1440);
    frmeTitle.id = "frmeTitle";
    add(frmeTitle).place(0, 840, 4470, 1740);
    add(imgBack(1), &frmeTitle).place(0, -840, kWidth, kHeight);
    lblName.id = "lblName";
    lblName.caption = u"Quill";
    lblName.font = lblSub.font;
    lblName.textColor = rgb(40, 40, 40);
    lblName.align = Align::Right;
    add(lblName, &frmeTitle).place(1050, 30, 3420, 1440);
    lblMarca.id = "lblMarca";
    lblMarca.caption = texts::kMakers;
    lblMarca.font = {Face::Display, 9, true};
    lblMarca.textColor = style::kFaint;
    lblMarca.align = Align::Left;
    add(lblMarca, &frmeTitle).place(1980, 1470, 2460, 240);
}

void frmStart::layOutFontPanel() {
    frmeFont.id = "frmeFont";
    frmeFont.visible = false;
    frmeFont.opaque = true;
    frmeFont.backColor = rgb(250, 250, 250);
    add(frmeFont).place(0, 3000, kWidth, 1500);
    lblManual.id = "lblManual";
    lblManual.font = {Face::Plain, 11, false};
    lblManual.textColor = rgb(40, 40, 40);
    lblManual.wordWrap = true;
    add(lblManual, &frmeFont).place(600, 120, kWidth - 1200, 480);
    shpAction.id = "shpAction";
    shpAction.filled = false;
    shpAction.backColor = rgb(200, 200, 200);
    shpAction.borderColor = rgb(20, 140, 220);
    shpAction.borderWidth = 30;
    shpAction.radius = style::kButtonRadius;
    add(shpAction, &frmeFont).place(2220, 720, 3420, 540);
    lblAction.id = "lblAction";
    lblAction.font = {Face::Plain, 12, true};
    lblAction.textColor = rgb(20, 100, 170);
    lblAction.role = LabelRole::Button;
    add(lblAction, &frmeFont).place(2220, 720, 3420, 540);

    lblEsc.id = "lblEsc";
    lblEsc.caption = symbols::kCross;
    lblEsc.font = {Face::Webdings, 12, false};
    lblEsc.textColor = rgb(90, 90, 90);
    lblEsc.backColor = rgb(200, 200, 200);
    lblEsc.role = LabelRole::Button;
    add(lblEsc, &frmeFont).place(kWidth - 480, 120, 360, 360);
    layOutView({240, 810, 1020, 360}, rgb(90, 90, 90), &frmeFont);
}

}  // namespace quillor
