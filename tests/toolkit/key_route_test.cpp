// The way of a key through a screen, and what a key does that is held.
#include "toolkit/key_route.h"

#include <gtest/gtest.h>

#include "tests/support/plain_screen.h"

namespace quillor {
namespace {

class Keys : public ::testing::Test {
  protected:
    Keys() {
        screen.keyDownHandler = [this](KeyEvent& event) {
            log += "down" + std::to_string(event.code) + " ";
            event.handled = event.code == swallowed;
        };
        screen.keyPressHandler = [this](char16_t c) {
            log += std::string("press-") + static_cast<char>(c) + " ";
        };
        for (Label* each : {&button, &other}) {
            each->onMouseDown = [this] { log += "mousedown "; };
            each->onMouseUp = [this] { log += "mouseup "; };
            each->onClick = [this, each] { log += each->id + " "; };
        }
        screen.addButton(button, "click", 0, 0);
        screen.addButton(other, "other", 0, 600);
        screen.addField(field, "txt", 0, 1200);
        screen.add(list).place(0, 1800, 900, 900);
    }

    static KeyPress keyOf(int code, Text typed = {}) {
        KeyPress press;
        press.key.code = code;
        press.typed = std::move(typed);
        press.sign = press.typed.empty() ? u'\0' : press.typed.front();
        press.id = code;
        return press;
    }
    static KeyPress letter(char16_t small) { return keyOf(small - 32, Text(1, small)); }

    KeyRoute::Rest press(const KeyPress& key) { return route.press(screen, focus, key); }
    KeyRoute::Rest repeat(KeyPress key) {
        key.autoRepeat = true;
        return press(key);
    }

