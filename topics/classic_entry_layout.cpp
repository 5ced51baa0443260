// Where everything on the classic entry screen stands, in twips.
#include "topics/classic_entry.h"
#include "topics/entry_style.h"

namespace quillor {

void frmWord1::layOut() {
    constexpr Twips kInner = entry::kWidth - 960;
    constexpr int kPhraseLength = 35;
    constexpr int kTopicLength = 22;
    width = entry::kWidth;
    height = 4920;
    imgBack.id = "imgBack";
    add(imgBack).place(0, 0, width, height);
    shpFond.id = "shpFond";
    shpFond.radius = style::kButtonRadius;
    add(shpFond).place(240, 240, width - 480, height - 480);

    const auto field = [&](TextField& text, const char* id, Label& label, Twips top, int length) {
        label.font = style::kText;
        label.textColor = entry::kPale;
        label.align = Align::Left;
        add(label).place(480, top, kInner, 360);
        text.id = id;
        text.font = style::kField;
        text.maxLength = length;
        add(text).place(480, top + 420, kInner, 600);
    };
    field(txtWord, "txtWord", lblSelect(1), 480, kPhraseLength);
    field(txtTheme, "txtTheme", lblSelect(0), 1740, kTopicLength);

    shpOk.id = "shpOk";
    add(shpOk).place(480, 3300, kInner, 960);
    entry::styleAccept(shpOk, lblOk(0), lblOk(1));
    add(lblOk(0)).place(480, 3300, kInner, 960);
    add(lblOk(1)).place(720, 3420, kInner - 480, 720);
}

}  // namespace quillor
