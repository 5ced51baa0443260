// What frames do to a control; what lists hold, and when they tell of a change; what a
// caption says, and which key presses it.
#include "toolkit/controls.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "toolkit/control_array.h"

namespace quillor {
namespace {

TEST(Control, IsSeenAndUsedOnlyWithAllItsFrames) {
    Frame outer;
    Frame inner;
    Label label;
    inner.parent = &outer;
    label.parent = &inner;
    EXPECT_TRUE(isSeen(label) && isUsable(label));
    outer.enabled = false;
    EXPECT_TRUE(isSeen(label));
    EXPECT_FALSE(isUsable(label));
    outer.enabled = true;
    inner.visible = false;
    EXPECT_FALSE(isSeen(label) || isUsable(label));
}

TEST(Control, StandsOnTheScreenWhereItsFramesPutIt) {
    Frame outer;
    Frame inner;
    Label label;
    outer.place(100, 10, 900, 900);
    inner.place(20, 30, 600, 600);
    label.place(3, 4, 50, 60);
    inner.parent = &outer;
    label.parent = &inner;
    EXPECT_EQ(areaOnScreen(label), (Area{123, 44, 50, 60}));
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

TEST(Caption, NamesTheAccessKey) {
    EXPECT_EQ(accessKey(u"AJU&STES"), u'S');
    EXPECT_EQ(accessKey(u"&ábaco"), u'Á');
    EXPECT_EQ(accessKey(u"¿QUÉ ES ESO&?"), u'?');
    EXPECT_EQ(accessKey(u"SAVE && CREATE"), 0);
    EXPECT_EQ(accessKey(u"A && &B"), u'B');
    EXPECT_EQ(accessKey(u"END&"), 0);
}

TEST(Caption, IsReadWithoutItsMarks) {
    EXPECT_EQ(plainCaption(u"MODO &ARCADE"), u"MODO ARCADE");
    EXPECT_EQ(plainCaption(u"SAVE && CREATE"), u"SAVE & CREATE");
    EXPECT_EQ(plainCaption(u"END&"), u"END");
    EXPECT_EQ(plainCaption(u""), u"");
}

TEST(Caption, HasNoMarksWhereItIsData) {
    Label label;
    label.caption = u"R&B && 100%S";
    EXPECT_EQ(accessKey(label), u'B');
    EXPECT_EQ(plainCaption(label), u"RB & 100%S");
    label.literal = true;
    EXPECT_EQ(accessKey(label), 0);
    EXPECT_EQ(plainCaption(label), u"R&B && 100%S");
}

}  // namespace

}  // namespace quillor
