#include "qt/windows/motions.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace quillor {

namespace {

constexpr int kTick = 15;  // ms
constexpr int kAppearing = 180;
constexpr int kShaking = 300;

}  // namespace

std::optional<QPointF> motionAt(Motion motion, qint64 elapsed) {
    constexpr double kFrom = 0.35;   // below its place
    constexpr double kSwing = 0.14;  // to either side
    constexpr int kSwings = 3;
    const double length = motion == Motion::Appear ? kAppearing : kShaking;
    const double left = 1 - static_cast<double>(elapsed) / length;
    if (left <= 0)
        return std::nullopt;
    if (motion == Motion::Appear)
        return QPointF(0, kFrom * left * left);
    return QPointF(kSwing * left * std::sin((1 - left) * kSwings * 2 * std::numbers::pi), 0);
}

Motions::Motions() {
    clock_.start();
    timer_.setInterval(kTick);
    QObject::connect(&timer_, &QTimer::timeout, [this] { step(); });
}

void Motions::start(const void* owner, Motion motion, std::function<void(QPointF)> shift) {
    stop(owner);
    if (!wanted)
        return;
    moving_.push_back({owner, motion, clock_.elapsed(), std::move(shift)});
    timer_.start();
    step();
}

void Motions::stop(const void* owner) {
    std::erase_if(moving_, [owner](const Moving& each) { return each.owner == owner; });
}

bool Motions::step() {
    const bool any = !moving_.empty();
    std::erase_if(moving_, [now = clock_.elapsed()](const Moving& each) {
        const auto shift = motionAt(each.motion, now - each.since);
        each.shift(shift.value_or(QPointF()));
        return !shift;
    });
    if (moving_.empty())
        timer_.stop();
    return any;
}

}  // namespace quillor
