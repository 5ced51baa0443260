// Where everything on the topic selection screen stands, in twips.
#include "toolkit/symbols.h"
#include "topics/topic_selection.h"

namespace quillor {

void frmWord2::layOut() {
    layOutPanel(6600);
    lstTopics.id = "lstTopics";
    lstTopics.font = style::kField;
    add(lstTopics).place(kEdge, 480, kInner, 3540);
    layOutModes();
    layOutAccept(5100);
}

void frmWord2::layOutModes() {
    constexpr Twips kArrow = 600;
    constexpr Twips kRightArrow = kEdge + kInner - kArrow;  // ends with the list
    lblSelect.id = "lblSelect";
    lblSelect.font = style::kText;
    lblSelect.textColor = kPale;
    lblSelect.align = Align::Left;
    add(lblSelect).place(kEdge, 4230, 1920, 540);
    lblOpt.id = "lblOpt";
    lblOpt.caption = texts::kSelectionModes.front().spanish;
    lblOpt.font = style::kBarText;
    lblOpt.textColor = kPale;
    add(lblOpt).place(3060, 4230, kRightArrow - 3060, 540);
    for (int i = 0; i <= 1; ++i) {
        const Twips left = i == 0 ? 2460 : kRightArrow;
        Shape& frame = shpChng(i);
        frame.filled = false;
        frame.borderColor = kPale;
        frame.borderWidth = 30;
        add(frame).place(left, 4200, kArrow, kArrow);
        Label& arrow = lblChng(i);
        arrow.caption = i == 0 ? symbols::kTriangleLeft : symbols::kTriangleRight;
        arrow.font = {Face::Webdings, 16, false};
        arrow.textColor = kPale;
        arrow.toolTip = texts::kChangeModeTip;
        arrow.role = LabelRole::Button;
        add(arrow).place(left, 4200, kArrow, kArrow);
    }
}

}  // namespace quillor
