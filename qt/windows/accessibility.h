// What labels, pages and dialogs are to a screen reader.
#pragma once

namespace quillor {

/// Tells the toolkit about our own roles; once is enough, more do no harm.
void installAccessibility();

}  // namespace quillor
