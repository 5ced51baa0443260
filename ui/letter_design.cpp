// An odd design inks in colour; from 2 on, the ink fills the cell.
#include "ui/letter_design.h"

namespace quillor {

void paintLetter(Label& letter, Line& underline, int design, const GameSettings& settings) {
    const bool filled = design >= 2;
    const Color ink = design % 2 == 1 ? settings.glTheme : settings.glBlack;
    underline.color = ink;
    letter.textColor = filled ? settings.glWhite : ink;
    letter.backColor = ink;
    letter.opaque = filled;
}

}  // namespace quillor
