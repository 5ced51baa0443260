// The pictures that stand for letters of the symbol fonts.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

#include "toolkit/controls.h"

namespace quillor {

inline bool isSymbolFace(Face face) {
    return face == Face::Webdings || face == Face::Wingdings;
}

/// Draws the picture that the letter stands for (see toolkit/symbols.h) into
/// the square `box`; an unknown letter draws nothing.
void drawSymbol(QPainter& painter, const QRectF& box, Face face, char16_t letter,
                const QColor& color);

}  // namespace quillor
