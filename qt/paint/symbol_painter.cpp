// Every symbol as paths in the unit square.
#include "qt/paint/symbol_painter.h"

#include <QPainterPath>
#include <initializer_list>
#include <map>

#include "toolkit/style.h"

namespace quillor {

namespace {

// A picture in the unit square: what is stroked and what is filled.
struct Symbol {
    QPainterPath strokes;
    QPainterPath filled;
    double pen = 0.13;
};

QPainterPath polyline(std::initializer_list<QPointF> points, bool closed = false) {
    QPainterPath path(*points.begin());
    for (const QPointF& point : points)
        path.lineTo(point);
    if (closed)
        path.closeSubpath();
    return path;
}

QPainterPath crossIn(const QRectF& box) {
    QPainterPath path = polyline({box.topLeft(), box.bottomRight()});
    path.addPath(polyline({box.topRight(), box.bottomLeft()}));
    return path;
}

Symbol loudspeaker() {
    Symbol symbol;
    symbol.pen = 0.08;
    symbol.filled = polyline(
        {{0.06, 0.37}, {0.22, 0.37}, {0.46, 0.16}, {0.46, 0.84}, {0.22, 0.63}, {0.06, 0.63}}, true);
    return symbol;
}

Symbol loudspeakerOn() {
    Symbol symbol = loudspeaker();
    for (const double radius : {0.19, 0.36}) {
        const QRectF circle(0.5 - radius, 0.5 - radius, 2 * radius, 2 * radius);
        symbol.strokes.arcMoveTo(circle, -48);
        symbol.strokes.arcTo(circle, -48, 96);
    }
    return symbol;
}

Symbol loudspeakerOff() {
    Symbol symbol = loudspeaker();
    symbol.strokes = crossIn(QRectF(0.6, 0.36, 0.28, 0.28));
    return symbol;
}

Symbol question() {
    Symbol symbol;
    symbol.strokes.moveTo(0.3, 0.34);
    symbol.strokes.cubicTo(0.3, 0.04, 0.72, 0.04, 0.72, 0.32);
    symbol.strokes.cubicTo(0.72, 0.5, 0.5, 0.46, 0.5, 0.66);
    symbol.filled.addEllipse(QPointF(0.5, 0.86), 0.06, 0.06);
    return symbol;
}

Symbol bin() {
    Symbol symbol;
    symbol.pen = 0.08;
    symbol.strokes = polyline({{0.16, 0.26}, {0.84, 0.26}});
    symbol.strokes.addPath(polyline({{0.38, 0.24}, {0.4, 0.12}, {0.6, 0.12}, {0.62, 0.24}}));
    symbol.strokes.addPath(polyline({{0.24, 0.28}, {0.3, 0.88}, {0.7, 0.88}, {0.76, 0.28}}));
    symbol.strokes.addPath(polyline({{0.42, 0.42}, {0.43, 0.72}}));
    symbol.strokes.addPath(polyline({{0.58, 0.42}, {0.57, 0.72}}));
    return symbol;
}

Symbol magnifier() {
    Symbol symbol;
    symbol.pen = 0.11;
    symbol.strokes.addEllipse(QPointF(0.42, 0.42), 0.27, 0.27);
    symbol.strokes.addPath(polyline({{0.63, 0.63}, {0.88, 0.88}}));
    return symbol;
}

Symbol stroked(const QPainterPath& path) {
    return {path, {}, 0.13};
}

// The pen rounds the corners of a filled figure too.
Symbol filled(const QPainterPath& path) {
    return {path, path, 0.1};
}

Symbol plus() {
    QPainterPath path = polyline({{0.5, 0.14}, {0.5, 0.86}});
    path.addPath(polyline({{0.14, 0.5}, {0.86, 0.5}}));
    return stroked(path);
}

Symbol arrowLeft() {
    QPainterPath path = polyline({{0.9, 0.5}, {0.12, 0.5}});
    path.addPath(polyline({{0.44, 0.18}, {0.12, 0.5}, {0.44, 0.82}}));
    return stroked(path);
}

using SymbolKey = std::pair<Face, char16_t>;

std::map<SymbolKey, Symbol> makeSymbols() {
    using namespace symbols;
    constexpr Face web = Face::Webdings;
    constexpr Face wing = Face::Wingdings;
    return {
        {{web, kTick[0]}, stroked(polyline({{0.13, 0.54}, {0.4, 0.8}, {0.87, 0.22}}))},
        {{web, kLoudspeaker[0]}, loudspeakerOn()},
        {{web, kLoudspeakerOff[0]}, loudspeakerOff()},
        {{web, kCross[0]}, stroked(crossIn(QRectF(0.18, 0.18, 0.64, 0.64)))},
        {{web, kQuestion[0]}, question()},
        {{web, kTriangleLeft[0]}, filled(polyline({{0.7, 0.16}, {0.26, 0.5}, {0.7, 0.84}}, true))},
        {{web, kTriangleRight[0]}, filled(polyline({{0.3, 0.16}, {0.74, 0.5}, {0.3, 0.84}}, true))},
        {{web, kMagnifier[0]}, magnifier()},
        {{wing, kArrowLeft[0]}, arrowLeft()},
        {{wing, kPlus[0]}, plus()},
        {{wing, kDelete[0]}, bin()},
    };
}

}  // namespace

void drawSymbol(QPainter& painter, const QRectF& box, Face face, char16_t letter,
                const QColor& color) {
    static const std::map<SymbolKey, Symbol> kSymbols = makeSymbols();
    const auto found = kSymbols.find({face, letter});
    if (found == kSymbols.end())
        return;
    const Symbol& symbol = found->second;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(box.topLeft());
    painter.scale(box.width(), box.height());
    painter.fillPath(symbol.filled, color);
    painter.strokePath(symbol.strokes,
                       QPen(color, symbol.pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}

}  // namespace quillor
