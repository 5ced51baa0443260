// What a person has asked the system for, so that every program can be used.
#pragma once

namespace quillor {

struct Preferences {
    bool highContrast = false;   // every text 7:1
    bool dark = false;           // a dark scheme
    bool reducedMotion = false;  // end states at once, nothing pulses
    double textSize = 1;         // of what is typed, listed and asked, to the usual size

    bool operator==(const Preferences&) const = default;
};

}  // namespace quillor
