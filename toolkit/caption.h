// Captions and their access keys: a single "&" marks the letter behind it, "&&" is the
// sign itself.
#pragma once

#include "toolkit/controls.h"

namespace quillor {

/// The character behind the caption's first single "&", in capitals; 0: none.
char16_t accessKey(TextView caption);
/// The caption as it is read: without the marks of access keys.
Text plainCaption(TextView caption);

// The same for a label; one that is literal has no marks.
char16_t accessKey(const Label& label);
Text plainCaption(const Label& label);

}  // namespace quillor
