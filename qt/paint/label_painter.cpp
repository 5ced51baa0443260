#include "qt/paint/label_painter.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPaintDevice>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/text_rules.h"
#include "qt/paint/symbol_painter.h"
#include "qt/windows/qt_values.h"
#include "toolkit/contrast.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr int kSmallestFont = 6;  // pixels: smaller text is clipped instead
constexpr double kDisabledOpacity = 0.5;

int alignment(const LabelLook& look) {
    int flags = Qt::AlignVCenter | Qt::TextDontClip;
    if (!look.literal)
        flags |= Qt::TextShowMnemonic;
    if (look.wordWrap)
        flags |= Qt::TextWordWrap;
    switch (look.align) {
        case Align::Left:
            return flags | Qt::AlignLeft;
        case Align::Right:
            return flags | Qt::AlignRight;
        case Align::Center:
            break;
    }
    return flags | Qt::AlignHCenter;
}

bool isOneLine(int flags, const QString& text) {
    return (flags & Qt::TextWordWrap) == 0 && !text.contains('\n');
}

// What is drawn of one line, its baseline at 0; the same for most texts of a font.
QRectF inkOfLine(const QFontMetricsF& metrics, const QString& text) {
    return metrics.tightBoundingRect(QStringLiteral("\u00c1\u00d1Q")) |
           metrics.tightBoundingRect(text);
}

// One line may be taller than its label, as long as its ink is not.
bool fits(const QFont& font, const QRectF& rect, int flags, const QString& text) {
    const QFontMetricsF metrics(font);
    const QRectF needed = metrics.boundingRect(rect, flags, text);
    if (needed.width() > rect.width() + 0.5)
        return false;
    const double height =
        isOneLine(flags, text) ? inkOfLine(metrics, text).height() : needed.height();
    return height <= rect.height() + 0.5;
}

QFont fitted(QFont font, const QRectF& rect, int flags, const QString& text) {
    while (font.pixelSize() > kSmallestFont && !fits(font, rect, flags, text))
        font.setPixelSize(std::min(font.pixelSize() - 1, font.pixelSize() * 19 / 20));
    return font;
}

// A line that is taller than its label is moved so that neither an accent nor
// the tail of a Q is cut off.
QRectF placeOfText(const QFont& font, const QRectF& rect, int flags, const QString& text) {
    const QFontMetricsF metrics(font);
    if (!isOneLine(flags, text) || metrics.height() <= rect.height())
        return rect;
    const double baseline = (metrics.ascent() - metrics.descent()) / 2;
    return rect.translated(0, -inkOfLine(metrics, text).center().y() - baseline);
}

QRectF placeOfSymbol(const QRectF& rect, Align align, double size) {
    size = std::min({size, rect.width(), rect.height()});
    QRectF box(0, 0, size, size);
    box.moveCenter(rect.center());
    if (align == Align::Left)
        box.moveLeft(rect.left());
    if (align == Align::Right)
        box.moveRight(rect.right());
    return box;
}

/// A caption where it stands in its label, in a colour to be chosen.
class Caption {
  public:
    Caption(const QRectF& rect, const LabelLook& look, const QFont& font)
        : face_(look.font.face), text_(toQt(look.caption).replace("\r\n", "\n")) {
        flags_ = alignment(look);
        symbol_ = isSymbolFace(face_);
        font_ = symbol_ ? font : fitted(font, rect, flags_, text_);
        place_ = symbol_ ? placeOfSymbol(rect, look.align, font_.pixelSize())
                         : placeOfText(font_, rect, flags_, text_);
    }

    void draw(QPainter& painter, const QColor& color, QPointF shift = {}) const {
        const QRectF place = place_.translated(shift);
        painter.setFont(font_);
        painter.setPen(color);
        if (symbol_)
            drawSymbol(painter, place, face_, text_.front().unicode(), color);
        else
            painter.drawText(place, flags_, text_);
    }

