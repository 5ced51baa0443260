// How a control's widget reaches its screen, for as long as there is one.
#pragma once

#include <utility>

#include "qt/windows/shell.h"
#include "toolkit/focus.h"

namespace quillor {

class ScreenLink {
  public:
    ScreenLink(Shell& shell, Screen& screen) : shell_(shell), screen_(&screen), focus_(screen) {}

    Shell& shell() const { return shell_; }
    /// Not to be asked for anything but its control once the screen is closed.
    Focus& focus() { return focus_; }

    /// Runs `body(screen)` as one event; does nothing once the screen is closed.
    template <typename Body>
    void event(Body&& body) {
        if (screen_)
            shell_.event([&] { std::forward<Body>(body)(*screen_); });
    }

    template <typename Body>
    void keyEvent(Body&& body) {
        if (screen_)
            shell_.keyEvent([&] { std::forward<Body>(body)(*screen_); });
    }

    /// Null once it is closed.
    const Screen* screen() const { return screen_; }
    bool isOpen() const { return screen_ != nullptr; }
    void cut() { screen_ = nullptr; }

  private:
    Shell& shell_;
    Screen* screen_;
    Focus focus_;
};

}  // namespace quillor
