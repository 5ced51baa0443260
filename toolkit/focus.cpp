// A field is told when it gets the focus and when it loses it.
#include "toolkit/focus.h"

#include <algorithm>

#include "toolkit/reading_order.h"

namespace quillor {

namespace {

// Handlers that wish the focus to and fro for ever must not hang the program.
constexpr int kMostMoves = 8;

}  // namespace

void Focus::settle() {
    for (int moves = 0; screen_.enabled && moves < kMostMoves; ++moves) {
        Control* wanted = screen_.takeFocusRequest();
        if (!wanted || !isUsable(*wanted))
            wanted = control_;
        if (!wanted || !isUsable(*wanted))
            wanted = screen_.initialFocus();
        if (wanted && !isUsable(*wanted))
            wanted = nullptr;
        if (wanted == control_)
            return;
        moveTo(wanted);
    }
}

void Focus::take(Control& control) {
    if (screen_.enabled && isUsable(control))
        moveTo(&control);
}

void Focus::moveTo(Control* control) {
    if (control == control_)
        return;
    auto* left = as<TextField>();
    control_ = control;
    if (left)
        screen_.focusChanged(*left, false);
    if (auto* entered = as<TextField>(); entered && control_ == control)
        screen_.focusChanged(*entered, true);
}

void Focus::step(int by) {
    const std::vector<Control*> order = readingOrder(screen_);
    if (order.empty())
        return;
    const int count = static_cast<int>(order.size());
    const auto current = std::find(order.begin(), order.end(), control_);
    int to = by > 0 ? 0 : count - 1;
    if (current != order.end())
        to = (static_cast<int>(current - order.begin()) + by + count) % count;
    Control* control = order[static_cast<std::size_t>(to)];
    if (auto* field = screen_.as<TextField>(control); field && control != control_)
        field->selectAll();
    moveTo(control);
}

}  // namespace quillor
