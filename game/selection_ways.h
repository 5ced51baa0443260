// Where the next phrase comes from: the five ways of the selection menu, the
// tour's position, and the two help switches.
#pragma once

#include <cstdint>

#include "core/types.h"

namespace quillor {

class frmGame;

class SelectionWays {
  public:
    explicit SelectionWays(frmGame& game);

    /// Takes over way Manual, Repeat or Tour; by the player's choice unless
    /// `gbAutoChoice` says that the game deals by itself. Other ways are only
    /// written down.
    void eDoWay(std::int16_t way);
    void mDoWay_Click(int index);
    void mDoWayAll_Click(int index);
    /// Checks the entry of the saved way.
    void eActivateAuto();
    /// Checks the help switches as they are saved.
    void eCheckOthers();
    void mHelpy_Click();
    void mHide_Click();

    /// "Tour 2/5": the place of the current topic in the tour.
    Text ePutWhere() const;
    /// The next topic in order, the first one after the last.
    std::int16_t topicAfter(std::int16_t topic) const;

  private:
    void uncheckAll();
    void startTour();

    frmGame& game_;
};

}  // namespace quillor
