// What happens in the game, in words, for players who do not see it.
#pragma once

#include "app/program.h"
#include "game/rules/round.h"

namespace quillor {

class Announcer {
  public:
    explicit Announcer(Program& program);

    Label lblSpoken;  // never drawn; spoken whenever its caption changes

    void sayNewGame(const Round& round);
    void sayGuess(char16_t key, Happened happened, const Round& round);
    void sayEnding();

  private:
    Program& program_;
};

/// The phrase spelled as the board shows it, with its gaps.
Text spelled(const Round& round);

}  // namespace quillor
