// What must be true of the game screen after every event, whatever was done.
#pragma once

#include <set>
#include <string>
#include <tuple>

#include "game/game_screen.h"

namespace quillor::testing {

/// Watches a run from event to event. The first thing that is wrong is kept.
class GameInvariants {
  public:
    explicit GameInvariants(Program& program) : program_(program) {}

    /// Before each event.
    void beforeEvent();
    /// After that: the event will guess this letter.
    void willGuess(char16_t key);
    /// After each event. `mayHaveSaved`: looks at the settings file as well.
    void afterEvent(bool mayHaveSaved);

    const std::string& problem() const { return problem_; }
    int gamesEnded() const { return gamesEnded_; }
    int guesses() const { return guesses_; }

  private:
    void require(bool holds, const char* what);
    void followGame(const frmGame& game);
    void startModel();
    void checkScreen(const frmGame& game);
    void checkIdle(const frmGame& game);
    void checkPlaying(const frmGame& game);
    void checkEnded(const frmGame& game);
    void checkBoard(const frmGame& game);
    void checkKeys(const frmGame& game);
    void checkStrikes(const frmGame& game);
    void checkFigure(const frmGame& game);
    void checkScore();
    void checkWays(const frmGame& game);
    void checkFile(bool gameIsOpen);

    struct Before {
        std::int16_t state = kIdle;
        bool gameOpen = false;
        bool optionsOpen = false;
        Text lastPhrase;
        std::int16_t gamesPlayed = 0;
    };
    // What may not change any more once a game is over.
    using Ended = std::tuple<int, int, int, int, int, int>;
    Ended ended(const frmGame& game) const;

    Program& program_;
    std::string problem_;
    Before before_;
    bool newGame_ = false;
    std::set<char16_t> uncovered_;  // what has been guessed or given as a hint
    Ended ended_{};
    std::string file_;
    int gamesEnded_ = 0;
    int guesses_ = 0;
};

}  // namespace quillor::testing
