// Which control of a shown screen the keys go to, and the order in which Tab goes
// through them.
#pragma once

#include <vector>

#include "toolkit/screen.h"

namespace quillor {

/// One for each screen that is shown. The focus stays where it is while the screen is
/// disabled, or while a box or another window has the keys.
class Focus {
  public:
    explicit Focus(Screen& screen) : screen_(screen) {}

    /// Null: none; keys go to the screen alone.
    Control* control() const { return control_; }
    /// The same as what it is; null when it is of another kind.
    template <typename T>
    T* as() const {
        return screen_.as<T>(control_);
    }

    /// After each event: grants the screen's wish, and leaves a control that can no
    /// longer be used, or none, for the screen's first choice.
    void settle();
    /// The player has chosen a control by the mouse. Nothing happens at one that cannot be used.
    void take(Control& control);
    /// Tab: on to the next control in reading order, and round. What is in a field that
    /// is entered so is selected.
    void next() { step(1); }
    void previous() { step(-1); }

  private:
    void moveTo(Control* control);
    void step(int by);

    Screen& screen_;
    Control* control_ = nullptr;
};

/// The buttons, fields and lists that take Tab now: row by row from the top, each row
/// from the left.
std::vector<Control*> readingOrder(const Screen& screen);

}  // namespace quillor
