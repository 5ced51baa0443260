// Each part is compared by itself, so that a shell touches no more than it
// must.
#include "toolkit/shown_control.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "toolkit/controls.h"

namespace quillor {

namespace {

// Returns whether it differed.
template <typename T>
bool assign(T& shown, T now) {
    if (shown == now)
        return false;
    shown = std::move(now);
    return true;
}

// Never half of a sign that takes two units.
Text shortened(TextView text) {
    if (text.size() <= kMostShown)
        return Text(text);
    const bool halved = (text[kMostShown - 1] & 0xFC00U) == 0xD800U;
    return Text(text.substr(0, kMostShown - (halved ? 1 : 0)));
}

Text nameOf(const ControlRef& ref) {
    const Control& control = controlOf(ref);
    auto* const* label = std::get_if<Label*>(&ref);
    return shortened(label && control.spokenName.empty() ? plainCaption(**label)
                                                         : control.spokenName);
}

bool isChecked(const ControlRef& ref) {
    auto* const* label = std::get_if<Label*>(&ref);
    return label != nullptr && (*label)->checked;
}

int saidOf(const ControlRef& ref) {
    auto* const* label = std::get_if<Label*>(&ref);
    return label ? (*label)->said : 0;
}

// Where a line stands is part of its look.
Area areaOf(const Control& control) {
    return {control.left, control.top, control.width, control.height};
}

struct LookMaker {
    ShownLook operator()(const Label* l) const {
        return ShownLabel{isSeen(*l) ? shortened(l->caption) : Text(),
                          l->literal,
                          l->font,
                          l->textColor,
                          l->backColor,
                          l->opaque,
                          l->cornerRadius,
                          l->align,
                          l->wordWrap};
    }
    ShownLook operator()(const Shape* s) const {
        return ShownShape{s->kind,        s->backColor,   s->filled,
                          s->borderColor, s->borderWidth, s->radius};
    }
    ShownLook operator()(const Line* l) const {
        return ShownLine{l->x1, l->y1, l->x2, l->y2, l->color, l->thickness, l->roundEnds};
    }
    ShownLook operator()(const Picture* p) const {
        return ShownPicture{p->image, p->drawing, p->drawn};
    }
    ShownLook operator()(const Frame* f) const { return ShownFrame{f->backColor, f->opaque}; }
    ShownLook operator()(const TextField* f) const {
        ShownField look{f->font, f->textColor, f->backColor, {}, 0, 0};
        if (isSeen(*f)) {
            look.text = f->text();
            look.caret = f->caret();
            look.selectionLength = f->selectionLength();
        }
        return look;
    }
    ShownLook operator()(const ListBox* list) const {
        if (!isSeen(*list))
            return ShownList{list->font, {}, -1};
        ShownList shown{list->font, {}, list->listIndex()};
        shown.items.reserve(list->items.size());
        std::transform(list->items.begin(), list->items.end(), std::back_inserter(shown.items),
                       shortened);
        return shown;
    }
};

// A long list is not copied only to be compared.
bool isShown(const ShownLook& look, const ControlRef& ref) {
    auto* const* list = std::get_if<ListBox*>(&ref);
    const auto* shown = std::get_if<ShownList>(&look);
    return list != nullptr && shown != nullptr && isSeen(**list) &&
           shown->listIndex == (*list)->listIndex() && shown->font == (*list)->font &&
           shown->items == (*list)->items;
}

}  // namespace

ShownControl::Changes& ShownControl::Changes::operator|=(const Changes& others) {
    place |= others.place;
    words |= others.words;
    state |= others.state;
    checked |= others.checked;
    look |= others.look;
    return *this;
}

ShownControl::Changes ShownControl::update(const ControlRef& ref) {
    const Control& control = controlOf(ref);
    const bool seen = isSeen(control);
    Changes changes;
    changes.place = assign(area, areaOf(control));
    changes.words = assign(name, seen ? nameOf(ref) : Text());
    changes.words |= assign(toolTip, seen ? control.toolTip : Text());
    changes.words |= assign(said, saidOf(ref));
    changes.state = assign(visible, control.visible);
    changes.state |= assign(enabled, control.enabled);
    changes.checked = assign(checked, isChecked(ref));
    changes.look = !isShown(look, ref) && assign(look, std::visit(LookMaker{}, ref));
    return changes;
}

}  // namespace quillor
