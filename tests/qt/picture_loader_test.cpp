// Pictures of any size and kind, files that are none, and the pages behind the screens:
// ruled paper, what is drawn on it, a player's picture.
#include "qt/paint/picture_loader.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <memory>
#include <stdexcept>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "qt/paint/paper.h"
#include "qt/windows/qt_values.h"
#include "tests/support/faulty_disk.h"
#include "tests/support/temp_folder.h"
#include "toolkit/style.h"

namespace quillor {
namespace {

using testing::TempFolder;

QSize sizeOf(const ImageRef& image) {
    return static_cast<const DecodedImage&>(*image).image.size();
}

std::string encoded(const QImage& picture, const char* format, bool progressive = false) {
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    writer.write(picture);
    return buffer.data().toStdString();
}

QImage filled(int width, int height, QImage::Format format = QImage::Format_RGB32) {
    QImage picture(width, height, format);
    picture.fill(Qt::red);
    return picture;
}

// A small JPEG file whose header claims another size.
std::string claiming(int width, int height, bool progressive) {
    std::string bytes = encoded(filled(16, 16), "jpg", progressive);
    const std::size_t frame = bytes.find(progressive ? "\xFF\xC2" : "\xFF\xC0");
    int value = height;
    for (const std::size_t field : {frame + 5, frame + 7}) {
        bytes[field] = static_cast<char>(value / 256);
        bytes[field + 1] = static_cast<char>(value % 256);
        value = width;
    }
    return bytes;
}

// In kilobytes, at its highest so far.
long memoryUsed() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

class PictureLoader : public ::testing::Test {
  protected:
    ImageRef load(std::string_view bytes) {
        folder.write("Pic.jpg", bytes);
        return loadPictureFile(folder / "Pic.jpg");
    }
    TempFolder folder;
};

TEST_F(PictureLoader, DecodesAPictureWhateverItsNameSays) {
    for (const char* format : {"png", "jpg", "bmp"})
        EXPECT_EQ(sizeOf(load(encoded(filled(30, 20), format))), QSize(30, 20)) << format;
}

TEST_F(PictureLoader, RefusesWhatIsNoPicture) {
    EXPECT_THROW(load(""), std::runtime_error);
    EXPECT_THROW(load("\xFF\xD8\xFF garbage after a promising start"), std::runtime_error);
    EXPECT_THROW(loadPictureFile(folder / "missing.jpg"), std::runtime_error);
    EXPECT_THROW(loadPictureFile(folder.path()), std::runtime_error);
}

TEST_F(PictureLoader, RefusesAFileThatCannotBeReadToItsEnd) {
    folder.write("Pic.jpg", encoded(filled(30, 20), "jpg"));
    testing::FaultyDisk disk;
    disk.breakDown(testing::FaultyDisk::Operation::Read, 2);
    EXPECT_THROW(loadPictureFile({folder / "Pic.jpg", disk}), std::runtime_error);
}

TEST_F(PictureLoader, ScalesAVeryWidePictureDownWhileReading) {
    const QSize size = sizeOf(load(encoded(filled(20000, 500, QImage::Format_Grayscale8), "jpg")));
    EXPECT_EQ(size.width(), kLongestPictureEdge);
    EXPECT_NEAR(size.height(), 102, 1);
}

TEST_F(PictureLoader, TakesAJpegOfManyMegapixels) {
    EXPECT_EQ(sizeOf(load(encoded(filled(8000, 6000), "jpg"))),
              QSize(kLongestPictureEdge, kLongestPictureEdge * 3 / 4));
}

TEST_F(PictureLoader, HasNoUseForMoreThanAHundredMegapixels) {
    const long before = memoryUsed();
    EXPECT_EQ(load(claiming(20000, 20000, true)), nullptr);
    EXPECT_EQ(load(claiming(10001, 10000, false)), nullptr);
    EXPECT_LT(memoryUsed() - before, 50'000);
}

TEST_F(PictureLoader, HasNoUseForAProgressivePictureThatIsKeptWholeWhileDecoded) {
    EXPECT_EQ(load(claiming(9000, 9000, true)), nullptr);
}

TEST_F(PictureLoader, HasNoUseForWhatOnlyManyScansTellAndHoldsUpNobody) {
    std::string bytes = claiming(4000, 4000, true);
    const std::size_t scan = bytes.find("\xFF\xDA");
    const std::string scans = bytes.substr(scan, bytes.size() - scan - 2);
    for (int i = 0; i < 100; ++i)
        bytes.insert(scan, scans);
    EXPECT_EQ(load(bytes), nullptr);
}

TEST_F(PictureLoader, HasNoUseForAPictureThatTakesTooMuchMemoryInItsFormat) {
    // A bitmap's header promising 9,000 by 9,000 pixels, and nothing behind it.
    std::string bytes = encoded(filled(1, 1), "bmp");
    for (const std::size_t field : {18, 22}) {
        bytes[field] = '\x28';
        bytes[field + 1] = '\x23';
    }
    EXPECT_EQ(load(bytes), nullptr);
}

TEST_F(PictureLoader, HasNoUseForAnEnormousFile) {
    folder.write("Pic.jpg", encoded(filled(30, 20), "jpg"));
    std::filesystem::resize_file(folder / "Pic.jpg", 65 << 20);
    EXPECT_EQ(loadPictureFile(folder / "Pic.jpg"), nullptr);
}

TEST(JpegHeader, TellsWhatAProgressiveFileKeeps) {
    const JpegScans found = jpegScans(claiming(1000, 1000, true));
    EXPECT_GE(found.keptBytes, 3'000'000U);  // two colours of a quarter of the samples
    EXPECT_LE(found.keptBytes, 6'000'000U);  // or of all
    EXPECT_GT(found.scans, 2);
}

TEST(JpegHeader, TellsOfNothingKeptInOneScan) {
    EXPECT_EQ(jpegScans(claiming(1000, 1000, false)).keptBytes, 0U);
}

TEST(JpegHeader, TakesAnyBytes) {
    const std::string bytes = claiming(1000, 1000, true);
    for (std::size_t size = 0; size <= bytes.size(); ++size)
        EXPECT_LE(jpegScans(std::string_view(bytes).substr(0, size)).keptBytes, 6'000'000U);
    EXPECT_EQ(jpegScans("no picture at all").keptBytes, 0U);
}

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

TEST(Paper, PaintedInPartsLooksAsItDoesAsAWhole) {
    for (const char* drawing : {"", style::kMenuDrawing})
        for (const double density : {1.0, 2.0}) {
            PaperCache papers;
            const PaperCache::Wish wish{nullptr, drawing, kSize, density, kPixelsPerTwip, {}, 7};
            const QImage whole = papers.filling(wish).toImage();
            QImage parts(whole.size(), whole.format());
            parts.setDevicePixelRatio(density);
            QPainter painter(&parts);
            for (const QRect& part :
                 {QRect(0, 0, 100, 270), QRect(100, 0, 340, 81), QRect(100, 81, 340, 189)}) {
                painter.setClipRect(part);
                papers.paint(painter, part, wish);
            }
            painter.end();
            EXPECT_EQ(parts, whole) << drawing << density;
        }
}

TEST(Paper, IsPaintedOnceForControlsOfOneSize) {
    PaperCache papers;
    const PaperCache::Wish wish{nullptr, style::kIdleDrawing, kSize, 1, kPixelsPerTwip, {}};
    EXPECT_EQ(papers.filling(wish).cacheKey(), papers.filling(wish).cacheKey());
}

}  // namespace

}  // namespace quillor
