// What the screens that choose a phrase need of the game that plays it.
#pragma once

#include <cstdint>
#include <typeinfo>

#include "app/program.h"
#include "toolkit/screen.h"

namespace quillor {

class PhraseTaker {
  public:
    virtual ~PhraseTaker() = default;

    /// Takes over a selection way, 0..4.
    virtual void eDoWay(std::int16_t way) = 0;
    /// Starts the phrase that is in the record now.
    virtual void ePlayNewGame() = 0;
    /// From the first deal on, Repeat and Tour have a topic to start from.
    virtual void enableRepeatAndTour() = 0;
    /// Whether the game takes input; false while a screen stands over it.
    virtual void setGameEnabled(bool enabled) = 0;
    virtual ImageRef paper() const = 0;
    virtual const Screen& screen() const = 0;
};

/// The game screen, which is loaded whenever a phrase is chosen for it.
/// Throws std::bad_cast when it is not.
inline PhraseTaker& phraseTaker(Program& program) {
    Screen* game = program.find(ScreenId::Game);
    if (!game)
        throw std::bad_cast();
    return dynamic_cast<PhraseTaker&>(*game);
}

}  // namespace quillor
