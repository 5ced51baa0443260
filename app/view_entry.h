// The table of the further menu "View", which every screen has: what concerns the
// window and the program, not the game.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/texts.h"
#include "toolkit/keys.h"

namespace quillor {

class ProgramScreen;

struct ViewEntry {
    std::string id;
    TextPair caption;  // empty: a separator
    Shortcut key;      // works on every screen unless that has another use for it
    Shortcut otherKey;
    std::function<void(ProgramScreen&)> run;
    /// With it the entry is a switch, and this says whether it is on.
    std::function<bool(const ProgramScreen&)> isOn;
    /// Without it the entry can always be chosen.
    std::function<bool(const ProgramScreen&)> isOffered;
};

/// Full screen, the language, keys, help and closing.
std::vector<ViewEntry> commonViewEntries();

}  // namespace quillor
