// The on-screen keyboard: letters, the panel of digits, and the key for the
// whole answer; and how its keys are lit by the mouse.
#pragma once

#include <array>
#include <functional>

#include "app/program.h"
#include "game/rules/round.h"

namespace quillor {

class Keyboard {
  public:
    static constexpr int kFirstDigit = 28;    // 1..27 are letters
    static constexpr int kLastGuessKey = 37;  // a digit
    static constexpr int kNumbersKey = 38;    // shows the digits
    static constexpr int kHideNumbersKey = 39;
    static constexpr int kWriteKey = 40;
    static constexpr int kGroup = 1;  // whose arrow keys lead from key to key

    /// Whom the keys tell.
    struct Told {
        std::function<void(char16_t)> guess;
        std::function<void()> writeAnswer;
        std::function<void()> mouseCame;  // over any of the keys
    };
    Keyboard(Program& program, Told told);

    Frame frmeBoard;
    Frame frmeNumbers;
    ControlArray<Shape, 1, kWriteKey> shpKey{"shpKey"};
    ControlArray<Label, 1, kWriteKey> lblKey{"lblKey"};

    /// The keys' places in their frame, and its height, in twips: so many columns, each key
    /// so high with a gap between all of them. The last letters share their row with the
    /// commands; the digits stand below, in as many rows as they need.
    struct Grid {
        int columns = 10;
        Twips height = 0;  // of a key
        Twips gap = 0;
        float fontSize = 19;         // points
        float commandFontSize = 14;  // the same
    };
    void arrange(Twips left, Twips top, Twips width, const Grid& grid);

    /// The first one that has not been used.
    Label& firstKey();

    void eTranslate();
    /// Fills the table of the keys' colours from the palette, and paints them.
    void eLoadKeysColors();
    /// Every key but the lit one back to its own colours.
    void eRestoreColor();
    /// No key is lit any more; for whatever the mouse moves over beside the keys.
    void leaveKeys();
    /// The keys that have not been used, on a keyboard that shows while a game
    /// is going on or has just ended.
    void show(const GameSettings& settings, const Round& round);

  private:
    static constexpr int kNoKey = 0;

    struct KeyColors {
        Color face = 0;
        Color accent = 0;
    };

    void lblKey_Click(int index);
    void light(int key, Color face);

    Program& program_;
    Told told_;
    std::array<KeyColors, kWriteKey + 1> colors_{};  // the table's key 0 stands for none
    int currentKey_ = kNoKey;
};

}  // namespace quillor
