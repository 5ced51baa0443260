// Qt's keys as virtual key codes and as characters.
#include "qt/windows/key_mapping.h"

#include <gtest/gtest.h>

namespace quillor {

namespace {

QKeyEvent pressed(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
    return QKeyEvent(QEvent::KeyPress, key, modifiers, text);
}

TEST(KeyMapping, GivesLettersAndDigitsTheirCodes) {
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_A)), 65);
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_Z)), 90);
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_7)), 55);
}

// As the keyboards of X11 and Wayland number their keys: 1 is the tenth.
QKeyEvent digitKey(quint32 scanCode, int key, Qt::KeyboardModifiers modifiers, const char* text) {
    return QKeyEvent(QEvent::KeyPress, key, modifiers, scanCode, 0, 0, text);
}

TEST(KeyMapping, GivesTheDigitsKeysTheirCodesWhateverSignTheyType) {
    EXPECT_EQ(virtualKeyCode(digitKey(10, Qt::Key_Exclam, Qt::ShiftModifier, "!")), 49);
    EXPECT_EQ(virtualKeyCode(digitKey(11, Qt::Key_QuoteDbl, Qt::ShiftModifier, "\"")), 50);
    EXPECT_EQ(virtualKeyCode(digitKey(12, Qt::Key_periodcentered, Qt::ShiftModifier, "·")), 51);
    EXPECT_EQ(virtualKeyCode(digitKey(13, Qt::Key_Apostrophe, {}, "'")), 52);
    EXPECT_EQ(virtualKeyCode(digitKey(13, Qt::Key_4, Qt::ShiftModifier, "4")), 52);
    EXPECT_EQ(virtualKeyCode(digitKey(19, Qt::Key_Equal, Qt::ShiftModifier, "=")), 48);
    EXPECT_EQ(virtualKeyCode(digitKey(20, Qt::Key_Minus, {}, "-")), 0);
}

TEST(KeyMapping, KnowsAKeyAsTheSameWhateverItTypes) {
    EXPECT_EQ(keyId(digitKey(10, Qt::Key_Exclam, Qt::ShiftModifier, "!")),
              keyId(digitKey(10, Qt::Key_1, {}, "1")));
    EXPECT_NE(keyId(pressed(Qt::Key_A)), keyId(pressed(Qt::Key_B)));
}

TEST(KeyMapping, TellsTheDigitsOfTheKeypadApart) {
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_0, Qt::KeypadModifier)), 96);
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_9, Qt::KeypadModifier)), 105);
}

TEST(KeyMapping, KnowsTheKeysThatScreensUse) {
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_Return)), key::kReturn);
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_Enter, Qt::KeypadModifier)), key::kReturn);
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_Backspace)), key::kBackspace);
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_Escape)), key::kEscape);
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_F2)), key::kF2);
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_F3)), key::kF3);
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_Menu)), key::kContextMenu);
    EXPECT_EQ(virtualKeyCode(pressed(Qt::Key_Delete)), key::kDelete);
}

TEST(KeyMapping, HandsOnModifiersAndRepetition) {
    const QKeyEvent held(QEvent::KeyPress, Qt::Key_E, Qt::ControlModifier, "\x05", true);
    const KeyEvent event = toKeyPress(held).key;
    EXPECT_TRUE(event.onlyControl());
    EXPECT_TRUE(RepeatFinder().isRepeat(held));
    EXPECT_FALSE(event.handled);
}

TEST(KeyMapping, TypesPrintableTextReturnAndBackspace) {
    EXPECT_EQ(typedText(pressed(Qt::Key_Ntilde, {}, "ñ")), "ñ");
    EXPECT_EQ(typedText(pressed(Qt::Key_Return, {}, "\r")), "\r");
    EXPECT_EQ(typedText(pressed(Qt::Key_Enter, Qt::KeypadModifier, "\r")), "\r");
    EXPECT_EQ(typedText(pressed(Qt::Key_Backspace, {}, "\b")), "\b");
}

TEST(KeyMapping, TypesNothingForShortcutsAndFunctionKeys) {
    EXPECT_TRUE(typedText(pressed(Qt::Key_V, Qt::ControlModifier, "\x16")).isEmpty());
    EXPECT_TRUE(typedText(pressed(Qt::Key_A, Qt::AltModifier, "a")).isEmpty());
    EXPECT_TRUE(typedText(pressed(Qt::Key_Backspace, Qt::ControlModifier, "\b")).isEmpty());
    EXPECT_TRUE(typedText(pressed(Qt::Key_F2)).isEmpty());
}

TEST(KeyMapping, TypesWhatTheRightHandAltKeyGives) {
    EXPECT_EQ(typedText(pressed(Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@")), "@");
}

}  // namespace

}  // namespace quillor
