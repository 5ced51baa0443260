// Scaled while it is read where the format can do that, else held to a limit.
#include "qt/paint/picture_loader.h"

#include <QImageReader>
#include <algorithm>
#include <memory>
#include <stdexcept>

#include "core/files.h"
#include "qt/paint/paper.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

// For formats that can only be scaled once they are decoded whole.
constexpr int kMostMegabytes = 512;

bool isTooLarge(QSize size) {
    return std::max(size.width(), size.height()) > kLongestPictureEdge;
}

QSize bounded(QSize size) {
    return size.scaled(kLongestPictureEdge, kLongestPictureEdge, Qt::KeepAspectRatio)
        .expandedTo(QSize(1, 1));
}

}  // namespace

ImageRef loadPictureFile(const std::filesystem::path& file) {
    QImageReader::setAllocationLimit(kMostMegabytes);
    QImageReader reader(toQt(fromPath(file)));
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    if (isTooLarge(reader.size()))
        reader.setScaledSize(bounded(reader.size()));
    QImage image = reader.read();
    if (image.isNull())
        throw std::runtime_error("no picture: " + reader.errorString().toStdString());
    if (isTooLarge(image.size()))
        image =
            image.scaled(bounded(image.size()), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return std::make_shared<DecodedImage>(std::move(image));
}

}  // namespace quillor
