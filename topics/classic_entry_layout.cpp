// Where everything on the classic entry screen stands, in twips.
#include "topics/classic_entry.h"

namespace quillor {

void frmWord1::layOut() {
    constexpr int kPhraseLength = 35;
    constexpr int kTopicLength = 22;
    layOutPanel(4920);

    const auto field = [&](TextField& text, const char* id, Label& label, Twips top, int length) {
        label.font = style::kText;
        label.textColor = kPale;
        label.align = Align::Left;
        add(label).place(kEdge, top, kInner, 360);
        text.id = id;
        text.font = style::kField;
        text.maxLength = length;
        add(text).place(kEdge, top + 420, kInner, 600);
    };
    field(txtWord, "txtWord", lblSelect(1), 480, kPhraseLength);
    field(txtTheme, "txtTheme", lblSelect(0), 1740, kTopicLength);

    layOutAccept(3300);
}

}  // namespace quillor
