// The text rules of core/ joined to the record, the boxes and the clipboard.
#include "app/shared_operations.h"

#include "core/text_rules.h"

namespace quillor {

int ePasteText(Program& program, TextView text, TextView selected, int caret) {
    PastedText pasted = ePasteText(text, selected, caret, program.desktop.clipboard());
    program.settings.gsTextResult = std::move(pasted.text);
    return pasted.caret;
}

void eCopyToClipboard(Program& program, TextView text) {
    program.desktop.setClipboard(text);
}

void eRestartGame(Program& program, Screen& caller) {
    if (Screen* start = program.find(ScreenId::Start))
        program.close(*start);
    program.show(ScreenId::Start);
    program.close(caller);
}

}  // namespace quillor
