// What came of a guess.
#pragma once

namespace quillor {

enum class GuessResult {
    Found,     // it uncovered a letter
    Repeated,  // it had been found, or missed, before
    Mistake,
};

}  // namespace quillor
