// A screen's events: who hears them, and what an error in a handler does.
#include "toolkit/screen.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace quillor {
namespace {

class TestScreen : public Screen {
  public:
    TestScreen() : Screen("frmTest") {
        panel.id = "frmePanel";
        label.id = "lblTest";
        bare.id = "lblBare";
        add(panel);
        add(label, &panel);
        add(bare, &panel);
        add(field);
        add(list);
        add(timer);
        label.onClick = [this] { ++clicks; };
        panel.onMouseMove = [this] { ++panelMoves; };
        timer.onTick = [this] { ++ticks; };
        list.items = {u"a"};
        list.onClick = [this] { ++clicks; };
    }
    void takePaper(const ImageRef&) override {}

    Frame panel;
    Label label, bare;
    TextField field;
    ListBox list;
    Timer timer;
    MenuItem item;
    int clicks = 0, panelMoves = 0, menus = 0, ticks = 0, keys = 0, characters = 0, closings = 0;

  protected:
    void onLoad() override { throw std::runtime_error("cannot load"); }
    void onKeyDown(KeyEvent&) override { ++keys; }
    void onKeyPress(char16_t) override { ++characters; }
    void onContextMenu() override { ++menus; }
    void onCloseRequest() override { ++closings; }
};

class ScreenEvents : public ::testing::Test {
  protected:
    TestScreen screen;
    KeyEvent key{'A'};
};

TEST_F(ScreenEvents, KeepTheOrderAndTheFramesOfTheControls) {
    ASSERT_EQ(screen.controls().size(), 5U);
    EXPECT_EQ(&controlOf(screen.controls()[1]), &screen.label);
    EXPECT_EQ(screen.label.parent, &screen.panel);
    EXPECT_EQ(screen.panel.parent, nullptr);
}

TEST_F(ScreenEvents, SurviveAnErrorInAHandler) {
    screen.load();
    screen.label.onClick = [] { throw std::runtime_error("broken"); };
    EXPECT_NO_THROW(screen.click(screen.label));
    screen.field.onChange = [] { throw std::out_of_range("index"); };
    EXPECT_NO_THROW(screen.edit(screen.field, u"x", 1, 0));
    EXPECT_NO_THROW(screen.selectItem(screen.list, 7));
}

TEST_F(ScreenEvents, ReachTheirHandlers) {
    screen.click(screen.label);
    screen.selectItem(screen.list, 0);
    screen.keyDown(key);
    screen.keyPress(u'a');
    screen.closeRequest();
    EXPECT_EQ(screen.clicks, 2);
    EXPECT_EQ(screen.keys, 1);
    EXPECT_EQ(screen.characters, 1);
    EXPECT_EQ(screen.closings, 1);
}

TEST_F(ScreenEvents, DoNotReachAScreenThatIsNotEnabled) {
    screen.enabled = false;
    screen.click(screen.label);
    screen.selectItem(screen.list, 0);
    screen.edit(screen.field, u"x", 1, 0);
    screen.keyDown(key);
    screen.keyPress(u'a');
    screen.closeRequest();
    EXPECT_EQ(screen.clicks + screen.keys + screen.characters + screen.closings, 0);
    EXPECT_EQ(screen.field.text(), u"");
}

TEST_F(ScreenEvents, DoNotReachAControlThatIsNotEnabled) {
    screen.label.enabled = screen.list.enabled = false;
    screen.click(screen.label);
    screen.selectItem(screen.list, 0);
    EXPECT_EQ(screen.clicks, 0);
}

TEST_F(ScreenEvents, LetTimersGoOnWhileAScreenIsNotEnabled) {
    screen.enabled = false;
    screen.tick(screen.timer);
    EXPECT_EQ(screen.ticks, 0);
    screen.timer.enabled = true;
    screen.tick(screen.timer);
    EXPECT_EQ(screen.ticks, 1);
}

TEST_F(ScreenEvents, MoveTheMouseOverTheFirstFrameThatListens) {
    screen.mouseMove(screen.bare);
    EXPECT_EQ(screen.panelMoves, 1);
    int labelMoves = 0;
    screen.bare.onMouseMove = [&] { ++labelMoves; };
    screen.mouseMove(screen.bare);
    EXPECT_EQ(labelMoves, 1);
    EXPECT_EQ(screen.panelMoves, 1);
}

TEST_F(ScreenEvents, OpenTheScreensMenuByARightClickThatNothingTakes) {
    screen.rightClick(screen.bare);
    screen.rightClick(screen.panel);
    screen.rightClickBeside();
    EXPECT_EQ(screen.menus, 3);
    screen.bare.enabled = false;
    screen.rightClick(screen.bare);
    EXPECT_EQ(screen.menus, 4);
}

TEST_F(ScreenEvents, LeaveARightClickToTheControlThatTakesIt) {
    int taken = 0;
    screen.label.onRightClick = [&] { ++taken; };
    screen.rightClick(screen.label);
    screen.rightClick(screen.field);
    screen.rightClick(screen.list);
    EXPECT_EQ(taken, 1);
    EXPECT_EQ(screen.menus, 0);
}

TEST_F(ScreenEvents, OpenNoMenuOnAScreenThatIsNotEnabled) {
    screen.enabled = false;
    screen.rightClick(screen.bare);
    screen.rightClickBeside();
    EXPECT_EQ(screen.menus, 0);
}

TEST_F(ScreenEvents, AllowAHandlerToWireItselfAnew) {
    int later = 0;
    screen.label.onClick = [&] { screen.label.onClick = [&] { ++later; }; };
    screen.click(screen.label);
    screen.click(screen.label);
    EXPECT_EQ(later, 1);
}

TEST_F(ScreenEvents, ChooseOnlyEnabledMenuEntries) {
    int chosen = 0;
    screen.item.onClick = [&] { ++chosen; };
    screen.choose(screen.item);
    screen.item.enabled = false;
    screen.choose(screen.item);
    EXPECT_EQ(chosen, 1);
}

TEST_F(ScreenEvents, LetAFieldReplaceTypedCharacters) {
    EXPECT_EQ(screen.fieldKeyPress(screen.field, u'a'), u'a');
    screen.field.onKeyPress = [](char16_t) { return u'b'; };
    EXPECT_EQ(screen.fieldKeyPress(screen.field, u'a'), u'b');
}

TEST_F(ScreenEvents, KeepAFocusWishUntilItIsTaken) {
    screen.setFocus(screen.field);
    EXPECT_EQ(screen.takeFocusRequest(), &screen.field);
    EXPECT_EQ(screen.takeFocusRequest(), nullptr);
}

}  // namespace
}  // namespace quillor
