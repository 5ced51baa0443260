// What happens in the game, in words, for players who do not see it.
#pragma once

#include <functional>

#include "app/program.h"
#include "game/rules/round.h"

namespace quillor {

class Announcer {
  public:
    using Speak = std::function<void(Text)>;
    Announcer(Program& program, Speak speak);

    /// The topic, how many letters there are to find, and the board.
    void sayNewGame(const Round& round);
    /// The key (a capital or a digit), whether it was in the phrase, the mistakes so far, and
    /// the board. `happened` is Found, Repeated or Mistake.
    void sayGuess(char16_t key, Happened happened, const Round& round);
    /// Won or lost, the answer with its accents, and what it was worth.
    void sayEnding(const Round& round);
    /// A minute, 30 and 10 seconds before the clock kills.
    void sayTime(const Round& round);
    /// A sign was typed that is no key of the game.
    void sayNoKey(char16_t sign);

  private:
    Text points() const;

    Program& program_;
    Speak speak_;
};

/// "Sounds: on", in the interface's language.
Text switchText(const Program& program, const TextPair& caption, bool on);

}  // namespace quillor
