// What a JPEG file says of itself before its pixels.
#pragma once

#include <cstddef>
#include <string_view>

namespace quillor {

/// What it takes to decode a JPEG file whose pixels come in several scans, as
/// those of a progressive one do: all of them are kept until the last has come.
struct JpegScans {
    std::size_t keptBytes = 0;  // 0: one scan, of which nothing is kept
    int scans = 0;
};

/// Reads any bytes; never fails. A file without a usable header keeps nothing.
JpegScans jpegScans(std::string_view bytes);

}  // namespace quillor
