// The hanged man: eight pieces that appear one mistake at a time, and the drop
// that ends a lost game.
#pragma once

#include <functional>

#include "core/game_settings.h"
#include "toolkit/control_array.h"
#include "toolkit/controls.h"
#include "ui/sounds.h"

namespace quillor {

class Figure {
  public:
    using Strikes = ControlArray<Label, 0, 5>;

    /// Which pieces show is read from the captions of `strikes`. `finalStep`
    /// closes the game when the sixth one fills.
    Figure(GameSettings& settings, const Strikes& strikes, Sounds& sounds,
           std::function<void()> finalStep);

    Frame frmeMan;
    Line lnStick1;
    Line lnStick2;
    Line lnStick3;
    Line lnRope;
    Line lnNeck;
    Label shpPrt0;  // the face, drawn as text
    Shape shpPrt1;  // head
    Shape shpPrt2;  // body
    Line shpPrt3;   // arms; the free end is X2, Y2
    Line shpPrt4;
    Line shpPrt5;  // legs
    Line shpPrt6;
    Shape shpPrt7;  // the platform; falls at death
    Timer tmrDead;

    /// Brings the pieces into line with the strikes. The sixth one ends the
    /// game; the second leg is hidden by eResetHangman only.
    void ePutItHangman();
    /// Every piece back to rest, the face calm. A drop still to come is called off.
    void eResetHangman();

  private:
    void showPiece(int strike, bool shown);
    void tmrDead_Timer();

    GameSettings& settings_;
    const Strikes& strikes_;
    Sounds& sounds_;
    std::function<void()> finalStep_;
};

}  // namespace quillor
