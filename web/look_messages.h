// What is seen of each kind of control, in the words of the script.
#pragma once

#include "toolkit/scheme.h"
#include "toolkit/shown_control.h"
#include "web/messages.h"

namespace quillor {

/// One object for its look. `inked` is of labels and lines.
void tellLook(Messages& messages, const ControlRef& ref, const ShownControl& shown,
              const Inked& inked, const Scheme& scheme);

/// What the script has to know of a control before it makes an element for it.
void tellKind(Messages& messages, const ControlRef& ref);

/// The colours that boxes, menus, fields, lists and the paper have in a scheme.
void tellColors(Messages& messages, const Scheme& scheme, Color accent);

}  // namespace quillor
