// A field is told when it gets the focus and when it loses it.
#include "toolkit/focus.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>
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
        return takesFocus(**label) && (*label)->tabStop &&
               (isPressable(**label) || (!isButton(**label) && isUsable(**label)));
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

// A caption that a button stands on is one with it, and says nothing of its own.
bool isTold(const ControlRef& ref) {
    if (!isSeen(controlOf(ref)))
        return false;
    auto* const* label = std::get_if<Label*>(&ref);
    if (!label)
        return std::holds_alternative<TextField*>(ref) || std::holds_alternative<ListBox*>(ref);
    const bool named = !(*label)->spokenName.empty() || !plainCaption(**label).empty();
    return named && (*label)->role != LabelRole::Notification &&
           (!isButton(**label) || (*label)->tabStop);
}

template <typename Wanted>
std::vector<Control*> ordered(const Screen& screen, const Wanted& wanted) {
    std::vector<Stop> stops;
    for (const ControlRef& ref : screen.controls())
        if (wanted(ref))
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

// The one in the next row that stands nearest to it; in a single row, and behind the
// last one, its neighbour in reading order, round at the ends.
Control* inNextRow(const std::vector<Control*>& order, Control& from, bool down) {
    const Stop here{&from, areaOnScreen(from)};
    const auto middle = [](const Area& area) { return area.left + area.width / 2; };
    std::optional<Stop> found;
    for (Control* each : order) {
        const Stop stop{each, areaOnScreen(*each)};
        const bool beyond = down ? stop.area.top > here.area.top : stop.area.top < here.area.top;
        if (!beyond || sameRow(here, stop))
            continue;
        const bool other = found && !sameRow(*found, stop);
        const bool nearerRow =
            other && (down ? stop.area.top < found->area.top : stop.area.top > found->area.top);
        const bool nearer = found && !other &&
                            std::abs(middle(stop.area) - middle(here.area)) <
                                std::abs(middle(found->area) - middle(here.area));
        if (!found || nearerRow || nearer)
            found = stop;
    }
    if (found)
        return found->control;
    const auto at = std::find(order.begin(), order.end(), &from) - order.begin();
    const auto count = static_cast<std::ptrdiff_t>(order.size());
    return order[static_cast<std::size_t>((at + (down ? 1 : count - 1)) % count)];
}

// Of each group the first one stands for all, wherever the others are.
std::vector<Control*> tabStops(const Screen& screen) {
    std::set<int> groups;
    std::vector<Control*> stops = readingOrder(screen);
    std::erase_if(stops, [&](const Control* control) {
        return control->group != 0 && !groups.insert(control->group).second;
    });
    return stops;
}

}  // namespace

void Focus::settle() {
    for (int moves = 0; screen_.enabled && moves < kMostMoves; ++moves) {
        Control* wanted = screen_.takeFocusRequest();
        if (!wanted || !isUsable(*wanted))
            wanted = control_;
        if (wanted && !isUsable(*wanted))
            wanted = heir(*wanted);
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
    screen_.focused = control;
    if (control && control->group != 0)
        last_[control->group] = control;
    if (left)
        screen_.focusChanged(*left, false);
    if (auto* entered = as<TextField>(); entered && control_ == control)
        screen_.focusChanged(*entered, true);
}

void Focus::step(int by) {
    const std::vector<Control*> stops = tabStops(screen_);
    if (stops.empty())
        return;
    const int count = static_cast<int>(stops.size());
    const auto current = std::find_if(stops.begin(), stops.end(), [this](const Control* stop) {
        return stop == control_ || (hasArrows() && stop->group == control_->group);
    });
    int to = by > 0 ? 0 : count - 1;
    if (current != stops.end())
        to = (static_cast<int>(current - stops.begin()) + by + count) % count;
    Control* control = entry(*stops[static_cast<std::size_t>(to)]);
    if (auto* field = screen_.as<TextField>(control); field && control != control_)
        field->selectAll();
    moveTo(control);
}

// The one of the group that had the focus last, as long as it can be used.
Control* Focus::entry(Control& member) const {
    const auto last = last_.find(member.group);
    const bool known = member.group != 0 && last != last_.end();
    return known && isUsable(*last->second) ? last->second : &member;
}

// What follows in the group the place of a control that can no longer be used.
Control* Focus::heir(const Control& lost) const {
    if (lost.group == 0)
        return nullptr;
    const std::vector<Control*> order = ordered(screen_, [&](const ControlRef& ref) {
        const Control& control = controlOf(ref);
        return &control == &lost || (control.group == lost.group && takesTab(ref));
    });
    const auto at = std::find(order.begin(), order.end(), &lost);
    if (at == order.end() || order.size() < 2)
        return nullptr;
    return at + 1 == order.end() ? *(at - 1) : *(at + 1);
}

bool Focus::moveInGroup(int keyCode) {
    if (!hasArrows())
        return false;
    const std::vector<Control*> order = ordered(screen_, [&](const ControlRef& ref) {
        return controlOf(ref).group == control_->group && takesTab(ref);
    });
    const auto at = std::find(order.begin(), order.end(), control_);
    if (at == order.end())
        return false;
    const auto place = at - order.begin();
    const auto count = static_cast<std::ptrdiff_t>(order.size());
    switch (keyCode) {
        case key::kHome:
            moveTo(order.front());
            return true;
        case key::kEnd:
            moveTo(order.back());
            return true;
        case key::kLeft:
        case key::kRight: {
            const auto to = (place + (keyCode == key::kLeft ? count - 1 : 1)) % count;
            moveTo(order[static_cast<std::size_t>(to)]);
            return true;
        }
        case key::kUp:
        case key::kDown:
            moveTo(inNextRow(order, *control_, keyCode == key::kDown));
            return true;
        default:
            return false;
    }
}

std::vector<Control*> readingOrder(const Screen& screen) {
    return ordered(screen, takesTab);
}

std::vector<Control*> spokenOrder(const Screen& screen) {
    std::vector<Control*> order = ordered(screen, isTold);
    for (const ControlRef& ref : screen.controls())
        if (auto* const* label = std::get_if<Label*>(&ref);
            label && (*label)->role == LabelRole::Notification)
            order.push_back(*label);
    return order;
}

}  // namespace quillor
