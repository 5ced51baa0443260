// Pictures ready to be painted: a player's own, or the program's notebook page.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSize>
#include <list>

#include "toolkit/controls.h"

namespace quillor {

/// What is inside an Image.
class DecodedImage : public Image {
  public:
    explicit DecodedImage(QImage pixels) : image(std::move(pixels)) {}
    const QImage image;
};

/// Scaled copies of pictures. Several controls of one size share one copy.
class PaperCache {
  public:
    /// The image cropped to fill `size` (logical pixels), or the notebook page
    /// for a null image.
    const QPixmap& filling(const ImageRef& image, QSize size, double density, double pixelsPerTwip);

  private:
    struct Entry {
        ImageRef image;
        QSize size;
        double density;
        double pixelsPerTwip;
        QPixmap pixmap;
    };
    std::list<Entry> entries_;  // the one used last is in front
};

/// Paints the notebook page over `area`; its top left corner is `origin`.
void paintNotebook(QPainter& painter, const QRectF& area, QPointF origin, double pixelsPerTwip);

/// The colour that an image has on average.
QColor averageColor(const ImageRef& image);

}  // namespace quillor
