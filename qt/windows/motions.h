// Short movements of controls, each ending where the control stands.
#pragma once

#include <QElapsedTimer>
#include <QPointF>
#include <QTimer>
#include <functional>
#include <optional>
#include <vector>

#include "toolkit/controls.h"

namespace quillor {

/// How far a control is from its place `elapsed` milliseconds after it began to move, in sizes
/// of its own height; nothing once it has arrived.
std::optional<QPointF> motionAt(Motion motion, qint64 elapsed);

class Motions {
  public:
    Motions();

    bool wanted = true;

    /// Calls `shift` with each step of the way, at last with none at all. `owner` is who can
    /// call it off; what it does already ends.
    void start(const void* owner, Motion motion, std::function<void(QPointF)> shift);
    void stop(const void* owner);
    bool areUnderWay() const { return !moving_.empty(); }
    /// By the time that has passed; the timer does it too, while events are delivered. False
    /// where nothing moved.
    bool step();

  private:
    struct Moving {
        const void* owner;
        Motion motion;
        qint64 since;
        std::function<void(QPointF)> shift;
    };
    std::vector<Moving> moving_;
    QElapsedTimer clock_;
    QTimer timer_;
};

}  // namespace quillor
