// Operations that several screens share and that need the machine.
#pragma once

#include "app/program.h"

namespace quillor {

/// The web search: what is sought stands behind it.
inline constexpr TextView kSearchEngine = u"http://www.bing.com/search?q=";

/// The clipboard's text in place of every occurrence of the selected text, or
/// at the caret when nothing is selected; the new text is in `gsTextResult`.
/// Returns the new caret position.
int ePasteText(Program& program, TextView text, TextView selected, int caret);

void eCopyToClipboard(Program& program, TextView text);

/// Shows the start screen anew, so that its whole loading sequence runs again,
/// and closes the calling screen.
void eRestartGame(Program& program, Screen& caller);

}  // namespace quillor
