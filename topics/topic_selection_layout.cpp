// Where everything on the topic selection screen stands, in twips.
#include "toolkit/symbols.h"
#include "topics/entry_style.h"
#include "topics/topic_selection.h"

namespace quillor {

void frmWord2::layOut() {
    constexpr Twips kInner = entry::kWidth - 960;
    width = entry::kWidth;
    height = 6600;
    imgBack.id = "imgBack";
    add(imgBack).place(0, 0, width, height);
    shpFond.id = "shpFond";
    shpFond.radius = style::kButtonRadius;
    add(shpFond).place(240, 240, width - 480, height - 480);

    lstTopics.id = "lstTopics";
    lstTopics.font = style::kField;
    add(lstTopics).place(480, 480, kInner, 3540);

    lblSelect.id = "lblSelect";
    lblSelect.font = style::kText;
    lblSelect.textColor = entry::kPale;
    lblSelect.align = Align::Left;
    add(lblSelect).place(480, 4230, 1920, 540);
    lblOpt.id = "lblOpt";
    lblOpt.caption = texts::kSelectionModes.front().spanish;
    lblOpt.font = style::kBarText;
    lblOpt.textColor = entry::kPale;
    add(lblOpt).place(3060, 4230, 3000, 540);
    for (int i = 0; i <= 1; ++i) {
        const Twips left = i == 0 ? 2460 : 6060;
        Shape& frame = shpChng(i);
        frame.filled = false;
        frame.borderColor = entry::kPale;
        frame.borderWidth = 30;
        add(frame).place(left, 4200, 600, 600);
        Label& arrow = lblChng(i);
        arrow.caption = i == 0 ? symbols::kTriangleLeft : symbols::kTriangleRight;
        arrow.font = {Face::Webdings, 16, false};
        arrow.textColor = entry::kPale;
        arrow.toolTip = texts::kChangeModeTip;
        arrow.role = LabelRole::Button;
        add(arrow).place(left, 4200, 600, 600);
    }

    shpOk.id = "shpOk";
    add(shpOk).place(480, 5100, kInner, 960);
    entry::styleAccept(shpOk, lblOk(0), lblOk(1));
    add(lblOk(0)).place(480, 5100, kInner, 960);
    add(lblOk(1)).place(720, 5220, kInner - 480, 720);
}

}  // namespace quillor
