// Reading picture files.
#pragma once

#include <filesystem>

#include "toolkit/controls.h"

namespace quillor {

/// The longer edge of a picture in memory: no display shows more.
inline constexpr int kLongestPictureEdge = 4096;

/// Decodes a picture, scaled down while it is read where it is too large.
/// Throws std::runtime_error when it cannot be decoded in reasonable memory.
ImageRef loadPictureFile(const std::filesystem::path& file);

}  // namespace quillor
