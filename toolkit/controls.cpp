// What a control's frames do to it, and what lists hold.
#include "toolkit/controls.h"

#include <stdexcept>

#include "core/text_rules.h"

namespace quillor {

bool isSeen(const Control& control) {
    for (const Control* each = &control; each; each = each->parent)
        if (!each->visible)
            return false;
    return true;
}

bool isUsable(const Control& control) {
    for (const Control* each = &control; each; each = each->parent)
        if (!each->visible || !each->enabled)
            return false;
    return true;
}

Area areaOnScreen(const Control& control) {
    Area area{control.left, control.top, control.width, control.height};
    for (const Frame* frame = control.parent; frame; frame = frame->parent) {
        area.left += frame->left;
        area.top += frame->top;
    }
    return area;
}

bool isButton(const Label& label) {
    return label.role == LabelRole::Button || label.role == LabelRole::CheckBox ||
           label.role == LabelRole::RadioButton;
}

bool takesFocus(const Label& label) {
    return isButton(label) || label.role == LabelRole::Reader;
}

bool isPressable(const Label& label) {
    return label.onClick && isUsable(label);
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

char16_t accessKey(TextView caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != u'&')
            continue;
        if (caption[i + 1] != u'&')
            return upperCase(caption[i + 1]);
        ++i;
    }
    return 0;
}

Text plainCaption(TextView caption) {
    Text plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && ++i == caption.size())
            break;
        plain += caption[i];
    }
    return plain;
}

char16_t accessKey(const Label& label) {
    return label.literal ? u'\0' : accessKey(TextView(label.caption));
}

Text plainCaption(const Label& label) {
    return label.literal ? label.caption : plainCaption(TextView(label.caption));
}

}  // namespace quillor
