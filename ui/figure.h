// What mistakes look like: the boxes that hold the wrong keys, and the hanged
// man, whose pieces appear one mistake at a time until the drop.
#pragma once

#include <vector>

#include "core/game_settings.h"
#include "game/rules/round.h"
#include "toolkit/control_array.h"
#include "toolkit/controls.h"

namespace quillor {

class StrikeBoxes {
  public:
    Shape shpStrikes;  // the ground of the boxes
    ControlArray<Line, 0, kMostMistakes> lnStrike{"lnStrike"};
    ControlArray<Label, 0, kMostMistakes - 1> lblStrike{"lblStrike"};

    /// The boxes side by side in that area of the screen, in twips.
    void arrange(const Area& area);
    /// The boxes' tips, in the interface's language.
    void eTranslate(const GameSettings& settings);
    /// The wrong keys in their order; the box of a new one shakes.
    void show(const Round& round);

  private:
    std::size_t shown_ = 0;  // how many boxes hold a key
};

/// What each piece is, when it shows and how it falls stands in one table, in figure.cpp.
class Figure {
  public:
    Figure();

    Frame frmeMan;  // that all pieces stand in
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

    /// Gallows and man, from back to front.
    std::vector<ControlRef> pieces();

    /// Brings the pieces into line with the mistakes, 0..kMostMistakes. The one of the last
    /// mistake is hidden by eResetHangman only.
    void ePutItHangman(int mistakes);
    /// Every piece back to rest, the face calm. A drop still to come is called off.
    void eResetHangman();

  private:
    void layOutGallows();
    void layOutMan();
    void tmrDead_Timer();
};

}  // namespace quillor
