// Sorted by top edges, cut into rows, and each row sorted by left edges.
#include "toolkit/reading_order.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace quillor {

namespace {

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
    for (const Stop& stop : stops)
        order.push_back(stop.control);
    return order;
}

}  // namespace quillor
