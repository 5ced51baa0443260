// The pages behind the screens: ruled paper, what is drawn on it, a player's picture.
#include "qt/paint/paper.h"

#include <memory>

#include <gtest/gtest.h>

#include "qt/windows/qt_values.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr QSize kSize(440, 270);
constexpr double kPixelsPerTwip = 1.0 / 30;

QImage page(const ImageRef& image, const char* drawing) {
    PaperCache papers;
    return papers.filling({image, drawing, kSize, 1, kPixelsPerTwip, {}}).toImage();
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
    const QPixmap& sharp =
        papers.filling({nullptr, style::kMenuDrawing, kSize, 2, kPixelsPerTwip, {}});
    EXPECT_EQ(sharp.size(), kSize * 2);
    EXPECT_EQ(sharp.devicePixelRatio(), 2);
}

TEST(Paper, KeepsADrawingInItsPlaceAndGoesOnAroundIt) {
    PaperCache papers;
    const QRect place({90, 60}, kSize);
    const QSize wide(kSize.width() + 180, kSize.height() + 60);
    const auto wish = [&](const char* drawing) {
        return PaperCache::Wish{nullptr, drawing, wide, 1, kPixelsPerTwip, place};
    };
    const QImage drawn = papers.filling(wish(style::kMenuDrawing)).toImage();
    const QImage plain = papers.filling(wish("")).toImage();
    EXPECT_NE(drawn.copy(place), plain.copy(place));
    EXPECT_EQ(drawn.copy(0, 0, place.left(), wide.height()),
              plain.copy(0, 0, place.left(), wide.height()));
    EXPECT_EQ(drawn.copy(place.right() + 1, 0, 90, wide.height()),
              plain.copy(place.right() + 1, 0, 90, wide.height()));
}

TEST(Paper, RulesTheWholeOfAnyShape) {
    PaperCache papers;
    const QImage page =
        papers.filling({nullptr, "", {600, 400}, 1, kPixelsPerTwip, {200, 50, 200, 300}}).toImage();
    constexpr int kRule = 50 + 6;  // the first one on the screen, from its top
    for (const int y : {kRule - 50, kRule, kRule + 300})
        EXPECT_EQ(page.pixelColor(590, y), QColor(223, 233, 244)) << y;
    EXPECT_EQ(page.pixelColor(590, kRule + 5), toQt(style::kPaper));
}

TEST(Paper, IsPaintedOnceForControlsOfOneSize) {
    PaperCache papers;
    const PaperCache::Wish wish{nullptr, style::kIdleDrawing, kSize, 1, kPixelsPerTwip, {}};
    EXPECT_EQ(papers.filling(wish).cacheKey(), papers.filling(wish).cacheKey());
}

}  // namespace

}  // namespace quillor
