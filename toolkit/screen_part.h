// A part of a large screen: a subject with its own controls and operations.
#pragma once

#include "toolkit/screen.h"

namespace quillor {

/// Adds the part's controls to the screen that it belongs to.
class ScreenPart {
  protected:
    explicit ScreenPart(Screen& screen) : screen_(screen) {}
    ~ScreenPart() = default;
    ScreenPart(const ScreenPart&) = delete;
    ScreenPart& operator=(const ScreenPart&) = delete;

    template <typename... Args>
    decltype(auto) add(Args&&... args) {
        return screen_.add(std::forward<Args>(args)...);
    }

    Screen& screen_;
};

}  // namespace quillor
