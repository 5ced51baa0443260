// Keys as screens know them: virtual key codes, the same on every system.
#pragma once

namespace quillor {

/// Letters are the codes of their capitals, 65..90; digits 48..57.
namespace key {
inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kReturn = 13;  // main and keypad
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kEnd = 35;
inline constexpr int kHome = 36;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
inline constexpr int kDelete = 46;
inline constexpr int kContextMenu = 93;
inline constexpr int kKeypad0 = 96;  // keypad digits are 96..105
inline constexpr int kF1 = 112;
inline constexpr int kF2 = 113;
inline constexpr int kF3 = 114;
inline constexpr int kF4 = 115;
inline constexpr int kF10 = 121;
inline constexpr int kF11 = 122;
inline constexpr int kLastFunctionKey = 135;  // F24
}  // namespace key

/// A key going down. A handler that sets `handled` keeps the key from the
/// control that has the focus and from becoming a character.
struct KeyEvent {
    int code = 0;
    bool shift = false;
    bool control = false;
    bool alt = false;
    bool handled = false;

    /// Control and nothing else.
    bool onlyControl() const { return control && !shift && !alt; }
};

/// A key that runs a command, alone or with Control or Alt; of code 0 there is none.
struct Shortcut {
    int code = 0;
    bool control = false;
    bool alt = false;

    bool isPressed(const KeyEvent& event) const {
        return code != 0 && code == event.code && control == event.control && alt == event.alt &&
               !event.shift;
    }
};

/// Characters of key presses that are no printable text.
inline constexpr char16_t kCharBackspace = 8;
inline constexpr char16_t kCharReturn = 13;

}  // namespace quillor
