// Pictures ready to be painted: a player's own, or the program's notebook page.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QRectF>
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
        QRectF drawn;  // where the drawing lies, logical pixels; null: all over

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

/// Paints the notebook page over `area`. Its rules lie as on a page that begins at
/// `top`; the margin's lines keep to the left edge of `area`.
void paintNotebook(QPainter& painter, const QRectF& area, double top, double pixelsPerTwip);

}  // namespace quillor
