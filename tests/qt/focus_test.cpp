// Where the focus is, and where it goes.
#include "tests/qt/shell_fixture.h"

namespace quillor {

namespace {

class WindowFocus : public ShellTest {
  protected:
    WindowFocus() {
        for (Label* each : {&left, &right, &below})
            each->onClick = [] {};
        addButton(below, "below", 0, 900);
        addButton(right, "right", 1500, 60);
        addButton(left, "left", 0, 90);
    }
    std::vector<std::string> tabThrough(int stops, Qt::Key key = Qt::Key_Tab) {
        std::vector<std::string> seen;
        for (int i = 0; i < stops; ++i) {
            press(key);
            seen.push_back(focused());
        }
        return seen;
    }

    using Ids = std::vector<std::string>;
    Label left;
    Label right;
    Label below;
};

TEST_F(WindowFocus, GoesThroughTheWindowInReadingOrder) {
    open();
    EXPECT_EQ(focused(), "");
    EXPECT_EQ(tabThrough(4), (Ids{"left", "right", "below", "left"}));
    EXPECT_EQ(tabThrough(2, Qt::Key_Backtab), (Ids{"below", "right"}));
}

TEST_F(WindowFocus, StopsOnlyAtWhatCanBeUsed) {
    TextField field;
    addField(field, "txt", 0, 1500);
    left.enabled = false;
    below.tabStop = false;
    open();
    EXPECT_EQ(tabThrough(3), (Ids{"right", "txt", "right"}));
}

TEST_F(WindowFocus, GoesToTheScreensFirstChoiceWhenItsControlIsHidden) {
    screen.firstFocus = &below;
    open();
    press(Qt::Key_Tab);
    ASSERT_EQ(focused(), "left");
    shell.event([&] { left.visible = false; });
    EXPECT_EQ(focused(), "below");
}

TEST_F(WindowFocus, GoesToTheWindowWhenNothingElseIsLeft) {
    screen.firstFocus = &below;
    PageWindow& window = open();
    shell.event([&] { below.enabled = false; });
    EXPECT_EQ(focused(), "");
    ASSERT_NE(window.focusWidget(), nullptr);
    EXPECT_TRUE(window.focusWidget()->isEnabled());
}

TEST_F(WindowFocus, LeavesAFrameThatIsHidden) {
    Frame frame;
    Label inside;
    frame.id = "frme";
    screen.add(frame).place(3000, 0, 2000, 2000);
    inside.id = "inside";
    inside.role = LabelRole::Button;
    inside.onClick = [] {};
    screen.add(inside, &frame).place(0, 0, 600, 300);
    screen.firstFocus = &inside;
    open();
    ASSERT_EQ(focused(), "inside");
    shell.event([&] { frame.visible = false; });
    EXPECT_EQ(focused(), "");
}

TEST_F(WindowFocus, FollowsTheScreensWish) {
    open();
    shell.event([&] { screen.setFocus(right); });
    EXPECT_EQ(focused(), "right");
}

TEST_F(WindowFocus, ComesBackWhenTheScreenIsEnabledAgain) {
    screen.firstFocus = &below;
    open();
    shell.event([&] { screen.setFocus(right); });
    shell.event([&] { screen.enabled = false; });
    shell.event([&] { screen.enabled = true; });
    EXPECT_EQ(focused(), "right");
}

TEST_F(WindowFocus, IsShownOnAButtonOnceTabIsUsed) {
    open();
    const QImage unfocused = widgetOf(below).grab().toImage();
    shell.event([&] { screen.setFocus(below); });
    EXPECT_EQ(widgetOf(below).grab().toImage(), unfocused);
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab);
    ASSERT_EQ(focused(), "below");
    EXPECT_NE(widgetOf(below).grab().toImage(), unfocused);
}

TEST_F(WindowFocus, IsToldToFieldsOnceEach) {
    TextField field;
    TextField second;
    addField(field, "txt1", 0, 1500);
    addField(second, "txt2", 0, 2100);
    std::string told;
    field.onGotFocus = [&] { told += "+1"; };
    field.onLostFocus = [&] { told += "-1"; };
    second.onGotFocus = [&] { told += "+2"; };
    screen.firstFocus = &field;
    open();
    shell.event([&] { screen.setFocus(second); });
    EXPECT_EQ(told, "+1-1+2");
}

TEST_F(WindowFocus, IsTakenByAClickOnAFieldWhateverTheFieldBeforeSays) {
    TextField first;
    TextField second;
    first.setText(u"abc");
    first.selectAll();
    screen.firstFocus = &addField(first, "txt1", 0, 1500);
    addField(second, "txt2", 0, 2100);
    open();
    QTest::mouseClick(&widgetOf(second), Qt::LeftButton);
    EXPECT_EQ(focused(), "txt2");
    type('x');
    EXPECT_EQ(second.text(), u"x");
}

TEST_F(WindowFocus, IsNotTakenByAClickOnAButton) {
    TextField field;
    screen.firstFocus = &addField(field, "txt", 0, 1500);
    open();
    QTest::mouseClick(&widgetOf(left), Qt::LeftButton);
    EXPECT_EQ(focused(), "txt");
}

}  // namespace

}  // namespace quillor
