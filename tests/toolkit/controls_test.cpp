// Fields and lists: what they hold, and when they tell of a change.
#include "toolkit/controls.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "toolkit/control_array.h"

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

class FilledList : public ::testing::Test {
  protected:
    FilledList() {
        list.items = {u"a", u"b", u"c"};
        list.onClick = [this] { ++clicks; };
    }
    ListBox list;
    int clicks = 0;
};

TEST_F(FilledList, HasNothingSelectedAtFirst) {
    EXPECT_EQ(list.listIndex(), -1);
}

TEST_F(FilledList, TellsOfEverySelection) {
    list.select(1);
    list.select(1);
    EXPECT_EQ(list.listIndex(), 1);
    EXPECT_EQ(clicks, 2);
}

TEST_F(FilledList, SelectsNothingWithoutTelling) {
    list.select(1);
    list.select(-1);
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(FilledList, RefusesPositionsThatItDoesNotHave) {
    EXPECT_THROW(list.select(3), std::out_of_range);
    EXPECT_THROW(list.select(-2), std::out_of_range);
    EXPECT_THROW(list.removeItem(3), std::out_of_range);
    EXPECT_THROW(list.removeItem(-1), std::out_of_range);
    EXPECT_EQ(clicks, 0);
}

TEST_F(FilledList, HasNothingSelectedOnceAnEntryIsGone) {
    list.select(2);
    list.removeItem(0);
    EXPECT_EQ(list.items, (std::vector<Text>{u"b", u"c"}));
    EXPECT_EQ(list.listIndex(), -1);
    list.select(0);
    list.clear();
    EXPECT_TRUE(list.items.empty());
    EXPECT_EQ(list.listIndex(), -1);
}

TEST(ControlArray, NamesItsControlsByIndex) {
    ControlArray<Label, 4, 7> labels{"lblOption"};
    EXPECT_EQ(labels(4).id, "lblOption(4)");
    EXPECT_EQ(labels(7).id, "lblOption(7)");
    EXPECT_EQ(std::distance(labels.begin(), labels.end()), 4);
}

TEST(ControlArray, RefusesAnIndexOutside) {
    ControlArray<Label, 4, 7> labels{"lblOption"};
    EXPECT_THROW(labels(3), std::out_of_range);
    EXPECT_THROW(labels(8), std::out_of_range);
}

TEST(Timer, IsServedNoFasterThanTheSystemsTimers) {
    Timer timer;
    timer.interval = 1;
    EXPECT_EQ(timer.servedInterval(), kTimerResolution);
    timer.interval = 400;
    EXPECT_EQ(timer.servedInterval(), 400);
}

}  // namespace
}  // namespace quillor
