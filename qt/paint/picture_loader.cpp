// The header decides first, for a few bytes can promise a picture of any size.
#include "qt/paint/picture_loader.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <stdexcept>

#include "core/files.h"
#include "qt/paint/paper.h"

namespace quillor {

namespace {

constexpr std::size_t kCoefficientBytes = 2;  // each sample is kept as one coefficient
constexpr unsigned kStartOfScan = 0xDA;

// A marker and what belongs to it.
struct Segment {
    unsigned marker;
    std::string_view body;
};

unsigned at(std::string_view bytes, std::size_t index) {
    return index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0;
}

unsigned wordAt(std::string_view bytes, std::size_t index) {
    return 256 * at(bytes, index) + at(bytes, index + 1);
}

bool standsAlone(unsigned marker) {
    return marker <= 0x01 || (marker >= 0xD0 && marker <= 0xD9) || marker == 0xFF;
}

bool startsFrame(unsigned marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Takes the next segment off the front of the bytes.
std::optional<Segment> nextSegment(std::string_view& bytes) {
    for (;;) {
        const std::size_t mark = bytes.find('\xFF');
        if (mark == std::string_view::npos || mark + 1 >= bytes.size())
            return std::nullopt;
        const unsigned marker = at(bytes, mark + 1);
        bytes.remove_prefix(mark + (marker == 0xFF ? 1 : 2));
        if (standsAlone(marker))
            continue;
        const Segment segment{marker, bytes.substr(0, wordAt(bytes, 0))};
        bytes.remove_prefix(segment.body.size());
        return segment;
    }
}

unsigned components(const Segment& frame) {
    return at(frame.body, 7);
}

// Each component has its own sampling: for each sample of the finest, or less.
std::size_t samples(const Segment& frame) {
    const std::size_t pixels =
        static_cast<std::size_t>(wordAt(frame.body, 3)) * wordAt(frame.body, 5);
    unsigned finest = 1;
    unsigned all = 0;
    for (unsigned i = 0; i < components(frame); ++i) {
        const unsigned sampling = at(frame.body, 9 + 3 * i);
        const unsigned density = (sampling >> 4) * (sampling & 0xF);
        finest = std::max(finest, density);
        all += density;
    }
    return pixels * all / finest;
}

int countScans(std::string_view bytes) {
    int scans = 0;
    for (std::size_t found = 0; (found = bytes.find("\xFF\xDA", found)) != std::string_view::npos;
         found += 2)
        ++scans;
    return scans;
}

}  // namespace

JpegScans jpegScans(std::string_view bytes) {
    std::string_view rest = bytes;
    std::optional<Segment> frame;
    while (const std::optional<Segment> segment = nextSegment(rest)) {
        if (startsFrame(segment->marker))
            frame = segment;
        if (segment->marker != kStartOfScan || !frame)
            continue;
        const bool progressive = frame->marker % 4 == 2;
        if (progressive || at(segment->body, 2) < components(*frame))
            return {samples(*frame) * kCoefficientBytes, countScans(bytes)};
        break;
    }
    return {};
}

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
