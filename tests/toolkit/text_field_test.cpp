// What a field holds, when it tells of a change, and what can be undone.
#include <gtest/gtest.h>

#include "core/text_rules.h"
#include "toolkit/controls.h"

namespace quillor {
namespace {

TEST(TextField, CutsSetTextToItsLength) {
    TextField field;
    field.maxLength = 3;
    field.setText(u"abcdef");
    EXPECT_EQ(field.text(), u"abc");
}

TEST(TextField, HasNoLimitByItself) {
    TextField field;
    field.setText(Text(5000, u'x'));
    EXPECT_EQ(field.text().size(), 5000U);
}

TEST(TextField, TellsOfAChangeOnlyWhenTheTextDiffers) {
    TextField field;
    int changes = 0;
    field.onChange = [&] { ++changes; };
    field.setText(u"a");
    field.setText(u"a");
    field.userEdited(u"a", 1, 0);
    EXPECT_EQ(changes, 1);
    field.userEdited(u"ab", 2, 0);
    EXPECT_EQ(changes, 2);
}

TEST(TextField, HoldsTheCaretWithinTheText) {
    TextField field;
    field.setText(u"abc");
    field.setCaret(99);
    EXPECT_EQ(field.caret(), 3);
    field.setCaret(-1);
    EXPECT_EQ(field.caret(), 0);
    field.setCaret(3);
    field.setText(u"a");
    EXPECT_EQ(field.caret(), 1);
}

TEST(TextField, HoldsTheSelectionWithinTheText) {
    TextField field;
    field.setText(u"abcd");
    field.select(2, 99);
    EXPECT_EQ(field.selectedText(), u"cd");
    field.select(1, -5);
    EXPECT_EQ(field.selectedText(), u"");
    field.selectAll();
    EXPECT_EQ(field.selectedText(), u"abcd");
}

TEST(TextField, SelectsNothingOnceItsTextIsSet) {
    TextField field;
    field.setText(u"abcd");
    field.selectAll();
    field.setText(u"wxyz");
    EXPECT_EQ(field.selectionLength(), 0);
}

TEST(TextField, PutsTextInOneLine) {
    TextField field;
    field.setText(u"\r\nel\r\nsol\n\nsale\r");
    EXPECT_EQ(field.text(), u"el sol  sale");
}

TEST(TextField, PutsWhatIsPastedInOneLine) {
    TextField field;
    field.setText(u"xy");
    field.userEdited(u"xa\r\nb\ny", 5, 0);
    EXPECT_EQ(field.text(), u"xa by");
    EXPECT_EQ(field.caret(), 4);
}

TEST(TextField, CutsWhatIsPastedAndNotWhatWasThere) {
    TextField field;
    field.maxLength = 6;
    field.setText(u"abcd");
    field.userEdited(u"ab\r\n123cd", 7, 0);
    EXPECT_EQ(field.text(), u"ab12cd");
    EXPECT_EQ(field.caret(), 4);
}

TEST(TextField, TypesOverTheSelectionWhileThereIsRoom) {
    TextField field;
    field.maxLength = 3;
    field.setText(u"abc");
    field.setCaret(3);
    field.type(u'd');
    EXPECT_EQ(field.text(), u"abc");
    field.select(0, 2);
    field.type(u'x');
    EXPECT_EQ(field.text(), u"xc");
    EXPECT_EQ(field.caret(), 1);
}

TEST(TextField, ErasesBackASelectionACharacterOrNothing) {
    TextField field;
    field.setText(
        u"ab\xD83D\xDE00"
        u"c");
    field.select(4, 1);
    field.eraseBack();
    EXPECT_EQ(field.text(), u"ab\xD83D\xDE00");
    field.eraseBack();
    EXPECT_EQ(field.text(), u"ab");
    field.setCaret(0);
    field.eraseBack();
    EXPECT_EQ(field.text(), u"ab");
}

class Undoing : public ::testing::Test {
  protected:
    void type(TextView text) {
        for (const char16_t character : text)
            field.type(character);
    }
    TextField field;
};

TEST_F(Undoing, GoesBackByWhatWasTypedAtOnce) {
    type(u"sol");
    field.select(0, 1);
    type(u"c");
    field.undo();
    EXPECT_EQ(field.text(), u"sol");
    EXPECT_EQ(field.selectedText(), u"s");
    field.undo();
    EXPECT_EQ(field.text(), u"");
    field.undo();
    EXPECT_EQ(field.text(), u"");
}

TEST_F(Undoing, CanBeUndoneUntilSomethingElseIsDone) {
    type(u"sol");
    field.undo();
    field.redo();
    EXPECT_EQ(field.text(), u"sol");
    EXPECT_EQ(field.caret(), 3);
    field.undo();
    type(u"x");
    field.redo();
    EXPECT_EQ(field.text(), u"x");
}

TEST_F(Undoing, WorksWhereTheProgramRewritesTheText) {
    int changes = 0;
    field.onChange = [&] {
        ++changes;
        field.setText(upperCase(field.text()));
    };
    type(u"a");
    field.userEdited(u"Abc", 3, 0);
    EXPECT_EQ(field.text(), u"ABC");
    field.undo();
    EXPECT_EQ(field.text(), u"A");
    field.redo();
    EXPECT_EQ(field.text(), u"ABC");
    EXPECT_EQ(changes, 6);
}

TEST_F(Undoing, TakesBackWhatTheProgramMadeOfAKeyAtOnce) {
    field.setText(u"ab");
    {
        const TextField::Step step(field);
        field.setText(u"axyb");
        field.setText(u"axyzb");
    }
    field.undo();
    EXPECT_EQ(field.text(), u"ab");
}

TEST_F(Undoing, DoesNotGoBehindATextThatTheProgramHasSet) {
    type(u"sol");
    field.setText(u"");
    field.undo();
    EXPECT_EQ(field.text(), u"");
}

}  // namespace
}  // namespace quillor
