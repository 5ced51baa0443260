// How labels are drawn: background, caption with its access key, symbol, focus.
#pragma once

#include <QPainter>
#include <QRectF>

#include "qt/paint/font_book.h"
#include "qt/paint/paper.h"
#include "toolkit/controls.h"

namespace quillor {

/// Everything of a label that is seen. It is painted from this copy, never
/// from the label, which may be gone by then.
struct LabelLook {
    Text caption;
    bool literal = false;
    Font font;
    Color textColor = 0;
    Color backColor = 0;
    bool opaque = false;
    Twips cornerRadius = 0;
    Align align = Align::Center;
    bool wordWrap = false;
    bool enabled = true;
    ColorRange grounds{rgb(255, 255, 255), rgb(255, 255, 255)};  // behind it
    bool fades = true;                                           // where it is not enabled
    double needed = 0;  // of contrast to them; 0: as its font needs it

    bool operator==(const LabelLook&) const = default;
};

/// All of it but the grounds.
LabelLook lookOf(const Label& label);

/// Text that does not fit the rectangle is drawn smaller. Where it could not be
/// read on its grounds, its letters get an edge.
void paintLabel(QPainter& painter, const QRectF& rect, const LabelLook& look, const FontBook& fonts,
                double pixelsPerTwip);

/// The font in which a caption, not a symbol, is drawn in that rectangle.
QFont drawnFont(const QRectF& rect, const LabelLook& look, const FontBook& fonts,
                double pixelsPerTwip);

/// The width of fine edges, in pixels: at least 1.
double fineLine(double pixelsPerTwip);

/// A ring inside the rectangle, 4 fine lines wide, that shows on light and on
/// dark ground.
void paintFocusRing(QPainter& painter, const QRectF& rect, double radius, double pixelsPerTwip);

/// The box of fields and lists with its edge, and its ring when it has the focus.
struct FieldLook {
    Twips radius = 0;
    Color face = 0;
    Color edge = 0;
};
void paintField(QPainter& painter, const QRectF& rect, const FieldLook& look, bool focused,
                double pixelsPerTwip);

}  // namespace quillor
