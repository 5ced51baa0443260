#include "qt/paint/paper.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "qt/windows/qt_values.h"
#include "toolkit/contrast.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

// The notebook page, in twips.
constexpr double kPen = 15;
constexpr double kRulePitch = 300;
constexpr double kFirstRule = 180;
constexpr double kMargin = 150;  // from the left edge to the first of the two margin lines

QPixmap cropped(const QImage& image, QSize size) {
    // Cut out first and scaled then: the other way round, a very narrow picture
    // would have to be made enormous.
    QRect part(QPoint(), size.scaled(image.size(), Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    part.moveCenter(image.rect().center());
    return QPixmap::fromImage(
        image.copy(part).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

// A drawing that is not there is left out.
void paintDrawing(QPainter& painter, const std::string& name, const QRect& place) {
    const QImage drawing(":/pictures/" + QString::fromStdString(name) + ".png");
    if (!drawing.isNull())
        painter.drawImage(place.topLeft(), drawing.scaled(place.size(), Qt::IgnoreAspectRatio,
                                                          Qt::SmoothTransformation));
}

QSize pixelsOf(const PaperCache::Wish& wish) {
    return (QSizeF(wish.size) * wish.density).toSize().expandedTo(QSize(1, 1));
}

// In pixels of the display.
void paintPage(QPainter& painter, const PaperCache::Wish& wish) {
    paintNotebook(painter, QRect(QPoint(), pixelsOf(wish)), wish.top * wish.density,
                  wish.pixelsPerTwip * wish.density, wish.scheme);
}

bool isPlain(const PaperCache::Wish& wish) {
    return wish.scheme.isHighContrast() || (!wish.image && wish.drawing.empty());
}

QPixmap notebook(QSize pixels, const PaperCache::Wish& wish) {
    QPixmap page(pixels);
    const QRectF drawn(wish.drawn.topLeft() * wish.density, wish.drawn.size() * wish.density);
    QPainter painter(&page);
    paintPage(painter, wish);
    if (isPlain(wish))
        return page;
    paintDrawing(painter, wish.drawing, drawn.isNull() ? page.rect() : drawn.toRect());
    return page;
}

const QImage& decoded(const ImageRef& image) {
    return static_cast<const DecodedImage&>(*image).image;
}

ColorRange rangeOf(const QImage& image) {
    constexpr int kSpots = 48;  // across and down
    const QImage spots =
        image.scaled(kSpots, kSpots, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    ColorRange range{rgb(255, 255, 255), rgb(0, 0, 0)};
    for (int y = 0; y < spots.height(); ++y)
        for (int x = 0; x < spots.width(); ++x) {
            const QColor pixel = spots.pixelColor(x, y);
            const Color color = rgb(pixel.red(), pixel.green(), pixel.blue());
            if (luminance(color) <= luminance(range[0]))
                range[0] = color;
            if (luminance(color) >= luminance(range[1]))
                range[1] = color;
        }
    return range;
}

}  // namespace

DecodedImage::DecodedImage(QImage pixels) : image(std::move(pixels)), range_(rangeOf(image)) {}

std::size_t qHash(const PaperCache::Wish& wish, std::size_t seed) {
    return qHashMulti(seed, wish.image.get(), QByteArray::fromStdString(wish.drawing),
                      wish.size.width(), wish.size.height(), wish.density, wish.scheme.isUsual(),
                      wish.scheme.isHighContrast());
}

const QPixmap& PaperCache::filling(const Wish& wish) {
    if (const QPixmap* known = copies_.object(wish))
        return *known;
    const QSize pixels = pixelsOf(wish);
    auto made = std::make_unique<QPixmap>(wish.image && !wish.scheme.isHighContrast()
                                              ? cropped(decoded(wish.image), pixels)
                                              : notebook(pixels, wish));
    made->setDevicePixelRatio(wish.density);
    copies_.insert(wish, made.release());
    return *copies_.object(wish);
}

void PaperCache::paint(QPainter& painter, const QRectF& part, const Wish& wish) {
    if (!isPlain(wish)) {
        painter.drawPixmap(part, filling(wish),
                           QRectF(part.topLeft() * wish.density, part.size() * wish.density));
        return;
    }
    painter.save();
    painter.scale(1 / wish.density, 1 / wish.density);
    paintPage(painter, wish);
    painter.restore();
}

void paintNotebook(QPainter& painter, const QRectF& area, double top, double pixelsPerTwip,
                   const Scheme& scheme) {
    const Color paper = scheme.ground(style::kPaper);
    painter.fillRect(area, toQt(paper));
    if (scheme.isHighContrast())
        return;
    // What is printed on it is as faint in the dark as by day.
    const auto printed = [&](Color color) {
        constexpr double kFaint = 0.25;
        return toQt(scheme.isUsual() ? color : mixed(paper, darkEnoughForWhite(color, 3), kFaint));
    };
    const double pen = std::max(1.0, std::round(kPen * pixelsPerTwip));
    const double pitch = kRulePitch * pixelsPerTwip;
    const double first = top + kFirstRule * pixelsPerTwip;
    const double start = first + std::ceil((area.top() - pen - first) / pitch) * pitch;
    for (double y = start; y < area.bottom(); y += pitch)
        painter.fillRect(QRectF(area.left(), std::round(y), area.width(), pen),
                         printed(rgb(223, 233, 244)));
    const auto margin = [&](double twips, Color color) {
        const double x = std::round(area.left() + twips * pixelsPerTwip);
        painter.fillRect(QRectF(x, area.top(), pen, area.height()), printed(color));
    };
    margin(kMargin, rgb(245, 207, 207));
    margin(kMargin + 3 * kPen, rgb(248, 224, 223));
}

}  // namespace quillor
