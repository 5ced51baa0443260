// Events within events: a timer ticks while a box is open, and a box stands open inside the
// handler that asked for it.
#pragma once

#include <utility>

namespace quillor {

class NestedEvents {
  public:
    template <typename Body>
    void run(Body&& body) {
        ++depth_;
        std::forward<Body>(body)();
        --depth_;
    }

    /// Something that delivers events inside a handler: a box or a menu. Those count as
    /// outermost ones.
    template <typename Body>
    auto modally(Body&& body) {
        const Modal modal(*this);
        return std::forward<Body>(body)();
    }

    bool isModal() const { return base_ > 0; }
    /// Whether none is running that has not opened a box or menu since.
    bool areDone() const { return depth_ <= base_; }
    /// Whether none is running at all.
    bool areIdle() const { return depth_ == 0; }

  private:
    struct Modal {
        explicit Modal(NestedEvents& owner)
            : events(owner), outer(std::exchange(owner.base_, owner.depth_)) {}
        ~Modal() { events.base_ = outer; }
        NestedEvents& events;
        int outer;
    };

    int depth_ = 0;
    int base_ = 0;  // the depth at which the innermost box or menu was opened
};

}  // namespace quillor
