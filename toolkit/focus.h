// Which control of a shown screen the keys go to, and the order in which Tab goes
// through them.
#pragma once

#include <map>
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
    /// longer be used for the next one of its group, or for the screen's first choice.
    void settle();
    /// The player has chosen a control by the mouse. Nothing happens at one that cannot be used.
    void take(Control& control);
    /// Tab: on to the next control in reading order, and round. A group is one stop:
    /// that which had the focus last in it, or else its first one. What is in
    /// a field that is entered so is selected.
    void next() { step(1); }
    void previous() { step(-1); }
    /// An arrow key, Home or End, in a group: to the neighbour in its row, round at its
    /// ends, or in the row above or below. False: the focus is in no group, or it is
    /// another key.
    bool moveInGroup(int keyCode);
    /// Whether arrow keys move the focus.
    bool hasArrows() const { return control_ != nullptr && control_->group != 0; }

  private:
    void moveTo(Control* control);
    void step(int by);
    Control* heir(const Control& lost) const;
    Control* entry(Control& member) const;

    Screen& screen_;
    Control* control_ = nullptr;
    std::map<int, Control*> last_;  // of each group, what had the focus
};

/// The buttons, fields and lists that take Tab now: row by row from the top, each row
/// from the left.
std::vector<Control*> readingOrder(const Screen& screen);

/// What is told of a screen, in reading order: what has words now, and each button once.
/// Things to be said stand at the end.
std::vector<Control*> spokenOrder(const Screen& screen);

}  // namespace quillor
