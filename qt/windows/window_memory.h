// Where the player has left the window, kept from run to run.
#pragma once

#include <QList>
#include <QRect>
#include <optional>

#include "core/disk.h"

namespace quillor {

struct WindowState {
    enum class Shown { Normal, Maximised, FullScreen };

    QRect place;  // while it is neither maximised nor full-screen; without its frame
    Shown shown = Shown::Normal;

    bool operator==(const WindowState&) const = default;
};

/// In a file of its own, which holds five numbers, one a line: left, top, width and height in
/// logical pixels, and 0, 1 or 2 for how it is shown.
class WindowMemory {
  public:
    explicit WindowMemory(Place file) : file_(std::move(file)) {}

    /// Nothing where there is no such file, or one that holds anything else.
    std::optional<WindowState> kept() const;
    /// Written whole or not at all; says nothing when it cannot be.
    void keep(const WindowState& state) const;

  private:
    Place file_;
};

/// The place in which a window can be seen and moved on displays of those areas, of which the
/// first is the main one: as it is, made smaller, or, where most of it would be on none of
/// them, in the middle of the main one. The displays are one at least.
QRect placeOnDisplays(const QRect& place, const QList<QRect>& displays);

}  // namespace quillor