    // Around every letter. What overlaps is painted on a layer first, so that the
    // edge is equally strong everywhere.
    void drawEdge(QPainter& painter, const QRectF& rect, const Edge& edge) const {
        constexpr int kDirections = 12;
        const double reach = std::max(1.5, font_.pixelSize() / 13.0);
        QImage layer(rect.size().toSize().expandedTo(QSize(1, 1)),
                     QImage::Format_ARGB32_Premultiplied);
        layer.fill(Qt::transparent);
        QPainter onLayer(&layer);
        onLayer.setRenderHint(QPainter::Antialiasing);
        for (int i = 0; i < kDirections; ++i) {
            const double angle = i * 2 * std::numbers::pi / kDirections;
            const QPointF way(reach * std::cos(angle), reach * std::sin(angle));
            draw(onLayer, toQt(edge.color), way - rect.topLeft());
        }
        onLayer.end();
        painter.setOpacity(edge.share);
        painter.drawImage(rect.topLeft(), layer);
        painter.setOpacity(1);
    }

  private:
    Face face_;
    bool symbol_ = false;
    QString text_;
    int flags_ = 0;
    QFont font_;
    QRectF place_;
};

void paintCaption(QPainter& painter, const QRectF& place, const LabelLook& look,
                  const QFont& font) {
    const Caption caption(place, look, font);
    if (!look.enabled) {
        painter.setOpacity(look.fades ? kDisabledOpacity : 1);
        caption.draw(painter, toQt(look.textColor));
        return;
    }
    const double needed = look.needed > 0 ? look.needed : contrastNeeded(look.font);
    const Edge edge = edgeFor(look.textColor, look.grounds, needed);
    if (edge.share > 0)
        caption.drawEdge(painter, place, edge);
    caption.draw(painter, toQt(look.textColor));
}

}  // namespace

LabelLook lookOf(const Label& label) {
    return {.caption = label.caption,
            .literal = label.literal,
            .font = label.font,
            .textColor = label.textColor,
            .backColor = label.backColor,
            .opaque = label.opaque,
            .cornerRadius = label.cornerRadius,
            .align = label.align,
            .wordWrap = label.wordWrap,
            .enabled = label.enabled};
}

void paintLabel(QPainter& painter, const QRectF& rect, const LabelLook& look, const FontBook& fonts,
                double pixelsPerTwip) {
    painter.setRenderHint(QPainter::Antialiasing);
    if (look.opaque) {
        const double radius = static_cast<double>(look.cornerRadius) * pixelsPerTwip;
        painter.setPen(Qt::NoPen);
        painter.setBrush(toQt(look.backColor));
        painter.drawRoundedRect(rect, radius, radius);
    }
    if (look.caption.empty())
        return;
    // Sizes of fonts are whole numbers: of the display's own pixels, which are the finest.
    const double density = painter.device()->devicePixelRatioF();
    painter.save();
    painter.scale(1 / density, 1 / density);
    const QRectF place(rect.topLeft() * density, rect.size() * density);
    paintCaption(painter, place, look, fonts.font(look.font, pixelsPerTwip * density));
    painter.restore();
}

QFont drawnFont(const QRectF& rect, const LabelLook& look, const FontBook& fonts,
                double pixelsPerTwip) {
    return fitted(fonts.font(look.font, pixelsPerTwip), rect, alignment(look),
                  toQt(look.caption).replace("\r\n", "\n"));
}

double fineLine(double pixelsPerTwip) {
    return std::max(1.0, 15 * pixelsPerTwip);
}

void paintFocusRing(QPainter& painter, const QRectF& rect, double radius, double pixelsPerTwip) {
    const double line = fineLine(pixelsPerTwip);
    const QRectF place = rect.adjusted(2 * line, 2 * line, -2 * line, -2 * line);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(1);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 4 * line));
    painter.drawRoundedRect(place, radius, radius);
    painter.setPen(QPen(toQt(style::kInk), 2 * line));
    painter.drawRoundedRect(place, radius, radius);
}

void paintField(QPainter& painter, const QRectF& rect, const FieldLook& look, bool focused,
                double pixelsPerTwip) {
    const double inset = fineLine(pixelsPerTwip) / 2;
    const double corner = static_cast<double>(look.radius) * pixelsPerTwip;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(toQt(look.edge), 2 * inset));
    painter.setBrush(toQt(look.face));
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), corner, corner);
    if (focused)
        paintFocusRing(painter, rect, corner, pixelsPerTwip);
}

}  // namespace quillor
