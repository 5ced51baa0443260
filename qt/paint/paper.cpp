#include "qt/paint/paper.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillor {

namespace {

constexpr std::size_t kKeptCopies = 4;
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

QPixmap notebook(QSize pixels, const PaperCache::Wish& wish) {
    QPixmap page(pixels);
    const QRectF drawn(wish.drawn.topLeft() * wish.density, wish.drawn.size() * wish.density);
    QPainter painter(&page);
    paintNotebook(painter, page.rect(), drawn.top(), wish.pixelsPerTwip * wish.density);
    paintDrawing(painter, wish.drawing, drawn.isNull() ? page.rect() : drawn.toRect());
    return page;
}

const QImage& pixelsOf(const ImageRef& image) {
    return static_cast<const DecodedImage&>(*image).image;
}

}  // namespace

const QPixmap& PaperCache::filling(const Wish& wish) {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.wish == wish; });
    if (found != entries_.end()) {
        entries_.splice(entries_.begin(), entries_, found);
        return entries_.front().pixmap;
    }
    const QSize pixels = (QSizeF(wish.size) * wish.density).toSize().expandedTo(QSize(1, 1));
    QPixmap pixmap = wish.image ? cropped(pixelsOf(wish.image), pixels) : notebook(pixels, wish);
    pixmap.setDevicePixelRatio(wish.density);
    entries_.push_front({wish, std::move(pixmap)});
    if (entries_.size() > kKeptCopies)
        entries_.pop_back();
    return entries_.front().pixmap;
}

void paintNotebook(QPainter& painter, const QRectF& area, double top, double pixelsPerTwip) {
    painter.fillRect(area, kPaperColor);
    const double pen = std::max(1.0, std::round(kPen * pixelsPerTwip));
    const double pitch = kRulePitch * pixelsPerTwip;
    const double first = top + kFirstRule * pixelsPerTwip;
    const double start = first + std::ceil((area.top() - pen - first) / pitch) * pitch;
    for (double y = start; y < area.bottom(); y += pitch)
        painter.fillRect(QRectF(area.left(), std::round(y), area.width(), pen),
                         QColor(223, 233, 244));
    const auto margin = [&](double twips, const QColor& color) {
        const double x = std::round(area.left() + twips * pixelsPerTwip);
        painter.fillRect(QRectF(x, area.top(), pen, area.height()), color);
    };
    margin(kMargin, QColor(245, 207, 207));
    margin(kMargin + 3 * kPen, QColor(248, 224, 223));
}

}  // namespace quillor
