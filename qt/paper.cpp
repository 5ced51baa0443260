#include "qt/paper.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillor {

namespace {

constexpr std::size_t kKeptCopies = 4;
constexpr double kSquare = 300;   // twips, of the notebook's ruling
constexpr double kMargin = 1200;  // twips, from the left edge to the margin line

QPixmap cropped(const QImage& image, QSize size) {
    const QImage scaled =
        image.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QPoint corner((scaled.width() - size.width()) / 2, (scaled.height() - size.height()) / 2);
    return QPixmap::fromImage(scaled.copy(QRect(corner, size)));
}

QPixmap notebook(QSize size, double density, double pixelsPerTwip) {
    QPixmap page(size);
    QPainter painter(&page);
    paintNotebook(painter, QRectF(QPointF(), QSizeF(size)), {}, pixelsPerTwip * density);
    return page;
}

const QImage& pixelsOf(const ImageRef& image) {
    return static_cast<const DecodedImage&>(*image).image;
}

}  // namespace

const QPixmap& PaperCache::filling(const ImageRef& image, QSize size, double density,
                                   double pixelsPerTwip) {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.image == image && entry.size == size && entry.density == density &&
               entry.pixelsPerTwip == pixelsPerTwip;
    });
    if (found != entries_.end()) {
        entries_.splice(entries_.begin(), entries_, found);
        return entries_.front().pixmap;
    }
    const QSize pixels = (QSizeF(size) * density).toSize().expandedTo(QSize(1, 1));
    QPixmap pixmap =
        image ? cropped(pixelsOf(image), pixels) : notebook(pixels, density, pixelsPerTwip);
    pixmap.setDevicePixelRatio(density);
    entries_.push_front({image, size, density, pixelsPerTwip, std::move(pixmap)});
    if (entries_.size() > kKeptCopies)
        entries_.pop_back();
    return entries_.front().pixmap;
}

void paintNotebook(QPainter& painter, const QRectF& area, QPointF origin, double pixelsPerTwip) {
    painter.fillRect(area, QColor(253, 253, 250));
    const double square = kSquare * pixelsPerTwip;
    const double pen = std::max(1.0, std::round(15 * pixelsPerTwip));
    const QColor ruling(226, 234, 244);
    const auto first = [&](double from, double start) {
        return start + std::ceil((from - start) / square) * square;
    };
    for (double x = first(area.left(), origin.x()); x < area.right(); x += square)
        painter.fillRect(QRectF(std::round(x), area.top(), pen, area.height()), ruling);
    for (double y = first(area.top(), origin.y()); y < area.bottom(); y += square)
        painter.fillRect(QRectF(area.left(), std::round(y), area.width(), pen), ruling);
    const double margin = std::round(origin.x() + kMargin * pixelsPerTwip);
    painter.fillRect(QRectF(margin, area.top(), 2 * pen, area.height()), QColor(246, 206, 206));
}

QColor averageColor(const ImageRef& image) {
    return pixelsOf(image)
        .scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .pixelColor(0, 0);
}

}  // namespace quillor
