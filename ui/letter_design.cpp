// An odd design inks in colour; from 2 on, the ink fills the cell, and the line
// under it is the cell's lower edge.
#include "ui/letter_design.h"

namespace quillor {

namespace {
constexpr Twips kPenShare = 11;  // letters are this often as high as their line is thick
}

void paintLetter(Label& letter, Line& underline, int design, const GameSettings& settings) {
    const bool filled = design >= 2;
    const Color ink = design % 2 == 1 ? settings.glTheme : settings.glBlack;
    const Twips below = letter.bottom() - underline.y1;
    underline.color = ink;
    underline.thickness = filled ? 2 * below : letter.height / kPenShare;
    underline.roundEnds = !filled;
    letter.textColor = filled ? settings.glWhite : ink;
    letter.backColor = ink;
    letter.opaque = filled;
}

}  // namespace quillor
