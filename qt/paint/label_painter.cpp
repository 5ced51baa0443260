#include "qt/paint/label_painter.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/text_rules.h"
#include "qt/paint/symbol_painter.h"
#include "qt/windows/qt_values.h"
#include "toolkit/contrast.h"

namespace quillor {

namespace {

constexpr int kSmallestFont = 6;  // pixels: smaller text is clipped instead
constexpr double kDisabledOpacity = 0.45;

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
    return !(flags & Qt::TextWordWrap) && !text.contains('\n');
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

// How much of an outline a text needs on its own ground: 0 none to 1.
double outlineNeed(const LabelLook& look) {
    constexpr double kNone = 2.5;
    constexpr double kFull = 1.9;
    if (!look.opaque)
        return 0;
    return std::clamp((kNone - contrast(look.textColor, look.backColor)) / (kNone - kFull), 0.0,
                      1.0);
}

// A dark edge around every letter, so that a text in a colour too close to its
// ground can still be read.
void paintOutline(QPainter& painter, const QRectF& rect, int flags, const QString& text,
                  double need) {
    constexpr int kDirections = 12;
    const double reach = std::max(1.0, painter.font().pixelSize() / 14.0);
    painter.save();
    painter.setOpacity(painter.opacity() * need);
    painter.setPen(QColor(40, 40, 40));
    for (int i = 0; i < kDirections; ++i) {
        const double angle = i * 2 * std::numbers::pi / kDirections;
        painter.drawText(rect.translated(reach * std::cos(angle), reach * std::sin(angle)), flags,
                         text);
    }
    painter.restore();
}

void paintSymbol(QPainter& painter, const QRectF& rect, const LabelLook& look, double size) {
    size = std::min({size, rect.width(), rect.height()});
    QRectF box(0, 0, size, size);
    box.moveCenter(rect.center());
    if (look.align == Align::Left)
        box.moveLeft(rect.left());
    if (look.align == Align::Right)
        box.moveRight(rect.right());
    drawSymbol(painter, box, look.font.face, look.caption.front(), toQt(look.textColor));
}

}  // namespace

LabelLook lookOf(const Label& label) {
    return {label.caption, label.literal,      label.font,  label.textColor, label.backColor,
            label.opaque,  label.cornerRadius, label.align, label.wordWrap,  label.enabled};
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
    painter.setOpacity(look.enabled ? 1.0 : kDisabledOpacity);
    const QFont font = fonts.font(look.font, pixelsPerTwip);
    if (isSymbolFace(look.font.face)) {
        paintSymbol(painter, rect, look, font.pixelSize());
        return;
    }
    const QString text = toQt(look.caption).replace("\r\n", "\n");
    const int flags = alignment(look);
    painter.setFont(fitted(font, rect, flags, text));
    const QRectF place = placeOfText(painter.font(), rect, flags, text);
    if (const double need = outlineNeed(look); need > 0)
        paintOutline(painter, place, flags, text, need);
    painter.setPen(toQt(look.textColor));
    painter.drawText(place, flags, text);
}

void paintFocusRing(QPainter& painter, const QRectF& rect, double radius) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(1);
    painter.setBrush(Qt::NoBrush);
    const auto ring = [&](double inset, double width, const QColor& color) {
        painter.setPen(QPen(color, width));
        painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius, radius);
    };
    ring(2, 4, QColor(255, 255, 255));
    ring(2, 2, QColor(20, 20, 40));
}

}  // namespace quillor
