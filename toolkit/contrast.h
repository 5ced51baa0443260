// How well one colour can be told from another.
#pragma once

#include "core/types.h"

namespace quillor {

/// Contrast of two colours as web pages measure it: 1 (the same) to 21 (black
/// on white). Large text needs 3.
double contrast(Color one, Color other);

}  // namespace quillor
