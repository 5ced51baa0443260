// Reading picture files, and what they say of themselves before their pixels.
#pragma once

#include <cstddef>
#include <string_view>

#include "core/disk.h"
#include "toolkit/controls.h"

namespace quillor {

/// What it takes to decode a JPEG file whose pixels come in several scans, as
/// those of a progressive one do: all of them are kept until the last has come.
struct JpegScans {
    std::size_t keptBytes = 0;  // 0: one scan, of which nothing is kept
    int scans = 0;
};

/// Reads any bytes; never fails. A file without a usable header keeps nothing.
JpegScans jpegScans(std::string_view bytes);

/// The longer edge of a picture in memory, in pixels: no display shows more.
inline constexpr int kLongestPictureEdge = 4096;

/// Decodes a picture, scaled down while it is read where it is too large. Null
/// when its header promises more than 100 megapixels, or decoding it would take
/// more than 256 MB or hold up the start. Throws std::runtime_error when it is
/// no picture.
ImageRef loadPictureFile(const Place& file);

}  // namespace quillor
