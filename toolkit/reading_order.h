// The order in which Tab goes through a screen.
#pragma once

#include <vector>

#include "toolkit/screen.h"

namespace quillor {

/// The buttons, fields and lists that take Tab now: row by row from the top, each row
/// from the left.
std::vector<Control*> readingOrder(const Screen& screen);

}  // namespace quillor
