// What a screen reader is told.
#include <QAccessible>

#include "tests/qt/shell_fixture.h"

namespace quillor {

namespace {

class Accessibility : public ShellTest {
  protected:
    QAccessibleInterface& spoken(const Control& control) {
        return *QAccessible::queryAccessibleInterface(&widgetOf(control));
    }
};

TEST_F(Accessibility, NamesAButtonByItsCaption) {
    Label button;
    addButton(button, "lblSave(1)", 0, 0).caption = u"SAVE && &CREATE";
    button.toolTip = u" Save it ";
    open();
    EXPECT_EQ(spoken(button).role(), QAccessible::Button);
    EXPECT_EQ(spoken(button).text(QAccessible::Name), "SAVE & CREATE");
    EXPECT_EQ(spoken(button).text(QAccessible::Description), "Save it [#lblSave(1)]");
}

TEST_F(Accessibility, NamesACaptionThatIsDataAsItStands) {
    Label title;
    addButton(title, "lblTopic", 0, 0).caption = u"R&B && 100%S";
    title.role = LabelRole::Plain;
    title.literal = true;
    open();
    EXPECT_EQ(spoken(title).text(QAccessible::Name), "R&B && 100%S");
}

TEST_F(Accessibility, SaysNothingOfWhatIsHidden) {
    Frame frame;
    Label cell;
    screen.add(frame).place(0, 0, 3000, 3000);
    addButton(cell, "lblLetter(1)", 0, 0).caption = u"D";
    cell.parent = &frame;
    cell.toolTip = u"secret";
    frame.visible = false;
    open();
    EXPECT_EQ(spoken(cell).text(QAccessible::Name), "");
    EXPECT_EQ(spoken(cell).text(QAccessible::Description), " [#lblLetter(1)]");
    shell.event([&] { frame.visible = true; });
    EXPECT_EQ(spoken(cell).text(QAccessible::Name), "D");
    EXPECT_EQ(spoken(cell).text(QAccessible::Description), "secret [#lblLetter(1)]");
    shell.event([&] { cell.visible = false; });
    EXPECT_EQ(spoken(cell).text(QAccessible::Name), "");
}

TEST_F(Accessibility, NeverSpeaksASymbolsLetter) {
    Label box;
    addButton(box, "lblTick", 0, 0).caption = u"a";
    box.spokenName = u"Hard score";
    box.role = LabelRole::CheckBox;
    open();
    EXPECT_EQ(spoken(box).role(), QAccessible::CheckBox);
    EXPECT_EQ(spoken(box).text(QAccessible::Name), "Hard score");
    EXPECT_FALSE(spoken(box).state().checked);
    shell.event([&] { box.checked = true; });
    EXPECT_TRUE(spoken(box).state().checked);
}

TEST_F(Accessibility, PressesAButtonButNotBehindABox) {
    Label button;
    int clicks = 0;
    addButton(button, "lbl", 0, 0).onClick = [&] { ++clicks; };
    open();
    auto* actions = static_cast<QAccessibleActionInterface*>(
        spoken(button).interface_cast(QAccessible::ActionInterface));
    ASSERT_NE(actions, nullptr);
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks, 1);
    shell.event([&] {
        shell.modally([&] { actions->doAction(QAccessibleActionInterface::pressAction()); });
    });
    EXPECT_EQ(clicks, 1);
}

TEST_F(Accessibility, HasNotificationsThatAreNotDrawn) {
    Label notice;
    addButton(notice, "lblNotice", 0, 0).role = LabelRole::Notification;
    open();
    const QImage before = widgetOf(notice).window()->grab().toImage();
    shell.event([&] { notice.caption = u"Right: A"; });
    EXPECT_EQ(spoken(notice).role(), QAccessible::Notification);
    EXPECT_EQ(spoken(notice).text(QAccessible::Name), "Right: A");
    EXPECT_FALSE(spoken(notice).state().invisible);
    EXPECT_EQ(widgetOf(notice).window()->grab().toImage(), before);
}

TEST_F(Accessibility, NamesFieldsAndWindows) {
    TextField field;
    addField(field, "txtWord", 0, 0).spokenName = u"Phrase";
    screen.title = u"Entry";
    PageWindow& window = open();
    EXPECT_EQ(spoken(field).role(), QAccessible::EditableText);
    EXPECT_EQ(spoken(field).text(QAccessible::Name), "Phrase");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&window)->text(QAccessible::Name), "Entry");
}

TEST_F(Accessibility, NamesThePageThatIsTurnedTo) {
    screen.title = u"Menu";
    PlainScreen next;
    next.title = u"Settings";
    PageWindow& window = open();
    shell.event([&] { shell.show(next); });
    const auto* page = QAccessible::queryAccessibleInterface(window.page());
    EXPECT_EQ(page->role(), QAccessible::Pane);
    EXPECT_EQ(page->text(QAccessible::Name), "Settings");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&window)->text(QAccessible::Name), "Settings");
    shell.event([&] { shell.close(next); });
}

TEST_F(Accessibility, KnowsDialogsAsSuch) {
    PlainScreen above;
    above.title = u"Entry";
    above.over = &screen;
    open();
    const auto* dialog = QAccessible::queryAccessibleInterface(&open(above));
    EXPECT_EQ(dialog->role(), QAccessible::Dialog);
    EXPECT_EQ(dialog->text(QAccessible::Name), "Entry");
    shell.event([&] { shell.close(above); });
}

}  // namespace

}  // namespace quillor