    PlainScreen screen;
    Label button, other;
    TextField field;
    ListBox list;
    Focus focus{screen};
    KeyRoute route;
    std::string log;
    int swallowed = -1;
};

TEST_F(Keys, ComeToTheScreensLastResortWhenNobodyHasTakenThem) {
    screen.unusedHandler = [this](KeyEvent& event) {
        log += "unused ";
        event.handled = true;
    };
    focus.take(list);
    list.onKeyDown = [](KeyEvent& event) { event.handled = event.code == 'B'; };
    press(letter(u'a'));
    press(letter(u'b'));
    swallowed = 'C';
    press(letter(u'c'));
    EXPECT_EQ(log, "down65 unused down66 down67 ");
}

TEST_F(Keys, TellWhetherTheyWereACommand) {
    swallowed = 'A';
    press(letter(u'a'));
    EXPECT_TRUE(route.wasTaken());
    press(letter(u'b'));
    EXPECT_FALSE(route.wasTaken());
    press(letter(u'a'));
    repeat(letter(u'a'));
    EXPECT_FALSE(route.wasTaken());
}

TEST_F(Keys, ReachTheScreenAsKeyAndAsCharacter) {
    press(letter(u'a'));
    EXPECT_EQ(log, "down65 press-a ");
}

TEST_F(Keys, StopAtTheFirstThatTakesThem) {
    focus.take(field);
    field.onKeyDown = [this](KeyEvent& event) {
        log += "field ";
        event.handled = event.code == 'B';
    };
    swallowed = 'A';
    press(letter(u'a'));
    press(letter(u'b'));
    press(letter(u'c'));
    EXPECT_EQ(log, "down65 down66 field down67 field ");
    EXPECT_EQ(field.text(), u"c");
}

TEST_F(Keys, AreFilteredOnTheirWayIntoAField) {
    focus.take(field);
    field.onKeyPress = [](char16_t c) { return c == u'?' ? u'\0' : c == u'a' ? u'A' : c; };
    press(letter(u'a'));
    press(keyOf(0, u"?"));
    press(letter(u'b'));
    EXPECT_EQ(field.text(), u"Ab");
    press(keyOf(key::kBackspace, Text(1, kCharBackspace)));
    EXPECT_EQ(field.text(), u"A");
}

TEST_F(Keys, ThatTypeNothingAreLeftToTheFieldOrList) {
    focus.take(field);
    EXPECT_EQ(press(keyOf(key::kLeft)), KeyRoute::Rest::Field);
    EXPECT_EQ(repeat(keyOf(key::kLeft)), KeyRoute::Rest::Field);
    focus.take(list);
    EXPECT_EQ(press(keyOf(key::kDown)), KeyRoute::Rest::List);
    EXPECT_EQ(repeat(keyOf(key::kDown)), KeyRoute::Rest::List);
    EXPECT_EQ(log, "down37 down40 ");
    list.onKeyDown = [](KeyEvent& event) { event.handled = true; };
    EXPECT_EQ(press(keyOf(key::kUp)), KeyRoute::Rest::None);
}

TEST_F(Keys, PressTheFocusedButtonByReturnAndBySpaceOnItsRelease) {
    focus.take(button);
    press(keyOf(key::kReturn, Text(1, kCharReturn)));
    EXPECT_EQ(log, "down13 mousedown mouseup click ");
    log.clear();
    press(keyOf(key::kSpace, u" "));
    EXPECT_EQ(log, "down32 mousedown ");
    route.release(key::kSpace);
    EXPECT_EQ(log, "down32 mousedown mouseup click ");
}

TEST_F(Keys, LetAButtonGoWithoutAClickWhenTheFocusHasLeftIt) {
    focus.take(button);
    press(keyOf(key::kSpace, u" "));
    focus.next();
    route.release(key::kSpace);
    EXPECT_EQ(log, "down32 mousedown mouseup ");
    press(keyOf(key::kSpace, u" "));
    route.letGo();
    route.release(key::kSpace);
    EXPECT_EQ(log, "down32 mousedown mouseup down32 mousedown mouseup ");
}

TEST_F(Keys, ClickByAccessKeyWhatIsVisibleAndEnabled) {
    button.caption = other.caption = u"A&DD";
    KeyPress key = letter(u'd');
    key.typed.clear();
    key.key.alt = true;
    button.visible = false;
    focus.take(field);
    press(key);
    EXPECT_EQ(log, "down68 mousedown mouseup other ");
    other.enabled = false;
    log.clear();
    press(key);
    EXPECT_EQ(log, "down68 ");
}

TEST_F(Keys, MoveTheFocusByTabForAsLongAsItIsHeld) {
    press(keyOf(key::kTab));
    EXPECT_EQ(focus.control(), &button);
    repeat(keyOf(key::kTab));
    EXPECT_EQ(focus.control(), &other);
}

TEST_F(Keys, ThatAreHeldActOnTheScreenOnce) {
    press(letter(u'k'));
    repeat(letter(u'k'));
    swallowed = 'K';
    press(letter(u'k'));
    repeat(letter(u'k'));
    EXPECT_EQ(log, "down75 press-k down75 ");
}

TEST_F(Keys, ThatAreHeldTypeOnIntoAField) {
    focus.take(field);
    press(letter(u'a'));
    repeat(letter(u'a'));
    repeat(letter(u'a'));
    EXPECT_EQ(field.text(), u"aaa");
}

TEST_F(Keys, ThatAreHeldDoNotRepeatACommandOfAField) {
    focus.take(field);
    int commands = 0;
    field.onKeyPress = [&](char16_t c) {
        ++commands;
        return c == u'h' ? u'\0' : c;
    };
    press(letter(u'h'));
    repeat(letter(u'h'));
    EXPECT_EQ(commands, 1);
    field.onKeyDown = [](KeyEvent& event) { event.handled = event.code == 'V'; };
    press(keyOf('V'));
    EXPECT_EQ(repeat(keyOf('V')), KeyRoute::Rest::None);
}

TEST_F(Keys, ThatEraseStopAtTheBeginningOfTheText) {
    const KeyPress backspace = keyOf(key::kBackspace, Text(1, kCharBackspace));
    field.setText(u"ab");
    field.setCaret(2);
    focus.take(field);
    int atBeginning = 0;
    field.onKeyPress = [&](char16_t c) {
        atBeginning += field.caret() == 0 ? 1 : 0;
        return c;
    };
    press(backspace);
    for (int i = 0; i < 5; ++i)
        repeat(backspace);
    EXPECT_EQ(field.text(), u"");
    EXPECT_EQ(atBeginning, 0);
    press(backspace);
    EXPECT_EQ(atBeginning, 1);
}

TEST_F(Keys, HeldAcrossAChangeOfScreenDoNothingUntilLetGo) {
    PlainScreen next;
    TextField entry;
    next.addField(entry, "txt", 0, 0);
    Focus nextFocus(next);
    nextFocus.take(entry);
    focus.take(field);
    KeyPress held = letter(u'i');
    press(held);
    held.autoRepeat = true;
    route.press(next, nextFocus, held);
    route.forget(screen);
    route.press(next, nextFocus, held);
    EXPECT_EQ(entry.text(), u"");
    route.press(next, nextFocus, letter(u'i'));
    route.press(next, nextFocus, held);
    EXPECT_EQ(entry.text(), u"ii");
}

TEST_F(Keys, HeldWhileTheFocusMovesTypeNothingThere) {
    press(letter(u'i'));
    focus.take(field);
    repeat(letter(u'i'));
    EXPECT_EQ(field.text(), u"");
}

TEST_F(Keys, HeldWhileABoxWasOpenDoNothing) {
    focus.take(field);
    press(letter(u'y'));
    route.letGo();
    repeat(letter(u'y'));
    EXPECT_EQ(field.text(), u"y");
}

TEST_F(Keys, GoNoFurtherOnceTheirScreenIsClosed) {
    focus.take(field);
    field.onKeyPress = [this](char16_t c) {
        route.forget(screen);
        return c;
    };
    press(letter(u'a'));
    EXPECT_EQ(field.text(), u"");
}

TEST_F(Keys, UndoAndRedoInTheFocusedField) {
    focus.take(field);
    press(letter(u'a'));
    KeyPress undo = keyOf('Z');
    undo.key.control = true;
    press(undo);
    EXPECT_EQ(field.text(), u"");
    undo.key.shift = true;
    press(undo);
    EXPECT_EQ(field.text(), u"a");
    undo.key.shift = false;
    press(undo);
    KeyPress redo = keyOf('Y');
    redo.key.control = true;
    press(redo);
    EXPECT_EQ(field.text(), u"a");
}

TEST_F(Keys, OfAnInputMethodAreFilteredInTheTextAsItStandsThen) {
    focus.take(field);
    field.onKeyPress = [this](char16_t c) { return c == u' ' && field.text().empty() ? u'\0' : c; };
    route.commit(screen, focus, u"\n el\nsol\r\n");
    EXPECT_EQ(field.text(), u"el sol");
    field.undo();
    EXPECT_EQ(field.text(), u"");
}

TEST_F(Keys, OfAnInputMethodReachTheScreenWithoutAField) {
    route.commit(screen, focus, u"ab");
    EXPECT_EQ(log, "press-a press-b ");
}

}  // namespace
}  // namespace quillor
