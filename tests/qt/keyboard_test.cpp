// Keys on their way through a window.
#include <QInputMethodEvent>
#include <QLineEdit>

#include "tests/qt/shell_fixture.h"

namespace quillor {

namespace {

class Keyboard : public ShellTest {
  protected:
    Keyboard() {
        screen.keyDownHandler = [this](KeyEvent& event) {
            if (!event.alt && !event.control)
                log.push_back("down " + std::to_string(event.code));
            event.handled = event.code == swallowed;
        };
        screen.keyPressHandler = [this](char16_t c) {
            log.push_back("press " + std::to_string(c));
        };
    }

    void compose(const QString& text) {
        QInputMethodEvent event("", {});
        event.setCommitString(text);
        QApplication::sendEvent(shell.find(&screen)->focusWidget(), &event);
    }

    using Log = std::vector<std::string>;
    Log log;
    int swallowed = -1;
};

TEST_F(Keyboard, ReachesTheScreenAsKeyAndAsCharacter) {
    open();
    type('a');
    EXPECT_EQ(log, (Log{"down 65", "press 97"}));
}

TEST_F(Keyboard, StopsAtAScreenThatHasHandledTheKey) {
    TextField field;
    screen.firstFocus = &addField(field, "txt", 0, 0);
    field.onKeyDown = [this](KeyEvent&) { log.push_back("field"); };
    swallowed = 65;
    open();
    type('a');
    EXPECT_EQ(log, Log{"down 65"});
    EXPECT_EQ(field.text(), u"");
}

TEST_F(Keyboard, AsksTheFieldBeforeTyping) {
    TextField field;
    screen.firstFocus = &addField(field, "txt", 0, 0);
    field.onKeyDown = [this](KeyEvent& event) { event.handled = event.code == 66; };
    open();
    type('a');
    type('b');
    EXPECT_EQ(field.text(), u"a");
    EXPECT_EQ(log, (Log{"down 65", "down 66"}));
}

TEST_F(Keyboard, LetsTheFilterReplaceAndSwallowCharacters) {
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

TEST_F(Keyboard, SendsReturnAndBackspaceThroughTheFilter) {
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

TEST_F(Keyboard, FiltersComposedCharactersOneByOne) {
    TextField field;
    screen.firstFocus = &addField(field, "txt", 0, 0);
    field.onKeyPress = [](char16_t c) { return c == u'!' ? char16_t{0} : c == u'ñ' ? u'Ñ' : c; };
    open();
    compose("ñu!x");
    EXPECT_EQ(field.text(), u"Ñux");
}

TEST_F(Keyboard, SendsComposedCharactersToTheScreenWhenNoFieldHasTheFocus) {
    Label button;
    screen.firstFocus = &addButton(button, "lbl", 0, 0);
    open();
    compose("ñ");
    EXPECT_EQ(log, Log{"press 241"});
}

TEST_F(Keyboard, PressesAButtonWithSpaceAndDoesNotTypeIt) {
    Label button;
    screen.firstFocus = &addButton(button, "lbl", 0, 0);
    button.onMouseDown = [this] { log.push_back("mouse down"); };
    button.onMouseUp = [this] { log.push_back("mouse up"); };
    button.onClick = [this] { log.push_back("click"); };
    open();
    press(Qt::Key_Space, {}, " ");
    EXPECT_EQ(log, (Log{"down 32", "mouse down", "mouse up", "click"}));
}

TEST_F(Keyboard, GivesReturnToTheScreenBeforeTheButton) {
    Label button;
    screen.firstFocus = &addButton(button, "lbl", 0, 0);
    button.onClick = [this] { log.push_back("click"); };
    open();
    press(Qt::Key_Return, {}, "\r");
    swallowed = key::kReturn;
    press(Qt::Key_Return, {}, "\r");
    EXPECT_EQ(log, (Log{"down 13", "click", "down 13"}));
}

TEST_F(Keyboard, TypesOnTheScreenWhileAButtonHasTheFocus) {
    Label button;
    screen.firstFocus = &addButton(button, "lbl", 0, 0);
    button.onClick = [this] { log.push_back("click"); };
    open();
    type('k');
    EXPECT_EQ(log, (Log{"down 75", "press 107"}));
}

TEST_F(Keyboard, ClicksByAccessKeyWhatIsVisibleAndEnabled) {
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

TEST_F(Keyboard, FindsNoAccessKeyInACaptionThatIsData) {
    Label title;
    addButton(title, "lbl", 0, 0).caption = u"R&B";
    title.literal = true;
    title.onClick = [this] { log.push_back("click"); };
    open();
    press(Qt::Key_B, Qt::AltModifier, "b");
    EXPECT_EQ(log, Log{});
}

TEST_F(Keyboard, SurvivesAScreenThatClosesItselfInTheMiddle) {
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

TEST_F(Keyboard, LeavesTheClipboardToAFieldThatDoesNotTakeIt) {
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
