// The header decides first, for a few bytes can promise a picture of any size.
#include "qt/paint/picture_loader.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <cmath>
#include <memory>
#include <stdexcept>

#include "core/files.h"
#include "qt/paint/jpeg_header.h"
#include "qt/paint/paper.h"

namespace quillor {

namespace {

constexpr double kMega = 1'000'000;
constexpr double kMostPixels = 100 * kMega;
constexpr double kMostMemory = 256 * kMega;  // bytes, the file's own among them
constexpr std::size_t kMostFileBytes = 64 * 1024 * 1024;
constexpr double kMostScannedPixels = 1000 * kMega;  // some seconds' work
constexpr double kPixelBytes = 4;
constexpr double kDeepPixelBytes = 8;  // of formats with 16 bits for each colour

bool isTooLarge(QSize size) {
    return std::max(size.width(), size.height()) > kLongestPictureEdge;
}

QSize bounded(QSize size) {
    return isTooLarge(size)
               ? size.scaled(kLongestPictureEdge, kLongestPictureEdge, Qt::KeepAspectRatio)
                     .expandedTo(QSize(1, 1))
               : size;
}

double area(QSize size) {
    return static_cast<double>(size.width()) * size.height();
}

bool isDeep(QImage::Format format) {
    return format == QImage::Format_RGBX64 || format == QImage::Format_RGBA64 ||
           format == QImage::Format_RGBA64_Premultiplied;
}

// JPEG alone is scaled while it is decoded, by eighths that are rounded up.
double decodedPixels(const QImageReader& reader) {
    const QSize size = reader.size();
    if (reader.format() != "jpeg" || !isTooLarge(size))
        return area(size);
    const double factor = static_cast<double>(bounded(size).width()) / size.width();
    const double eighths = std::ceil(8 * factor) / 8;
    return area(size) * eighths * eighths;
}

bool isUsable(const QImageReader& reader, std::string_view bytes) {
    const double pixels = area(reader.size());
    const JpegScans jpeg = jpegScans(reader.format() == "jpeg" ? bytes : std::string_view());
    const double pixelBytes = isDeep(reader.imageFormat()) ? kDeepPixelBytes : kPixelBytes;
    const double memory = static_cast<double>(bytes.size()) + static_cast<double>(jpeg.keptBytes) +
                          (decodedPixels(reader) + area(bounded(reader.size()))) * pixelBytes;
    return pixels <= kMostPixels && memory <= kMostMemory &&
           pixels * jpeg.scans <= kMostScannedPixels;
}

QImage decoded(QImageReader& reader) {
    if (isTooLarge(reader.size()))
        reader.setScaledSize(bounded(reader.size()));
    reader.setAutoTransform(true);
    QImage image = reader.read();
    if (image.isNull())
        throw std::runtime_error("no picture: " + reader.errorString().toStdString());
    // Not every format heeds the wish.
    return isTooLarge(image.size()) ? image.scaled(bounded(image.size()), Qt::IgnoreAspectRatio,
                                                   Qt::SmoothTransformation)
                                    : image;
}

}  // namespace

ImageRef loadPictureFile(const Place& file) {
    const std::optional<std::string> bytes = readFile(file, kMostFileBytes);
    if (!bytes)
        return nullptr;
    QBuffer buffer;
    buffer.setData(QByteArray::fromRawData(bytes->data(), static_cast<qsizetype>(bytes->size())));
    buffer.open(QIODevice::ReadOnly);
    QImageReader::setAllocationLimit(static_cast<int>(kMostMemory / kMega));
    QImageReader reader(&buffer);
    if (reader.size().isEmpty())
        throw std::runtime_error("no picture: " + reader.errorString().toStdString());
    if (!isUsable(reader, *bytes))
        return nullptr;
    return std::make_shared<DecodedImage>(decoded(reader));
}

}  // namespace quillor
