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

std::vector<std::string> namesBelow(const QAccessibleInterface& above) {
    std::vector<std::string> names;
    for (int i = 0; i < above.childCount(); ++i) {
        const QAccessibleInterface* child = above.child(i);
        EXPECT_EQ(above.indexOfChild(child), i);
        EXPECT_EQ(child->parent(), &above);
        names.push_back(child->text(QAccessible::Name).toStdString());
    }
    return names;
}

TEST_F(Accessibility, TellsOfAPageInReadingOrderAndOfEachButtonOnce) {
    Frame frame;
    Shape shape;
    Label second, first, face, hidden;
    frame.id = "frme";
    shape.id = "shp";
    screen.add(frame).place(0, 0, 6000, 6000);
    screen.add(shape, &frame).place(0, 0, 900, 900);
    addButton(second, "second", 0, 3000).caption = u"Second";
    addButton(first, "first", 0, 900).caption = u"First";
    first.parent = second.parent = &frame;
    addButton(face, "face", 0, 900).spokenName = u"First";
    face.tabStop = false;
    addButton(hidden, "hidden", 0, 5000).caption = u"Hidden";
    hidden.visible = false;
    open();
    const auto& page = *QAccessible::queryAccessibleInterface(shell.find(&screen));
    EXPECT_EQ(namesBelow(page), (std::vector<std::string>{"First", "Second"}));
}

TEST_F(Accessibility, TellsOfAMenuBeforeItIsOpen) {
    MenuItem menu, first, line, more, inner;
    first.caption = u"&First";
    first.checkable = first.checked = true;
    more.caption = u"More";
    inner.caption = u"Inner";
    inner.enabled = false;
    more.children = {&inner};
    menu.children = {&first, &line, &more};
    Label button;
    addButton(button, "lblMenu", 0, 0).menu = &menu;
    open();
    const QAccessibleInterface& told = spoken(button);
    EXPECT_EQ(namesBelow(told), (std::vector<std::string>{"First", "More"}));
    EXPECT_EQ(told.child(0)->role(), QAccessible::CheckBox);
    EXPECT_TRUE(told.child(0)->state().checked);
    EXPECT_EQ(namesBelow(*told.child(1)), std::vector<std::string>{"Inner"});
    EXPECT_TRUE(told.child(1)->child(0)->state().disabled);
    EXPECT_TRUE(told.state().hasPopup);
}

TEST_F(Accessibility, OpensAMenuAndChoosesFromItForAnAssistiveTool) {
    MenuItem menu, entry;
    entry.caption = u"Entry";
    int chosen = 0, opened = 0;
    entry.onClick = [&] { ++chosen; };
    menu.children = {&entry};
    Label button;
    addButton(button, "lblMenu", 0, 0).menu = &menu;
    button.onClick = [&] { ++opened; };
    open();
    spoken(button).actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_EQ(opened, 1);
    spoken(button).child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(chosen, 1);
}

TEST_F(Accessibility, KeepsTheStateOfEachWidgetWhenAScreenStandsOverTheirs) {
    Label button;
    addButton(button, "lbl", 0, 0);
    open();
    shell.event([&] { screen.enabled = false; });
    EXPECT_TRUE(widgetOf(button).isEnabled());
    EXPECT_TRUE(spoken(button).state().disabled);
    shell.event([&] { screen.enabled = true; });
    EXPECT_FALSE(spoken(button).state().disabled);
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
    shell.event([&] {
        notice.caption = u"Right: A";
        ++notice.said;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return widgetOf(notice).isVisible(); }));
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
