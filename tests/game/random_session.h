// A session of random events with the real screens: what is set up, what the
// player does, and what was found wrong.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "core/game_settings.h"

namespace quillor::testing {

enum class Act {
    Guess,          // types a letter or digit, or something else: `detail` chooses
    Enter,          // presses Return
    Answer,         // "!": right, wrong, blank or cancelled
    Wait,           // lets time pass
    Click,          // on one of the labels that can be clicked
    Hover,          // over any control
    Shortcut,       // Control and a letter
    Menu,           // an entry of the game's menu
    FunctionKey,    // F2 or F3
    SelectionKey,   // arrows and Escape
    BehindScreens,  // keys and clicks at the game while a screen stands over it
    CloseWindow,
};

struct Event {
    Act act;
    unsigned detail;  // what exactly; also decides how boxes are answered
};

/// What the program starts with; made from one number.
struct ProgramSetup {
    std::uint64_t seed = 0;
    bool english = false;
    bool classic = false;
    GameSettings saved;               // the settings file
    std::vector<std::string> topics;  // the topic files' bytes
};

ProgramSetup randomSetup(std::uint64_t seed, bool english, bool classic);
std::vector<Event> randomEvents(std::uint64_t seed, int count);

/// What came of a session.
struct Outcome {
    int games = 0;          // ended
    int guesses = 0;        // letters and digits typed while playing
    std::string problem;    // empty: every invariant held after every event
    std::size_t event = 0;  // after which event there was a problem
};

/// Plays the events with a new program. The same set-up and events have the
/// same outcome.
Outcome playSession(const ProgramSetup& setup, const std::vector<Event>& events);

std::ostream& operator<<(std::ostream& out, const Event& event);
std::ostream& operator<<(std::ostream& out, const ProgramSetup& setup);

}  // namespace quillor::testing
