// The pages behind the screens: ruled paper, what is drawn on it, a player's picture.
#include "qt/paint/paper.h"

#include <memory>

#include <gtest/gtest.h>

#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr QSize kSize(440, 270);
constexpr double kPixelsPerTwip = 1.0 / 30;

QImage page(const ImageRef& image, const char* drawing) {
    PaperCache papers;
    return papers.filling({image, drawing, kSize, 1, kPixelsPerTwip}).toImage();
}

ImageRef picture(QSize size) {
    QImage pixels(size, QImage::Format_RGB32);
    pixels.fill(qRgb(200, 180, 40));
    return std::make_shared<DecodedImage>(pixels);
}

TEST(Paper, CarriesEveryDrawing) {
    const QImage plain = page(nullptr, "");
    for (const char* drawing : {style::kMenuDrawing, style::kIdleDrawing, style::kSettingsDrawing})
        EXPECT_NE(page(nullptr, drawing), plain) << drawing;
}

TEST(Paper, IsPlainWhenADrawingIsNotThere) {
    EXPECT_EQ(page(nullptr, "no such drawing"), page(nullptr, ""));
}

TEST(Paper, GivesWayToThePlayersPicture) {
    const ImageRef own = picture(kSize);
    EXPECT_EQ(page(own, style::kMenuDrawing), page(own, ""));
}

TEST(Paper, FillsEveryDensity) {
    PaperCache papers;
    const QPixmap& sharp = papers.filling({nullptr, style::kMenuDrawing, kSize, 2, kPixelsPerTwip});
    EXPECT_EQ(sharp.size(), kSize * 2);
    EXPECT_EQ(sharp.devicePixelRatio(), 2);
}

TEST(Paper, IsPaintedOnceForControlsOfOneSize) {
    PaperCache papers;
    const PaperCache::Wish wish{nullptr, style::kIdleDrawing, kSize, 1, kPixelsPerTwip};
    EXPECT_EQ(papers.filling(wish).cacheKey(), papers.filling(wish).cacheKey());
}

}  // namespace

}  // namespace quillor
