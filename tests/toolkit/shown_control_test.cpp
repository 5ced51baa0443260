// What of a control differs from what was shown last.
#include "toolkit/shown_control.h"

#include <gtest/gtest.h>

namespace quillor {
namespace {

using Changes = ShownControl::Changes;

TEST(ShownControl, ChangesOnlyOnce) {
    Label label;
    label.place(10, 20, 30, 40);
    label.caption = u"&PLAY";
    ShownControl shown;
    const Changes first = shown.update(&label);
    EXPECT_TRUE(first.place && first.words && first.state && first.look);
    EXPECT_EQ(shown.area, (Area{10, 20, 30, 40}));
    EXPECT_EQ(shown.name, u"PLAY");
    EXPECT_FALSE(shown.update(&label).any());
}

TEST(ShownControl, TellsWhatItIsThatDiffers) {
    Label label;
    ShownControl shown;
    shown.update(&label);
    label.left = 15;
    const Changes moved = shown.update(&label);
    EXPECT_TRUE(moved.place && !moved.words && !moved.state && !moved.look);
    label.textColor = rgb(1, 2, 3);
    const Changes painted = shown.update(&label);
    EXPECT_TRUE(painted.look && !painted.place && !painted.words && !painted.state);
    label.checked = true;
    EXPECT_TRUE(shown.update(&label).checked);
    label.toolTip = u" tip ";
    EXPECT_TRUE(shown.update(&label).words);
    EXPECT_EQ(shown.toolTip, u" tip ");
}

TEST(ShownControl, HasNewWordsEachTimeThatTheSameAreSaid) {
    Label notice;
    notice.role = LabelRole::Notification;
    notice.caption = u"No";
    ShownControl shown;
    shown.update(&notice);
    ++notice.said;
    EXPECT_TRUE(shown.update(&notice).words);
    EXPECT_FALSE(shown.update(&notice).any());
}

TEST(ShownControl, SaysNothingWhileItIsNotSeen) {
    Frame frame;
    Label label;
    label.parent = &frame;
    label.caption = u"D";
    label.toolTip = u"tip";
    ShownControl shown;
    shown.update(&label);
    frame.visible = false;
    EXPECT_TRUE(shown.update(&label).words);
    EXPECT_EQ(shown.name, u"");
    EXPECT_EQ(shown.toolTip, u"");
    EXPECT_EQ(std::get<ShownLabel>(shown.look).caption, u"");
    EXPECT_TRUE(shown.visible);
    frame.visible = true;
    shown.update(&label);
    EXPECT_EQ(shown.name, u"D");
}

TEST(ShownControl, ShowsNoMoreOfALongLineThanCanBeSeen) {
    Label label;
    label.literal = true;
    label.caption = Text(1'000'000, u'A');
    ListBox list;
    list.items = {Text(kMostShown - 1, u'A') + u"😀B", u"short"};
    ShownControl shown;
    shown.update(&label);
    EXPECT_EQ(std::get<ShownLabel>(shown.look).caption, Text(kMostShown, u'A'));
    EXPECT_EQ(shown.name, Text(kMostShown, u'A'));
    ShownControl shownList;
    shownList.update(&list);
    const Text whole(kMostShown - 1, u'A');
    EXPECT_EQ(std::get<ShownList>(shownList.look).items, (std::vector<Text>{whole, u"short"}));
    EXPECT_FALSE(shownList.update(&list).any());
}

TEST(ShownControl, IsNamedByWhatIsSpokenFirst) {
    Label label;
    label.caption = u"a";
    label.spokenName = u"Hard score";
    ShownControl shown;
    shown.update(&label);
    EXPECT_EQ(shown.name, u"Hard score");
}

TEST(ShownControl, HoldsTextAndSelectionOfAField) {
    TextField field;
    field.setText(u"sol");
    field.select(1, 2);
    ShownControl shown;
    shown.update(&field);
    const ShownField& look = std::get<ShownField>(shown.look);
    EXPECT_EQ(look.text, u"sol");
    EXPECT_EQ(look.caret, 1);
    EXPECT_EQ(look.selectionLength, 2);
    field.visible = false;
    shown.update(&field);
    EXPECT_EQ(look.text, u"");
}

TEST(ShownControl, HoldsTheEntriesOfAList) {
    ListBox list;
    list.items = {u"a", u"b"};
    ShownControl shown;
    EXPECT_TRUE(shown.update(&list).look);
    EXPECT_FALSE(shown.update(&list).look);
    list.select(1);
    EXPECT_TRUE(shown.update(&list).look);
    list.items[0] = u"x";
    EXPECT_TRUE(shown.update(&list).look);
    EXPECT_EQ(std::get<ShownList>(shown.look).items[0], u"x");
    list.visible = false;
    EXPECT_TRUE(shown.update(&list).look);
    EXPECT_TRUE(std::get<ShownList>(shown.look).items.empty());
}

}  // namespace
}  // namespace quillor
