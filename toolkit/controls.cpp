// Fields and lists keep caret and selection within what they hold.
#include "toolkit/controls.h"

#include <algorithm>
#include <stdexcept>

namespace quillor {

Text TextField::selectedText() const {
    return text_.substr(static_cast<std::size_t>(caret_),
                        static_cast<std::size_t>(selectionLength_));
}

void TextField::setText(Text text) {
    if (maxLength > 0 && text.size() > static_cast<std::size_t>(maxLength))
        text.resize(static_cast<std::size_t>(maxLength));
    const bool changed = text != text_;
    text_ = std::move(text);
    select(caret_, 0);
    if (changed && onChange)
        onChange();
}

void TextField::select(int start, int length) {
    const int size = static_cast<int>(text_.size());
    caret_ = std::clamp(start, 0, size);
    selectionLength_ = std::clamp(length, 0, size - caret_);
}

void TextField::userEdited(Text text, int selectionStart, int selectionLength) {
    const bool changed = text != text_;
    text_ = std::move(text);
    select(selectionStart, selectionLength);
    if (changed && onChange)
        onChange();
}

void ListBox::select(int index) {
    if (index < -1 || index >= static_cast<int>(items.size()))
        throw std::out_of_range("ListBox::select");
    listIndex_ = index;
    if (index >= 0 && onClick)
        onClick();
}

void ListBox::removeItem(int index) {
    if (index < 0 || index >= static_cast<int>(items.size()))
        throw std::out_of_range("ListBox::removeItem");
    items.erase(items.begin() + index);
    listIndex_ = -1;
}

void ListBox::clear() {
    items.clear();
    listIndex_ = -1;
}

}  // namespace quillor
