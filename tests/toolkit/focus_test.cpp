// Where the focus of a screen is, and where it goes.
#include "toolkit/focus.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/plain_screen.h"

namespace quillor {
namespace {

class ScreenFocus : public ::testing::Test {
  protected:
    ScreenFocus() {
        for (Label* each : {&left, &right, &below})
            each->onClick = [] {};
        screen.addButton(below, "below", 0, 900);
        screen.addButton(right, "right", 1500, 60);
        screen.addButton(left, "left", 0, 90);
    }
    std::string focused() const { return focus.control() ? focus.control()->id : ""; }
    std::string order() const {
        std::string ids;
        for (const Control* control : readingOrder(screen))
            ids += control->id + " ";
        return ids;
    }

    PlainScreen screen;
    Label left, right, below;
    Focus focus{screen};
};

/// Two rows of two keys in a group, and a button below.
class GroupFocus : public ScreenFocus {
  protected:
    GroupFocus() {
        int number = 0;
        for (Label* key : {&a, &b, &c, &d}) {
            key->onClick = [] {};
            key->group = 1;
            screen.addButton(*key, std::string(1, static_cast<char>('a' + number)).c_str(),
                             static_cast<Twips>(number % 2) * 1500,
                             3000 + static_cast<Twips>(number / 2) * 600);
            ++number;
        }
        focus.take(a);
    }
    std::string after(int code) {
        EXPECT_TRUE(focus.moveInGroup(code));
        return focused();
    }
    Label a, b, c, d;
};

TEST_F(GroupFocus, GoesFromKeyToKeyByArrows) {
    EXPECT_EQ(after(key::kRight), "b");
    EXPECT_EQ(after(key::kDown), "d");
    EXPECT_EQ(after(key::kLeft), "c");
    EXPECT_EQ(after(key::kUp), "a");
    EXPECT_EQ(after(key::kLeft), "d");
    EXPECT_EQ(after(key::kHome), "a");
    EXPECT_EQ(after(key::kEnd), "d");
}

TEST_F(GroupFocus, LeavesAGroupByTabAndComesBackToWhereItWas) {
    EXPECT_EQ(after(key::kRight), "b");
    focus.next();
    EXPECT_EQ(focused(), "left");
    focus.previous();
    EXPECT_EQ(focused(), "b");
}

TEST_F(GroupFocus, LeavesAGroupThatStandsAroundAnotherButton) {
    below.top = 3600;
    below.left = 700;
    focus.next();
    EXPECT_EQ(focused(), "below");
    focus.next();
    EXPECT_EQ(focused(), "left");
}

TEST_F(GroupFocus, GoesToTheNextKeyWhenItsOwnIsGone) {
    screen.firstFocus = &left;
    a.visible = false;
    focus.settle();
    EXPECT_EQ(focused(), "b");
    focus.take(d);
    d.visible = false;
    focus.settle();
    EXPECT_EQ(focused(), "c");
}

TEST_F(GroupFocus, GoesToTheScreensChoiceWhenTheWholeGroupIsGone) {
    screen.firstFocus = &left;
    a.visible = b.visible = c.visible = d.visible = false;
    focus.settle();
    EXPECT_EQ(focused(), "left");
}

TEST_F(GroupFocus, LeavesArrowsAloneOutsideOfAGroup) {
    focus.take(below);
    EXPECT_FALSE(focus.moveInGroup(key::kRight));
    EXPECT_EQ(focused(), "below");
}

TEST_F(ScreenFocus, ReachesWhatIsOnlyReadAndPressesNothingThere) {
    Label reader;
    reader.id = "reader";
    reader.role = LabelRole::Reader;
    screen.add(reader).place(0, 2000, 900, 300);
    EXPECT_EQ(order(), "left right below reader ");
}

TEST_F(ScreenFocus, TellsEachButtonOnceAndNothingWithoutWords) {
    Label face, empty, said;
    face.onClick = [] {};
    left.caption = right.caption = below.caption = u"x";
    screen.addButton(face, "face", 0, 60).tabStop = false;
    face.caption = u"x";
    empty.id = "empty";
    screen.add(empty).place(0, 2000, 900, 300);
    said.id = "said";
    said.role = LabelRole::Notification;
    screen.add(said);
    std::string told;
    for (const Control* control : spokenOrder(screen))
        told += control->id + " ";
    EXPECT_EQ(told, "left right below said ");
}

TEST_F(ScreenFocus, GoesThroughTheScreenInReadingOrderAndRound) {
    EXPECT_EQ(order(), "left right below ");
    std::string seen;
    for (int i = 0; i < 4; ++i) {
        focus.next();
        seen += focused() + " ";
    }
    EXPECT_EQ(seen, "left right below left ");
    focus.previous();
    EXPECT_EQ(focused(), "below");
}

TEST_F(ScreenFocus, StopsOnlyAtWhatCanBeUsed) {
    Frame frame;
    TextField field;
    Label text;
    screen.add(frame).place(0, 1500, 3000, 900);
    screen.addField(field, "txt", 0, 0).parent = &frame;
    screen.addButton(text, "text", 0, 2700).role = LabelRole::Plain;
    text.onClick = [] {};
    left.enabled = false;
    below.tabStop = false;
    right.onClick = nullptr;
    EXPECT_EQ(order(), "txt ");
    frame.visible = false;
    EXPECT_EQ(order(), "");
}

TEST_F(ScreenFocus, GoesToTheScreensFirstChoiceWhenItsControlIsHidden) {
    screen.firstFocus = &below;
    focus.settle();
    EXPECT_EQ(focused(), "below");
    focus.next();
    ASSERT_EQ(focused(), "left");
    left.visible = false;
    focus.settle();
    EXPECT_EQ(focused(), "below");
    below.enabled = false;
    focus.settle();
    EXPECT_EQ(focused(), "");
}

TEST_F(ScreenFocus, FollowsTheScreensWishOnceTheScreenIsEnabled) {
    screen.setFocus(right);
    screen.enabled = false;
    focus.settle();
    EXPECT_EQ(focused(), "");
    screen.enabled = true;
    focus.settle();
    EXPECT_EQ(focused(), "right");
}

TEST_F(ScreenFocus, StaysWhereItIsAtAWishThatCannotBeGranted) {
    focus.take(left);
    right.visible = false;
    screen.setFocus(right);
    focus.settle();
    focus.take(right);
    EXPECT_EQ(focused(), "left");
}

TEST_F(ScreenFocus, IsToldToFieldsOnceEach) {
    TextField first, second;
    screen.addField(first, "txt1", 0, 1500);
    screen.addField(second, "txt2", 0, 2100);
    std::string told;
    first.onGotFocus = [&] { told += "+1"; };
    first.onLostFocus = [&] { told += "-1"; };
    second.onGotFocus = [&] { told += "+2"; };
    focus.take(first);
    focus.take(first);
    screen.setFocus(second);
    focus.settle();
    focus.settle();
    EXPECT_EQ(told, "+1-1+2");
}

TEST_F(ScreenFocus, SelectsWhatIsInAFieldThatTabEnters) {
    TextField field;
    field.setText(u"sol");
    screen.addField(field, "txt", 0, 1500);
    focus.take(field);
    EXPECT_EQ(field.selectedText(), u"");
    focus.previous();
    focus.next();
    EXPECT_EQ(field.selectedText(), u"sol");
}

TEST_F(ScreenFocus, GrantsAWishThatAFieldHasOnItsWay) {
    TextField first;
    screen.addField(first, "txt1", 0, 1500);
    first.onGotFocus = [&] { screen.setFocus(right); };
    screen.firstFocus = &first;
    focus.settle();
    EXPECT_EQ(focused(), "right");
}

}  // namespace
}  // namespace quillor
