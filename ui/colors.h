// The designs of the player's letters, and the accent colour of the game screen
// with its flashes and its slow drift.
#pragma once

#include <array>
#include <functional>

#include "app/program.h"

namespace quillor {

inline constexpr int kDesigns = 4;

/// The colour of the letters themselves in one of the designs, 0..3.
Color letterColor(int design, const GameSettings& settings);
/// Paints a letter and the line under it in one of the designs: 0 black ink,
/// 1 ink of the theme's colour, 2 white on black, 3 white on the theme's colour.
void paintLetter(Label& letter, Line& underline, int design, const GameSettings& settings);

class Accent {
  public:
    /// `paint` gives everything that shows the accent its colour.
    Accent(Program& program, std::function<void(Color)> paint);

    Timer tmrColor;
    Timer tmrSmooth;
    Label lblColor;  // the drifting colour in numbers

    /// Paints the accent; `glThemeNow` stays as it is.
    void ePutNewColor(Color color);
    /// The same for a moment, while a game is going on.
    void flash(Color color);
    /// The accent as painted last.
    Color color() const { return color_; }
    /// Takes the colour transition up as it is switched.
    void prepareTransition();
    /// The switch of the colour transition has been turned.
    void switchTransition();

  private:
    struct Channel {
        int value = 0;
        bool rising = true;
    };

    void eGetRGB(Color color);
    void tmrColor_Timer();
    void tmrSmooth_Timer();
    bool mayRise(const Channel& channel) const;
    Color drifted() const;

    Program& program_;
    GameSettings& settings_;
    std::function<void(Color)> paint_;
    Color color_ = 0;
    std::array<Channel, 3> channels_{};  // red, green, blue
};

/// Contrast of the palette's white on a colour: 1 is none, black has about 20.
double whiteTextContrast(Color background);

}  // namespace quillor
