// Cut, copy and paste in the inventor's phrase field.
#include "tests/topics/topics_fixture.h"

namespace quillor::testing {
namespace {

class InventorClipboard : public TopicsTest {
  protected:
    void SetUp() override {
        show(ScreenId::Inventor);
        desktop.clipboardText = u"old";
    }
    TextField& field() { return as<frmInventor>(ScreenId::Inventor).txtWord; }
    void phrase(TextView text, int start, int length) {
        player.clickInto("txtWord", 0);
        player.type(text);
        player.selectText("txtWord", start, length);
    }
};

TEST_F(InventorClipboard, CopiesTheSelection) {
    phrase(u"uno dos", 4, 3);
    player.press('C', kControl);
    EXPECT_EQ(desktop.clipboardText, u"dos");
    EXPECT_EQ(field().text(), u"uno dos");
}

TEST_F(InventorClipboard, CutsEveryOccurrenceOfTheSelection) {
    phrase(u"la casa la ve", 8, 2);
    player.press('X', kControl);
    EXPECT_EQ(desktop.clipboardText, u"la");
    EXPECT_EQ(field().text(), u" casa  ve");
    EXPECT_EQ(field().caret(), 8);
}

TEST_F(InventorClipboard, CutsNothingWithoutASelection) {
    phrase(u"uno", 1, 0);
    player.press('X', kControl);
    EXPECT_EQ(field().text(), u"uno");
    EXPECT_EQ(desktop.clipboardText, u"");
}

TEST_F(InventorClipboard, PastesAtTheCaretUnfiltered) {
    desktop.clipboardText = u"!?";
    phrase(u"abcd", 2, 0);
    player.press('V', kControl);
    EXPECT_EQ(field().text(), u"ab!?cd");
    EXPECT_EQ(field().caret(), 4);
}

TEST_F(InventorClipboard, PastesOverEveryOccurrenceOfTheSelection) {
    desktop.clipboardText = u"el";
    phrase(u"la casa la ve", 0, 2);
    player.press('V', kControl);
    EXPECT_EQ(field().text(), u"el casa el ve");
    EXPECT_EQ(field().caret(), 2);
}

TEST_F(InventorClipboard, PastesNoMoreThanTheFieldHolds) {
    desktop.clipboardText = Text(100, u'x');
    phrase(u"", 0, 0);
    player.press('V', kControl);
    EXPECT_EQ(field().text(), Text(35, u'x'));
    EXPECT_EQ(field().caret(), 35);
}

TEST_F(InventorClipboard, PastesNothingFromAnEmptyClipboard) {
    desktop.clipboardText = u"";
    phrase(u"abc", 1, 0);
    player.press('V', kControl);
    EXPECT_EQ(field().text(), u"abc");
    EXPECT_EQ(field().caret(), 1);
}

TEST_F(InventorClipboard, NeedsControlAlone) {
    phrase(u"abc", 0, 3);
    player.press('X', {true, true, false, false});
    player.press('X', {true, false, true, false});
    EXPECT_EQ(field().text(), u"abc");
    EXPECT_EQ(desktop.clipboardText, u"old");
}

}  // namespace
}  // namespace quillor::testing
