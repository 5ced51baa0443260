// After each handler the screen may be closed, or another one stand over it.
#include "toolkit/key_route.h"

#include <utility>

#include "core/text_rules.h"
#include "toolkit/controls.h"

namespace quillor {

namespace {

bool isUndo(const KeyEvent& key) {
    return key.code == 'Z' && key.onlyControl();
}

bool isRedo(const KeyEvent& key) {
    return (key.code == 'Y' && key.onlyControl()) ||
           (key.code == 'Z' && key.control && key.shift && !key.alt);
}

bool isTextOrBackspace(char16_t character) {
    return character >= u' ' || character == kCharBackspace;
}

bool hasNothingToErase(const TextField& field) {
    return field.caret() == 0 && field.selectionLength() == 0;
}

}  // namespace

KeyRoute::Rest KeyRoute::press(Screen& screen, Focus& focus, const KeyPress& press) {
    taken_ = false;
    if (!screen.enabled)
        return Rest::None;
    if (!press.autoRepeat)
        held_ = Held{press.id, &screen, focus.control()};
    else if (!mayRepeat(screen, focus, press))
        return Rest::None;
    visited_ = &screen;
    const bool taken =
        !press.autoRepeat && (isTaken(screen, focus, press.key) || pressAccessKey(screen, press));
    const Rest rest = taken ? Rest::None : serve(screen, focus, press);
    visited_ = nullptr;
    taken_ = taken;
    return rest;
}

bool KeyRoute::mayRepeat(const Screen& screen, const Focus& focus, const KeyPress& press) const {
    return held_ && held_->types && held_->id == press.id && held_->screen == &screen &&
           (held_->focused == focus.control() || press.key.code == key::kTab || focus.hasArrows());
}

void KeyRoute::letRepeat(bool types) {
    if (held_)
        held_->types = types;
}

bool KeyRoute::isTaken(Screen& screen, Focus& focus, KeyEvent key) {
    screen.keyDown(key);
    if (key.handled || !goesOn(screen))
        return true;
    if (auto* field = focus.as<TextField>())
        screen.fieldKeyDown(*field, key);
    else if (auto* list = focus.as<ListBox>())
        screen.listKeyDown(*list, key);
    else if (auto* label = focus.as<Label>())
        screen.labelKeyDown(*label, key);
    if (key.handled || !goesOn(screen))
        return true;
    screen.keyUnused(key);
    return key.handled || !goesOn(screen);
}

bool KeyRoute::pressAccessKey(Screen& screen, const KeyPress& press) {
    const KeyEvent& key = press.key;
    if (!key.alt || key.control)
        return false;
    // The letter on the key counts, whatever it types with Alt; a sign as it is typed.
    const bool letter = key.code >= 'A' && key.code <= 'Z';
    const char16_t wanted = letter ? static_cast<char16_t>(key.code) : upperCase(press.sign);
    for (const ControlRef& ref : screen.controls()) {
        auto* const* label = std::get_if<Label*>(&ref);
        if (!wanted || !label || !isPressable(**label) || accessKey(**label) != wanted)
            continue;
        pressLabel(screen, **label);
        return true;
    }
    return false;
}

KeyRoute::Rest KeyRoute::serve(Screen& screen, Focus& focus, const KeyPress& press) {
    if (press.key.code == key::kTab) {
        press.key.shift ? focus.previous() : focus.next();
        letRepeat(true);
        return Rest::None;
    }
    if (auto* field = focus.as<TextField>())
        return serveField(screen, *field, press);
    if (moveInGroup(focus, press.key))
        return Rest::None;
    if (pressButton(screen, focus, press))
        return Rest::None;
    const bool list = focus.as<ListBox>() != nullptr;
    letRepeat(list);
    if (!press.autoRepeat)
        typeOn(screen, press.typed);
    return list && goesOn(screen) ? Rest::List : Rest::None;
}

bool KeyRoute::moveInGroup(Focus& focus, const KeyEvent& key) {
    const bool plain = !key.control && !key.alt && !key.shift;
    if (!plain || !focus.moveInGroup(key.code))
        return false;
    letRepeat(true);
    return true;
}

KeyRoute::Rest KeyRoute::serveField(Screen& screen, TextField& field, const KeyPress& press) {
    letRepeat(true);
    if (isUndo(press.key)) {
        screen.undo(field);
    } else if (isRedo(press.key)) {
        screen.redo(field);
    } else if (press.typed.empty()) {
        return Rest::Field;
    } else {
        // At the beginning of a text Backspace may be a command of the screen.
        const bool spent =
            press.autoRepeat && press.typed.front() == kCharBackspace && hasNothingToErase(field);
        letRepeat(!spent && typeInto(screen, field, press.typed));
    }
    return Rest::None;
}

// Returns whether all of it was text, and none of it a command.
bool KeyRoute::typeInto(Screen& screen, TextField& field, TextView typed) {
    const TextField::Step step(field);
    bool text = true;
    for (const char16_t character : typed) {
        const char16_t let = screen.fieldKeyPress(field, character);
        if (!goesOn(screen))
            return false;
        text = text && isTextOrBackspace(let);
        if (isTextOrBackspace(let))
            screen.type(field, let);
    }
    return text;
}

bool KeyRoute::pressButton(Screen& screen, Focus& focus, const KeyPress& press) {
    auto* label = focus.as<Label>();
    if (!label || !isButton(*label))
        return false;
    if (press.key.code == key::kReturn) {
        pressLabel(screen, *label);
    } else if (press.key.code == key::kSpace) {
        down_ = Down{press.id, &screen, &focus, label};
        screen.mouseDown(*label);
    } else {
        return false;
    }
    return true;
}

void KeyRoute::pressLabel(Screen& screen, Label& label) {
    screen.mouseDown(label);
    if (goesOn(screen))
        screen.mouseUp(label);
    if (goesOn(screen))
        screen.click(label);
}

void KeyRoute::typeOn(Screen& screen, TextView text) {
    for (const char16_t character : text)
        if (goesOn(screen))
            screen.keyPress(character);
}

// What was held is kept: the systems do not tell a key that repeats from one that is
// let go before its next press comes.
void KeyRoute::release(int id) {
    if (!down_ || down_->id != id)
        return;
    const Down down = *std::exchange(down_, std::nullopt);
    visited_ = down.screen;
    down.screen->mouseUp(*down.label);
    if (goesOn(*down.screen) && down.focus->control() == down.label && isUsable(*down.label))
        down.screen->click(*down.label);
    visited_ = nullptr;
}

void KeyRoute::commit(Screen& screen, Focus& focus, TextView text) {
    visited_ = &screen;
    if (auto* field = focus.as<TextField>())
        typeInto(screen, *field, oneLine(text));
    else
        typeOn(screen, oneLine(text));
    visited_ = nullptr;
}

void KeyRoute::letGo() {
    held_.reset();
    if (const std::optional<Down> down = std::exchange(down_, std::nullopt))
        down->screen->mouseUp(*down->label);
}

void KeyRoute::forget(const Screen& screen) {
    if (held_ && held_->screen == &screen)
        held_.reset();
    if (down_ && down_->screen == &screen)
        down_.reset();
    if (visited_ == &screen)
        visited_ = nullptr;
}

}  // namespace quillor
