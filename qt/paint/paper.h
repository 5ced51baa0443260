// Pictures ready to be painted: a player's own, or the program's notebook page.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSize>
#include <list>
#include <string>

#include "toolkit/controls.h"

namespace quillor {

/// Of the notebook page, where nothing is ruled.
inline const QColor kPaperColor(252, 251, 247);

/// What is inside an Image.
class DecodedImage : public Image {
  public:
    explicit DecodedImage(QImage pixels) : image(std::move(pixels)) {}
    const QImage image;
};

/// Scaled copies of pictures. Several controls of one size share one copy.
class PaperCache {
  public:
    /// What decides how a picture looks.
    struct Wish {
        ImageRef image;       // null: the notebook page
        std::string drawing;  // on the notebook page, as in Picture
        QSize size;           // logical pixels
        double density = 1;
        double pixelsPerTwip = 1;

        bool operator==(const Wish&) const = default;
    };
    /// The image cropped to fill its size, or the notebook page with its drawing.
    const QPixmap& filling(const Wish& wish);

  private:
    struct Entry {
        Wish wish;
        QPixmap pixmap;
    };
    std::list<Entry> entries_;  // the one used last is in front
};

/// Paints the notebook page over `area`; its top left corner is `origin`.
void paintNotebook(QPainter& painter, const QRectF& area, QPointF origin, double pixelsPerTwip);

/// The colour that an image has on average.
QColor averageColor(const ImageRef& image);

}  // namespace quillor
