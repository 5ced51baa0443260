// Reading picture files.
#pragma once

#include "core/disk.h"
#include "toolkit/controls.h"

namespace quillor {

/// The longer edge of a picture in memory, in pixels: no display shows more.
inline constexpr int kLongestPictureEdge = 4096;

/// Decodes a picture, scaled down while it is read where it is too large. Null
/// when its header promises more than 100 megapixels, or decoding it would take
/// more than 256 MB or hold up the start. Throws std::runtime_error when it is
/// no picture.
ImageRef loadPictureFile(const Place& file);

}  // namespace quillor
