// What a player has done in a field, to be undone and done again.
#pragma once

#include <optional>
#include <vector>

#include "core/types.h"

namespace quillor {

struct EditState {
    Text text;
    int caret = 0;            // where the selection begins, in characters
    int selectionLength = 0;  // in characters

    bool operator==(const EditState&) const = default;
};

class EditHistory {
  public:
    /// Characters that are typed one behind the other are one step. Where the text
    /// is the same nothing is kept.
    void record(const EditState& before, const EditState& after);

    /// The state before the last step, or after the one undone last; none left: nothing.
    std::optional<EditState> undo();
    std::optional<EditState> redo();
    void clear();

  private:
    struct Step {
        EditState before;
        EditState after;
        bool typing = false;
    };
    std::vector<Step> steps_;
    std::size_t done_ = 0;  // so many of them; those behind have been undone
};

}  // namespace quillor
