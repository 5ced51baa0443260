// Pictures of any size and kind, and files that are none.
#include "qt/paint/picture_loader.h"

#include <QImage>
#include <algorithm>
#include <stdexcept>

#include <gtest/gtest.h>

#include "qt/paint/paper.h"
#include "tests/support/temp_folder.h"

namespace quillor {

namespace {

using testing::TempFolder;

QSize sizeOf(const ImageRef& image) {
    return static_cast<const DecodedImage&>(*image).image.size();
}

TEST(PictureLoader, DecodesAPictureWhateverItsNameSays) {
    const TempFolder folder;
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.save(QString::fromStdString((folder / "Pic.jpg").string()), "PNG");
    EXPECT_EQ(sizeOf(loadPictureFile(folder / "Pic.jpg")), QSize(30, 20));
}

TEST(PictureLoader, RefusesWhatIsNoPicture) {
    const TempFolder folder;
    folder.write("Pic.jpg", "\xFF\xD8\xFF garbage after a promising start");
    EXPECT_THROW(loadPictureFile(folder / "Pic.jpg"), std::runtime_error);
    EXPECT_THROW(loadPictureFile(folder / "missing.jpg"), std::runtime_error);
    EXPECT_THROW(loadPictureFile(folder.path()), std::runtime_error);
}

TEST(PictureLoader, ScalesAVeryWidePictureDownWhileReading) {
    const TempFolder folder;
    QImage picture(20000, 500, QImage::Format_Grayscale8);
    picture.fill(Qt::gray);
    picture.save(QString::fromStdString((folder / "Pic.jpg").string()), "JPG");
    const QSize size = sizeOf(loadPictureFile(folder / "Pic.jpg"));
    EXPECT_EQ(size.width(), kLongestPictureEdge);
    EXPECT_NEAR(size.height(), 102, 1);
}

TEST(PictureLoader, RefusesASizeThatWouldExhaustTheMemory) {
    const TempFolder folder;
    // A bitmap's header promising 60,000 by 60,000 pixels, and nothing behind it.
    QImage picture(1, 1, QImage::Format_RGB32);
    const QString name = QString::fromStdString((folder / "Pic.jpg").string());
    picture.save(name, "BMP");
    std::string bytes = folder.read("Pic.jpg");
    for (const std::size_t field : {18, 22}) {
        bytes[field] = '\x60';
        bytes[field + 1] = '\xEA';
    }
    folder.write("Pic.jpg", bytes);
    EXPECT_THROW(loadPictureFile(folder / "Pic.jpg"), std::runtime_error);
}

}  // namespace

}  // namespace quillor
