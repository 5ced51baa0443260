#include "game/rules/clock.h"

#include <algorithm>
#include <cmath>

namespace quillor {

int secondsAllowed(int letters, bool hiddenLetters) {
    const int counted = std::max(letters, 1);
    const int seconds = static_cast<int>(std::floor((360.0 / counted + 2.0 * counted) * 1.4));
    return hiddenLetters ? seconds * 3 : seconds;
}

void ePutSomeTime(Round& round, int letters) {
    round.secondsLeft = secondsAllowed(letters, round.hiddenLetters);
}

Happened passSecond(const GameSettings& settings, Round& round) {
    if (settings.giGameState != kPlaying || round.secondsLeft == 0)
        return Happened::Nothing;
    return --round.secondsLeft == 0 ? Happened::Died : Happened::Nothing;
}

}  // namespace quillor
