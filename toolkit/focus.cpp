// A field is told when it gets the focus and when it loses it.
#include "toolkit/focus.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace quillor {

namespace {

// Handlers that wish the focus to and fro for ever must not hang the program.
constexpr int kMostMoves = 8;

struct Stop {
    Control* control;
    Area area;
};

bool takesTab(const ControlRef& ref) {
    if (auto* const* label = std::get_if<Label*>(&ref))
        return isButton(**label) && (*label)->tabStop && isPressable(**label);
    return (std::holds_alternative<TextField*>(ref) || std::holds_alternative<ListBox*>(ref)) &&
           isUsable(controlOf(ref));
}

bool isAbove(const Stop& a, const Stop& b) {
    return std::tuple(a.area.top, a.area.left) < std::tuple(b.area.top, b.area.left);
}

bool isLeft(const Stop& a, const Stop& b) {
    return std::tuple(a.area.left, a.area.top) < std::tuple(b.area.left, b.area.top);
}

// Beside each other, not below: their tops differ by no more than half the height of
// the one that is less high.
bool sameRow(const Stop& a, const Stop& b) {
    return std::abs(a.area.top - b.area.top) <= std::min(a.area.height, b.area.height) / 2;
}

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

std::vector<Control*> readingOrder(const Screen& screen) {
    std::vector<Stop> stops;
    for (const ControlRef& ref : screen.controls())
        if (takesTab(ref))
            stops.push_back({&controlOf(ref), areaOnScreen(controlOf(ref))});
    std::sort(stops.begin(), stops.end(), isAbove);
    for (auto row = stops.begin(); row != stops.end();) {
        const auto next =
            std::find_if(row, stops.end(), [&](const Stop& stop) { return !sameRow(*row, stop); });
        std::sort(row, next, isLeft);
        row = next;
    }
    std::vector<Control*> order;
    order.reserve(stops.size());
    for (const Stop& stop : stops)
        order.push_back(stop.control);
    return order;
}

}  // namespace quillor
