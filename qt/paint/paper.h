// Pictures ready to be painted: a player's own, or the program's notebook page.
#pragma once

#include <QCache>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <array>
#include <string>

#include "toolkit/contrast.h"
#include "toolkit/scheme.h"

namespace quillor {

/// What is inside an Image.
class DecodedImage : public Image {
  public:
    explicit DecodedImage(QImage pixels);
    ColorRange range() const override { return range_; }
    const QImage image;

  private:
    const ColorRange range_;
};

/// Scaled copies of pictures. Several controls of one size share one copy.
class PaperCache {
  public:
    static constexpr int kKeptCopies = 4;

    /// What decides how a picture looks.
    struct Wish {
        ImageRef image;       // null: the notebook page
        std::string drawing;  // on the notebook page, as in Picture
        QSize size;           // logical pixels
        double density = 1;
        double pixelsPerTwip = 1;
        QRectF drawn;     // where the drawing lies, logical pixels; null: all over
        double top = 0;   // where the page's rules begin, logical pixels
        Scheme scheme{};  // in high contrast nothing but plain paper

        bool operator==(const Wish&) const = default;
    };
    /// The image cropped to fill its size, or the notebook page with its drawing.
    /// Stays until the next call.
    const QPixmap& filling(const Wish& wish);
    /// The same painted, as much of it as lies in `part`, logical pixels. Only what takes
    /// its time to draw is kept.
    void paint(QPainter& painter, const QRectF& part, const Wish& wish);
    /// Whoever wants a copy again waits for it again.
    void clear() { copies_.clear(); }

  private:
    QCache<Wish, QPixmap> copies_{kKeptCopies};
};
std::size_t qHash(const PaperCache::Wish& wish, std::size_t seed);

/// Paints the notebook page over `area`. Its rules lie as on a page that begins at
/// `top`; the margin's lines keep to the left edge of `area`.
void paintNotebook(QPainter& painter, const QRectF& area, double top, double pixelsPerTwip,
                   const Scheme& scheme = {});

}  // namespace quillor
