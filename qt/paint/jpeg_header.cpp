// Markers are looked for as decoders do: whatever stands between them is skipped.
#include "qt/paint/jpeg_header.h"

#include <algorithm>
#include <optional>

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

}  // namespace quillor
