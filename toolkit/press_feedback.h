// What a button shows while the mouse holds it down.
#pragma once

#include "toolkit/controls.h"

namespace quillor {

/// While the left button is down on the label, `painted` is in the colour
/// `pressed`, after it in `atRest`. All three are referred to: they outlive the
/// label's handlers.
inline void showPress(Label& label, Color& painted, const Color& pressed, const Color& atRest) {
    label.onMouseDown = [&painted, &pressed] { painted = pressed; };
    label.onMouseUp = [&painted, &atRest] { painted = atRest; };
}

}  // namespace quillor
