// The order in which Tab goes through a window.
#pragma once

#include <vector>

namespace quillor {

class ControlView;

/// The controls that take Tab, row by row from the top, each row from the left.
std::vector<ControlView*> readingOrder(const std::vector<ControlView*>& views);

}  // namespace quillor
