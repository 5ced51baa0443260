// The colours of the game screen: the designs of the letters, the keys, and the
// accent with its flashes and its slow drift.
#pragma once

#include <array>

#include "app/program.h"
#include "core/text_rules.h"

namespace quillor {

/// What the colours are painted on; the parts of the game screen own it.
struct ColoredControls {
    ControlArray<Label, 1, kBoardCells>& lblLetter;
    ControlArray<Line, 1, kBoardCells>& lnLetter;
    ControlArray<Label, 1, 40>& lblKey;
    ControlArray<Shape, 1, 40>& shpKey;
    ControlArray<Line, 0, 6>& lnStrike;
    std::array<Shape*, 3> accentShapes;  // Play, loudspeaker, search
    std::array<Label*, 4> accentLabels;  // status, score, mode, bar
    MenuItem& mColor;
};

class Colors {
  public:
    Colors(Program& program, ColoredControls controls);

    Timer tmrColor;
    Timer tmrSmooth;
    Label lblColor;  // the drifting colour in numbers

    /// Ink and background of the letters by `giDesign`; an unknown design
    /// leaves them as they are.
    void ePutDesign();
    void eLoadKeysColors();
    /// Every key but the lit one back to its own colours.
    void eRestoreColor();
    /// No key is lit any more; for whatever the mouse moves over beside the keys.
    void leaveKeys();
    void hoverKey(int key);
    void pressKey(int key);
    /// Paints the accent elements; `glThemeNow` stays as it is.
    void ePutNewColor(Color color);
    /// The accent as painted last.
    Color accent() const { return accent_; }
    void prepareTransition();

  private:
    static constexpr int kNoKey = 0;
    static constexpr int kKeys = 41;  // the table's key 0 stands for none

    struct KeyColors {
        Color face = 0;
        Color accent = 0;
    };
    struct Channel {
        int value = 0;
        bool rising = true;
    };

    void eGetRGB(Color color);
    void mColor_Click();
    void tmrColor_Timer();
    void tmrSmooth_Timer();
    bool mayRise(const Channel& channel) const;
    Color drifted() const;

    Program& program_;
    GameSettings& settings_;
    ColoredControls controls_;
    std::array<KeyColors, kKeys> keyColors_{};
    int currentKey_ = kNoKey;
    Color accent_ = 0;
    std::array<Channel, 3> channels_{};  // red, green, blue
};

/// Contrast of the palette's white on a colour: 1 is none, black has about 20.
double whiteTextContrast(Color background);

}  // namespace quillor
