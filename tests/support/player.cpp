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

// What typing a character, or a line of them, makes of a field.
void insertInto(Screen& screen, TextField& field, TextView typed) {
    Text text = field.text();
    text.replace(static_cast<std::size_t>(field.caret()),
                 static_cast<std::size_t>(field.selectionLength()), typed);
    if (field.maxLength > 0 && text.size() > static_cast<std::size_t>(field.maxLength))
        return;
    screen.edit(field, std::move(text), field.caret() + static_cast<int>(typed.size()), 0);
}

void eraseFrom(Screen& screen, TextField& field, int start, int length) {
    Text text = field.text();
    if (start < 0 || start >= static_cast<int>(text.size()))
        return;
    text.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
    screen.edit(field, std::move(text), start, 0);
}

}  // namespace

Screen& Player::screen() const {
    if (!desktop_.front())
        throw std::logic_error("no screen is open");
    return *desktop_.front();
}

bool Player::sees(const Control& control) {
    for (const Control* c = &control; c; c = c->parent)
        if (!c->visible)
            return false;
    return true;
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
    EXPECT_TRUE(sees(found)) << id << " is hidden from " << action;
    EXPECT_TRUE(takesInput(found)) << id << " is not enabled for " << action;
    if constexpr (std::is_same_v<T, Control>)
        return found;
    else {
        T* result = controlAs<T>(screen(), &found);
        if (!result)
            throw std::logic_error(id + " is of another kind, no " + action);
        return *result;
    }
}

template <typename T>
T* Player::focused() const {
    return controlAs<T>(screen(), desktop_.focusOf(screen()));
}

void Player::click(const std::string& id) {
    Label& label = usable<Label>(id, "click");
    EXPECT_TRUE(label.onClick) << id << " cannot be clicked";
    Screen& where = screen();
    desktop_.deliver([&] { where.mouseMove(label); });
    desktop_.deliver([&] { where.mouseDown(label); });
    desktop_.deliver([&] { where.mouseUp(label); });
    desktop_.deliver([&] { where.click(label); });
}

void Player::rightClick(const std::string& id) {
    Screen& where = screen();
    Control& target = usable<Control>(id, "right click");
    desktop_.deliver([&] { where.rightClick(target); });
}

void Player::hover(const std::string& id) {
    Control& target = usable<Control>(id, "hover");
    desktop_.deliver([&] { screen().mouseMove(target); });
}

void Player::mouseDown(const std::string& id) {
    Label& label = usable<Label>(id, "press");
    desktop_.deliver([&] { screen().mouseDown(label); });
}

void Player::mouseUp(const std::string& id) {
    Label& label = usable<Label>(id, "release");
    desktop_.deliver([&] { screen().mouseUp(label); });
}

void Player::clickInto(const std::string& fieldId, int caret) {
    selectText(fieldId, caret, 0);
}

void Player::selectText(const std::string& fieldId, int start, int length) {
    TextField& field = usable<TextField>(fieldId, "click");
    Screen& where = screen();
    desktop_.deliver([&] { desktop_.moveFocus(where, &field); });
    desktop_.deliver([&] { where.edit(field, field.text(), start, length); });
}

void Player::selectItem(const std::string& listId, int index) {
    ListBox& list = usable<ListBox>(listId, "select");
    Screen& where = screen();
    desktop_.deliver([&] { desktop_.moveFocus(where, &list); });
    desktop_.deliver([&] { where.selectItem(list, index); });
}

void Player::doubleClickItem(const std::string& listId, int index) {
    selectItem(listId, index);
    ListBox& list = usable<ListBox>(listId, "double click");
    desktop_.deliver([&] { screen().doubleClick(list); });
}

void Player::type(TextView text) {
    for (const char16_t character : text)
        key(codeOf(character), {}, character);
}

void Player::press(int keyCode, Modifiers modifiers) {
    const bool plain = !modifiers.control && !modifiers.alt;
    if (plain && keyCode == key::kReturn)
        key(keyCode, modifiers, kCharReturn);
    else if (plain && keyCode == key::kBackspace)
        key(keyCode, modifiers, kCharBackspace);
    else
        key(keyCode, modifiers, 0);
}

void Player::key(int code, Modifiers modifiers, char16_t typed) {
    EXPECT_FALSE(desktop_.boxOpen()) << "a box stands over the screen at key " << code;
    Screen& where = screen();
    KeyEvent event{code,          modifiers.shift,      modifiers.control,
                   modifiers.alt, modifiers.autoRepeat, false};
    desktop_.deliver([&] {
        where.keyDown(event);
        if (event.handled || desktop_.front() != &where)
            return;
        if (auto* field = focused<TextField>())
            where.fieldKeyDown(*field, event);
        else if (auto* list = focused<ListBox>())
            where.listKeyDown(*list, event);
    });
    if (event.handled || desktop_.front() != &where)
        return;
    if (typed == kCharReturn && modifiers.autoRepeat && focused<Label>())
        return;  // a button held down is pressed once
    if (typed)
        desktop_.deliver([&] { character(typed); });
    else if (auto* field = focused<TextField>())
        desktop_.deliver([&] { editKey(*field, code); });
}

// As a window does: a focused field takes characters, a focused button takes
// the blank and Return, and the screen the rest.
void Player::character(char16_t typed) {
    Screen& where = screen();
    auto* button = focused<Label>();
    if (auto* field = focused<TextField>())
        typeInto(*field, typed);
    else if (button && (typed == u' ' || typed == kCharReturn))
        where.click(*button);
    else
        where.keyPress(typed);
}

void Player::typeInto(TextField& field, char16_t typed) {
    Screen& where = screen();
    const char16_t passed = where.fieldKeyPress(field, typed);
    if (desktop_.front() != &where)
        return;
    if (passed == kCharBackspace)
        editKey(field, key::kBackspace);
    else if (passed >= u' ')
        insertInto(where, field, TextView(&passed, 1));
}

void Player::editKey(TextField& field, int code) {
    Screen& where = screen();
    const int caret = field.caret();
    const int selected = field.selectionLength();
    switch (code) {
        case key::kBackspace:
            return eraseFrom(where, field, selected ? caret : caret - 1, std::max(selected, 1));
        case key::kDelete:
            return eraseFrom(where, field, caret, std::max(selected, 1));
        case key::kLeft:
            return where.edit(field, field.text(), selected ? caret : caret - 1, 0);
        case key::kRight:
            return where.edit(field, field.text(), caret + std::max(selected, 1), 0);
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
