// The plain value types that every folder shares: colours, lengths and text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillor {

/// One UTF-16 unit is one character of the board.
using Text = std::u16string;
using TextView = std::u16string_view;

/// A colour number: red + 256 * green + 65536 * blue, each component 0..255.
using Color = std::int32_t;

/// A length on a screen, in twips (1/1440 inch; 15 to a pixel at 96 dpi).
using Twips = float;

constexpr Color rgb(int red, int green, int blue) {
    return red + 256 * green + 65536 * blue;
}

constexpr int redOf(Color color) {
    return color & 0xFF;
}
constexpr int greenOf(Color color) {
    return (color >> 8) & 0xFF;
}
constexpr int blueOf(Color color) {
    return (color >> 16) & 0xFF;
}

/// One text in both languages.
struct TextPair {
    TextView spanish;
    TextView english;
};

}  // namespace quillor
