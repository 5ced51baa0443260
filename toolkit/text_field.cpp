// Caret and selection stay within the text, the text within one line and its length.
#include <algorithm>

#include "core/text_rules.h"
#include "toolkit/controls.h"

namespace quillor {

namespace {

bool isLowSurrogate(char16_t character) {
    return character >= 0xDC00 && character <= 0xDFFF;
}

std::size_t commonStart(TextView a, TextView b) {
    const std::size_t most = std::min(a.size(), b.size());
    std::size_t same = 0;
    while (same < most && a[same] == b[same])
        ++same;
    return same;
}

std::size_t commonEnd(TextView a, TextView b) {
    const std::size_t most = std::min(a.size(), b.size());
    std::size_t same = 0;
    while (same < most && a[a.size() - 1 - same] == b[b.size() - 1 - same])
        ++same;
    return same;
}

}  // namespace

Text TextField::selectedText() const {
    return text_.substr(static_cast<std::size_t>(caret_),
                        static_cast<std::size_t>(selectionLength_));
}

void TextField::setText(Text text) {
    text = oneLine(text);
    if (maxLength > 0 && text.size() > static_cast<std::size_t>(maxLength))
        text.resize(static_cast<std::size_t>(maxLength));
    if (steps_ == 0 && text != text_)
        history_.clear();
    take({std::move(text), caret_, 0});
}

void TextField::select(int start, int length) {
    const int size = static_cast<int>(text_.size());
    caret_ = std::clamp(start, 0, size);
    selectionLength_ = std::clamp(length, 0, size - caret_);
}

void TextField::take(EditState state) {
    const bool changed = state.text != text_;
    text_ = std::move(state.text);
    select(state.caret, state.selectionLength);
    if (changed && onChange)
        onChange();
}

void TextField::userEdited(Text text, int selectionStart, int selectionLength) {
    const Step step(*this);
    const TextView now = text;
    const std::size_t start = commonStart(text_, now);
    const std::size_t end = commonEnd(TextView(text_).substr(start), now.substr(start));
    const TextView put = now.substr(start, now.size() - start - end);
    Text allowed = oneLine(put);
    const auto most = static_cast<std::size_t>(maxLength);
    if (maxLength > 0 && start + allowed.size() + end > most)
        allowed.resize(most > start + end ? most - start - end : 0);
    if (allowed == put)
        return take({std::move(text), selectionStart, selectionLength});
    const int caret = static_cast<int>(start + allowed.size());
    take({Text(now.substr(0, start)).append(allowed).append(now.substr(now.size() - end)), caret,
          0});
}

void TextField::type(char16_t character) {
    Text text = text_;
    text.replace(static_cast<std::size_t>(caret_), static_cast<std::size_t>(selectionLength_), 1,
                 character);
    if (maxLength > 0 && text.size() > static_cast<std::size_t>(maxLength))
        return;
    const Step step(*this);
    take({std::move(text), caret_ + 1, 0});
}

void TextField::eraseBack() {
    int start = caret_;
    int length = selectionLength_;
    if (length == 0 && start > 0) {
        const auto at = [&](int index) { return text_[static_cast<std::size_t>(index)]; };
        length = start > 1 && isLowSurrogate(at(start - 1)) ? 2 : 1;
        start -= length;
    }
    Text text = text_;
    text.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
    const Step step(*this);
    take({std::move(text), start, 0});
}

void TextField::undo() {
    if (std::optional<EditState> earlier = history_.undo())
        goTo(std::move(*earlier));
}

void TextField::redo() {
    if (std::optional<EditState> later = history_.redo())
        goTo(std::move(*later));
}

// What handlers make of that state is no step of its own, so none is begun here.
void TextField::goTo(EditState state) {
    struct Counted {
        int& count;
        ~Counted() { --count; }
    };
    const Counted counted{++steps_};
    take(std::move(state));
}

TextField::Step::Step(TextField& field) : field_(field) {
    if (field_.steps_++ == 0)
        field_.before_ = field_.state();
}

TextField::Step::~Step() {
    if (--field_.steps_ == 0)
        field_.history_.record(field_.before_, field_.state());
}

}  // namespace quillor
