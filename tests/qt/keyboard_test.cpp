// Keys on their way through a window.
#include <QLineEdit>

#include "core/text_rules.h"
#include "tests/qt/shell_fixture.h"

namespace quillor {

namespace {

class WindowKeys : public ShellTest {
  protected:
    WindowKeys() {
        screen.keyDownHandler = [this](KeyEvent& event) {
            if (!event.alt && !event.control)
                log.push_back("down " + std::to_string(event.code));
            event.handled = event.code == swallowed;
        };
        screen.keyPressHandler = [this](char16_t c) {
            log.push_back("press " + std::to_string(c));
        };
    }

    using Log = std::vector<std::string>;
    Log log;
    int swallowed = -1;
};

TEST_F(WindowKeys, ReachesTheScreenAsKeyAndAsCharacter) {
    open();
    type('a');
    EXPECT_EQ(log, (Log{"down 65", "press 97"}));
}

TEST_F(WindowKeys, StopsAtAScreenThatHasHandledTheKey) {
    TextField field;
    screen.firstFocus = &addField(field, "txt", 0, 0);
    field.onKeyDown = [this](KeyEvent&) { log.push_back("field"); };
    swallowed = 65;
    open();
    type('a');
    EXPECT_EQ(log, Log{"down 65"});
    EXPECT_EQ(field.text(), u"");
}

TEST_F(WindowKeys, AsksTheFieldBeforeTyping) {
    TextField field;
    screen.firstFocus = &addField(field, "txt", 0, 0);
    field.onKeyDown = [this](KeyEvent& event) { event.handled = event.code == 66; };
    open();
    type('a');
    type('b');
    EXPECT_EQ(field.text(), u"a");
    EXPECT_EQ(log, (Log{"down 65", "down 66"}));
}

TEST_F(WindowKeys, LetsTheFilterReplaceAndSwallowCharacters) {
    TextField field;
    screen.firstFocus = &addField(field, "txt", 0, 0);
    field.onKeyPress = [](char16_t c) { return c == u'?' ? char16_t{0} : c == u'a' ? u'A' : c; };
    open();
    type('a');
    type('?');
    type('b');
    EXPECT_EQ(field.text(), u"Ab");
    EXPECT_EQ(as<QLineEdit>(field).text(), "Ab");
}

TEST_F(WindowKeys, SendsReturnAndBackspaceThroughTheFilter) {
    TextField field;
    field.setText(u"ab");
    field.setCaret(2);
    screen.firstFocus = &addField(field, "txt", 0, 0);
    std::vector<int> seen;
    field.onKeyPress = [&](char16_t c) {
        seen.push_back(c);
        return seen.size() > 1 ? char16_t{0} : c;
    };
    open();
    press(Qt::Key_Backspace, {}, "\b");
    press(Qt::Key_Backspace, {}, "\b");
    press(Qt::Key_Return, {}, "\r");
    EXPECT_EQ(seen, (std::vector<int>{8, 8, 13}));
    EXPECT_EQ(field.text(), u"a");
}

TEST_F(WindowKeys, FiltersComposedCharactersOneByOne) {
    TextField field;
    screen.firstFocus = &addField(field, "txt", 0, 0);
    field.onKeyPress = [](char16_t c) { return c == u'!' ? char16_t{0} : c == u'ñ' ? u'Ñ' : c; };
    open();
    compose("ñu!x");
    EXPECT_EQ(field.text(), u"Ñux");
}

TEST_F(WindowKeys, FiltersComposedCharactersInTheTextAsItStandsThen) {
    TextField field;
    screen.firstFocus = &addField(field, "txt", 0, 0);
    field.onKeyPress = [&](char16_t c) {
        const bool leading = c == u' ' && field.text().empty();
        return leading ? u'\0' : upperCase(c);
    };
    open();
    compose(" el sol");
    EXPECT_EQ(field.text(), u"EL SOL");
    EXPECT_EQ(as<QLineEdit>(field).text(), "EL SOL");
}

TEST_F(WindowKeys, ReplacesWhatAnInputMethodTakesBack) {
    TextField field;
    field.setText(u"hola");
    field.setCaret(4);
    screen.firstFocus = &addField(field, "txt", 0, 0);
    open();
    QInputMethodEvent event("", {});
    event.setCommitString("as", -2, 2);
    QApplication::sendEvent(&widgetOf(field), &event);
    EXPECT_EQ(field.text(), u"hoas");
}

TEST_F(WindowKeys, ActsOnceWhileAKeyIsHeld) {
    open();
    hold(Qt::Key_F, "f", 3);
    EXPECT_EQ(log, (Log{"down 70", "press 102"}));
}

TEST_F(WindowKeys, TypesOnIntoAFieldWhileAKeyIsHeld) {
    TextField field;
    screen.firstFocus = &addField(field, "txt", 0, 0);
    open();
    hold(Qt::Key_A, "a", 3);
    EXPECT_EQ(field.text(), u"aaaa");
}

TEST_F(WindowKeys, DoesNothingOnANewScreenWithAKeyThatIsStillHeld) {
    PlainScreen next;
    TextField entry;
    next.firstFocus = &next.addField(entry, "txt", 0, 0);
    screen.keyDownHandler = [&](KeyEvent&) {
        shell.show(next);
        shell.close(screen);
    };
    open();
    hold(Qt::Key_I, "i", 5);
    EXPECT_TRUE(shell.isOpen(next));
    EXPECT_EQ(entry.text(), u"");
    hold(Qt::Key_I, "i", 1);
    EXPECT_EQ(entry.text(), u"ii");
    shell.event([&] { shell.close(next); });
}

TEST_F(WindowKeys, KnowsAHeldKeyByItsReleaseAtTheSameMoment) {
    TextField field;
    addField(field, "txt", 0, 0);
    open();
    const auto send = [&](QEvent::Type type, quint64 time) {
        QKeyEvent event(type, Qt::Key_F, {}, "f");
        event.setTimestamp(time);
        QApplication::sendEvent(shell.find(&screen)->focusWidget(), &event);
    };
    send(QEvent::KeyPress, 1000);
    for (const quint64 time : {1500U, 1540U}) {
        send(QEvent::KeyRelease, time);
        send(QEvent::KeyPress, time);
    }
    EXPECT_EQ(log, (Log{"down 70", "press 102"}));
    send(QEvent::KeyRelease, 1560);
    send(QEvent::KeyPress, 1660);
    EXPECT_EQ(log.size(), 4U);
    shell.event([&] { screen.setFocus(field); });
    send(QEvent::KeyRelease, 1700);
    send(QEvent::KeyPress, 1800);
    send(QEvent::KeyRelease, 1900);
    send(QEvent::KeyPress, 1901);
    EXPECT_EQ(field.text(), u"ff");
}

TEST_F(WindowKeys, DoesNothingWithAKeyThatWasHeldWhileABoxWasOpen) {
    TextField field;
    screen.firstFocus = &addField(field, "txt", 0, 0);
    open();
    hold(Qt::Key_Y, "y", 0);
    shell.event([&] { shell.modally([] {}); });
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Y, {}, "y", true);
    QApplication::sendEvent(&widgetOf(field), &held);
    EXPECT_EQ(field.text(), u"y");
}

TEST_F(WindowKeys, SendsComposedCharactersToTheScreenWhenNoFieldHasTheFocus) {
    Label button;
    screen.firstFocus = &addButton(button, "lbl", 0, 0);
    open();
    compose("ñ");
    EXPECT_EQ(log, Log{"press 241"});
}

TEST_F(WindowKeys, PressesAButtonWithSpaceAndDoesNotTypeIt) {
    Label button;
    screen.firstFocus = &addButton(button, "lbl", 0, 0);
    button.onMouseDown = [this] { log.push_back("mouse down"); };
    button.onMouseUp = [this] { log.push_back("mouse up"); };
    button.onClick = [this] { log.push_back("click"); };
    open();
    press(Qt::Key_Space, {}, " ");
    EXPECT_EQ(log, (Log{"down 32", "mouse down", "mouse up", "click"}));
}

TEST_F(WindowKeys, GivesReturnToTheScreenBeforeTheButton) {
    Label button;
    screen.firstFocus = &addButton(button, "lbl", 0, 0);
    button.onClick = [this] { log.push_back("click"); };
    open();
    press(Qt::Key_Return, {}, "\r");
    swallowed = key::kReturn;
    press(Qt::Key_Return, {}, "\r");
    EXPECT_EQ(log, (Log{"down 13", "click", "down 13"}));
}

TEST_F(WindowKeys, TypesOnTheScreenWhileAButtonHasTheFocus) {
    Label button;
    screen.firstFocus = &addButton(button, "lbl", 0, 0);
    button.onClick = [this] { log.push_back("click"); };
    open();
    type('k');
    EXPECT_EQ(log, (Log{"down 75", "press 107"}));
}

TEST_F(WindowKeys, ClicksByAccessKeyWhatIsVisibleAndEnabled) {
    Label first;
    Label second;
    addButton(first, "lbl1", 0, 0).caption = u"&ADD";
    addButton(second, "lbl2", 0, 600).caption = u"&ADD";
    first.onClick = [this] { log.push_back("first"); };
    second.onClick = [this] { log.push_back("second"); };
    first.visible = false;
    open();
    press(Qt::Key_A, Qt::AltModifier, "a");
    shell.event([&] { second.enabled = false; });
    press(Qt::Key_A, Qt::AltModifier, "a");
    EXPECT_EQ(log, Log{"second"});
}

TEST_F(WindowKeys, FindsNoAccessKeyInACaptionThatIsData) {
    Label title;
    addButton(title, "lbl", 0, 0).caption = u"R&B";
    title.literal = true;
    title.onClick = [this] { log.push_back("click"); };
    open();
    press(Qt::Key_B, Qt::AltModifier, "b");
    EXPECT_EQ(log, Log{});
}

TEST_F(WindowKeys, SurvivesAScreenThatClosesItselfInTheMiddle) {
    TextField field;
    screen.firstFocus = &addField(field, "txt", 0, 0);
    field.onKeyPress = [this](char16_t c) {
        shell.close(screen);
        return c;
    };
    PageWindow& window = open();
    type('a');
    EXPECT_FALSE(shell.isOpen(screen));
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(field.text(), u"");
}

TEST_F(WindowKeys, LeavesTheClipboardToAFieldThatDoesNotTakeIt) {
    TextField field;
    field.setText(u"abc");
    field.selectAll();
    screen.firstFocus = &addField(field, "txt", 0, 0);
    field.onKeyPress = [](char16_t) { return char16_t{0}; };
    open();
    press(Qt::Key_X, Qt::ControlModifier, "\x18");
    EXPECT_EQ(field.text(), u"");
}

}  // namespace

}  // namespace quillor
