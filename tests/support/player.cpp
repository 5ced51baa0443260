// Every action first checks that a person could do it.
#include "tests/support/player.h"

#include <algorithm>
#include <stdexcept>
#include <type_traits>

#include <gtest/gtest.h>

#include "core/text_rules.h"

namespace quillor::testing {

namespace {

bool takesInput(const Control& control) {
    for (const Control* c = &control; c; c = c->parent)
        if (!c->enabled)
            return false;
    return true;
}

int codeOf(char16_t character) {
    const char16_t capital = upperCase(character);
    const bool plain = (capital >= u'A' && capital <= u'Z') ||
                       (capital >= u'0' && capital <= u'9') || capital == u' ';
    return plain ? capital : 0;
}

KeyPress typing(char16_t character) {
    KeyPress press;
    press.key.code = codeOf(character);
    press.typed = Text(1, character);
    press.sign = character;
    press.id = character;
    return press;
}

KeyPress pressing(int keyCode, Modifiers modifiers) {
    KeyPress press;
    press.key = {keyCode, modifiers.shift, modifiers.control, modifiers.alt, false};
    press.autoRepeat = modifiers.autoRepeat;
    press.id = keyCode;
    if (modifiers.control || modifiers.alt)
        return press;
    if (keyCode == key::kReturn || keyCode == key::kBackspace)
        press.typed = Text(1, static_cast<char16_t>(keyCode));
    return press;
}

void eraseFrom(Screen& screen, TextField& field) {
    Text text = field.text();
    const int start = field.caret();
    text.erase(static_cast<std::size_t>(start),
               static_cast<std::size_t>(std::max(field.selectionLength(), 1)));
    screen.edit(field, std::move(text), start, 0);
}

}  // namespace

Screen& Player::screen() const {
    if (!desktop_.front())
        throw std::logic_error("no screen is open");
    return *desktop_.front();
}

Control& Player::control(const std::string& id) const {
    for (const ControlRef& ref : screen().controls())
        if (controlOf(ref).id == id)
            return controlOf(ref);
    throw std::logic_error("no control " + id + " on " + screen().name);
}

template <typename T>
T& Player::usable(const std::string& id, const char* action) const {
    Control& found = control(id);
    EXPECT_FALSE(desktop_.boxOpen()) << "a box stands over " << id << " at " << action;
    EXPECT_TRUE(screen().enabled) << screen().name << " takes no " << action;
    EXPECT_TRUE(isSeen(found)) << id << " is hidden from " << action;
    EXPECT_TRUE(takesInput(found)) << id << " is not enabled for " << action;
    if constexpr (std::is_same_v<T, Control>)
        return found;
    else {
        T* result = screen().as<T>(&found);
        if (!result)
            throw std::logic_error(id + " is of another kind, no " + action);
        return *result;
    }
}

void Player::click(const std::string& id) {
    auto& label = usable<Label>(id, "click");
    EXPECT_TRUE(label.onClick) << id << " cannot be clicked";
    Screen& where = screen();
    desktop_.deliver([&] { where.mouseMove(label); });
    desktop_.deliver([&] { where.mouseDown(label); });
    desktop_.deliver([&] { where.mouseUp(label); });
    desktop_.deliver([&] { where.click(label); });
}

void Player::rightClick(const std::string& id) {
    Screen& where = screen();
    auto& target = usable<Control>(id, "right click");
    desktop_.deliver([&] { where.rightClick(target); });
}

void Player::hover(const std::string& id) {
    auto& target = usable<Control>(id, "hover");
    desktop_.deliver([&] { screen().mouseMove(target); });
}

void Player::mouseDown(const std::string& id) {
    auto& label = usable<Label>(id, "press");
    desktop_.deliver([&] { screen().mouseDown(label); });
}

void Player::mouseUp(const std::string& id) {
    auto& label = usable<Label>(id, "release");
    desktop_.deliver([&] { screen().mouseUp(label); });
}

void Player::clickInto(const std::string& fieldId, int caret) {
    selectText(fieldId, caret, 0);
}

void Player::selectText(const std::string& fieldId, int start, int length) {
    auto& field = usable<TextField>(fieldId, "click");
    Screen& where = screen();
    desktop_.deliver([&] { desktop_.focus(where).take(field); });
    desktop_.deliver([&] { where.edit(field, field.text(), start, length); });
}

void Player::selectItem(const std::string& listId, int index) {
    auto& list = usable<ListBox>(listId, "select");
    Screen& where = screen();
    desktop_.deliver([&] { desktop_.focus(where).take(list); });
    desktop_.deliver([&] { where.selectItem(list, index); });
}

void Player::doubleClickItem(const std::string& listId, int index) {
    selectItem(listId, index);
    auto& list = usable<ListBox>(listId, "double click");
    desktop_.deliver([&] { screen().doubleClick(list); });
}

void Player::type(TextView text) {
    for (const char16_t character : text)
        sendHeld(typing(character), 0, {});
}

void Player::press(int keyCode, Modifiers modifiers) {
    if (modifiers.autoRepeat)
        send(pressing(keyCode, modifiers));
    else
        sendHeld(pressing(keyCode, modifiers), 0, {});
}

void Player::hold(char16_t character, int repeats, const std::function<void()>& meanwhile) {
    sendHeld(typing(character), repeats, meanwhile);
}

void Player::holdKey(int keyCode, int repeats, const std::function<void()>& meanwhile) {
    sendHeld(pressing(keyCode, {}), repeats, meanwhile);
}

void Player::pressAccessKey(char16_t sign) {
    KeyPress press = typing(sign);
    press.typed.clear();
    press.key.alt = true;
    sendHeld(press, 0, {});
}

void Player::compose(TextView text) {
    Screen& where = screen();
    desktop_.deliver([&] { desktop_.keys.commit(where, desktop_.focus(where), text); });
}

void Player::sendHeld(KeyPress press, int repeats, const std::function<void()>& meanwhile) {
    send(press);
    if (meanwhile)
        meanwhile();
    press.autoRepeat = true;
    for (int i = 0; i < repeats; ++i)
        send(press);
    desktop_.deliver([&] { desktop_.keys.release(press.id); });
}

void Player::send(const KeyPress& press) {
    EXPECT_FALSE(desktop_.boxOpen()) << "a box stands over the screen at key " << press.key.code;
    Screen& where = screen();
    desktop_.deliver([&] {
        const KeyRoute::Rest rest = desktop_.keys.press(where, desktop_.focus(where), press);
        if (rest == KeyRoute::Rest::Field)
            editKey(*where.as<TextField>(desktop_.focusOf(where)), press.key);
        else if (rest == KeyRoute::Rest::List)
            moveKey(*where.as<ListBox>(desktop_.focusOf(where)), press.key);
    });
}

// What a native field does with a key that is left to it, as far as a test needs it.
void Player::editKey(TextField& field, const KeyEvent& event) {
    Screen& where = screen();
    const int caret = field.caret();
    const int selected = field.selectionLength();
    switch (event.code) {
        case key::kDelete:
            return eraseFrom(where, field);
        case key::kLeft:
            return where.edit(field, field.text(), selected ? caret : caret - 1, 0);
        case key::kRight:
            return where.edit(field, field.text(), caret + std::max(selected, 1), 0);
        case key::kHome:
            return where.edit(field, field.text(), 0, 0);
        case key::kEnd:
            return where.edit(field, field.text(), static_cast<int>(field.text().size()), 0);
        default:
            return;
    }
}

// The same for a list.
void Player::moveKey(ListBox& list, const KeyEvent& event) {
    const int last = static_cast<int>(list.items.size()) - 1;
    const int at = list.listIndex();
    if (last < 0)
        return;
    switch (event.code) {
        case key::kDown:
            return screen().selectItem(list, std::min(at + 1, last));
        case key::kUp:
            return screen().selectItem(list, at < 0 ? last : std::max(at - 1, 0));
        case key::kHome:
            return screen().selectItem(list, 0);
        case key::kEnd:
            return screen().selectItem(list, last);
        default:
            return;
    }
}

void Player::chooseMenu(const std::string& itemId) {
    const std::size_t before = desktop_.popUps.size();
    desktop_.chooseFromPopUp(itemId);
    press(key::kContextMenu);
    EXPECT_EQ(desktop_.popUps.size(), before + 1) << "no menu for " << itemId;
}

void Player::closeWindow() {
    EXPECT_FALSE(desktop_.boxOpen()) << "a box stands over the window's close button";
    Screen& where = screen();
    desktop_.deliver([&] { where.closeRequest(); });
}

}  // namespace quillor::testing
