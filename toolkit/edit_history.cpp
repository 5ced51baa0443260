// One row of steps, and how far along it the text is.
#include "toolkit/edit_history.h"

namespace quillor {

namespace {

constexpr std::size_t kMostSteps = 200;

bool isTyping(const EditState& before, const EditState& after) {
    return before.selectionLength == 0 && after.text.size() == before.text.size() + 1 &&
           after.caret == before.caret + 1;
}

}  // namespace

void EditHistory::record(const EditState& before, const EditState& after) {
    if (before.text == after.text)
        return;
    steps_.resize(done_);
    const bool typing = isTyping(before, after);
    const bool goesOn =
        typing && !steps_.empty() && steps_.back().typing && steps_.back().after == before;
    if (goesOn)
        steps_.back().after = after;
    else
        steps_.push_back({before, after, typing});
    if (steps_.size() > kMostSteps)
        steps_.erase(steps_.begin());
    done_ = steps_.size();
}

std::optional<EditState> EditHistory::undo() {
    if (done_ == 0)
        return std::nullopt;
    return steps_[--done_].before;
}

std::optional<EditState> EditHistory::redo() {
    if (done_ == steps_.size())
        return std::nullopt;
    return steps_[done_++].after;
}

void EditHistory::clear() {
    steps_.clear();
    done_ = 0;
}

}  // namespace quillor
