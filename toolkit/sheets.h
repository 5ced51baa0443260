// The pages that screens are laid out on, one of them for each shape of a window.
#pragma once

#include <array>
#include <span>

#include "core/types.h"

namespace quillor {

/// How the controls of a screen stand: beside each other, or below one another.
enum class Layout { Wide, Tall };

/// A page, in twips. A tall one is at least so high, and goes on as far as its window does.
struct Sheet {
    Layout layout = Layout::Wide;
    Twips width = 0;
    Twips height = 0;

    bool operator==(const Sheet&) const = default;
};

/// Those of the large screens: usual windows; half a display, or a tablet upright; a phone.
inline constexpr Sheet kWideSheet{Layout::Wide, 13200, 8100};
inline constexpr Sheet kHalfSheet{Layout::Tall, 11100, 13260};
inline constexpr Sheet kPhoneSheet{Layout::Tall, 8820, 15480};
inline constexpr std::array kLargeSheets{kWideSheet, kHalfSheet, kPhoneSheet};

/// The sheet for a room of that width and height, in any unit: a tall one in a room narrower
/// than high, and of several the one on which all is largest. Of `sheets` there is one at
/// least of each layout.
Sheet sheetFor(std::span<const Sheet> sheets, double roomWidth, double roomHeight);

}  // namespace quillor
