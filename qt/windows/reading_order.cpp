// Sorted by top edges, cut into rows, and each row sorted by left edges.
#include "qt/windows/reading_order.h"

#include <QRectF>
#include <algorithm>
#include <cmath>
#include <tuple>

#include "qt/windows/control_view.h"
#include "qt/windows/twip_scale.h"

namespace quillor {

namespace {

struct Stop {
    ControlView* view;
    QRectF place;
};

bool isAbove(const Stop& a, const Stop& b) {
    return std::tuple(a.place.top(), a.place.left()) < std::tuple(b.place.top(), b.place.left());
}

bool isLeft(const Stop& a, const Stop& b) {
    return std::tuple(a.place.left(), a.place.top()) < std::tuple(b.place.left(), b.place.top());
}

// Beside each other, not below: their tops differ by no more than half the height of
// the one that is less high.
bool sameRow(const Stop& a, const Stop& b) {
    return std::abs(a.place.top() - b.place.top()) <=
           std::min(a.place.height(), b.place.height()) / 2;
}

}  // namespace

std::vector<ControlView*> readingOrder(const std::vector<ControlView*>& views) {
    std::vector<Stop> stops;
    for (ControlView* view : views)
        if (view->takesTab())
            stops.push_back({view, screenRect(view->control())});
    std::sort(stops.begin(), stops.end(), isAbove);
    for (auto row = stops.begin(); row != stops.end();) {
        const auto next =
            std::find_if(row, stops.end(), [&](const Stop& stop) { return !sameRow(*row, stop); });
        std::sort(row, next, isLeft);
        row = next;
    }
    std::vector<ControlView*> order;
    for (const Stop& stop : stops)
        order.push_back(stop.view);
    return order;
}

}  // namespace quillor
