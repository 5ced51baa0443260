// How a screen's menu pops up: where, and what its entries are.
#include "qt/boxes/popup_menu.h"

#include <QAccessible>
#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QTimer>

#include "app/program.h"
#include "qt/qt_desktop.h"
#include "tests/qt/shell_fixture.h"
#include "tests/support/temp_folder.h"

namespace quillor {

namespace {

class PopUp : public ShellTest {
  protected:
    PopUp() {
        style.font.setPixelSize(20);
        menu.caption = u"Menu";
        way.caption = u"Way";
        menu.children = {&way};
    }
    /// Once the menu is open; it is left after that.
    void whenOpen(std::function<void(QMenu&)> look) {
        QTimer::singleShot(0, [this, look = std::move(look)] {
            auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            opened = popup != nullptr;
            if (!opened)
                return;
            look(*popup);
            popup->close();
        });
    }

    BoxStyle style;
    MenuItem menu;
    MenuItem way;
    bool opened = false;
};

TEST_F(PopUp, OpensBelowTheControlThatItIsAskedFor) {
    Label button;
    addButton(button, "lblMenu", 600, 300);
    PageWindow& window = open();
    QtDesktop desktop(shell, nullptr);
    testing::TempFolder folder;
    Program program(desktop, folder.path());
    desktop.attach(program);
    whenOpen([&](QMenu& popup) {
        const QWidget& place = widgetOf(button);
        EXPECT_EQ(popup.pos(), place.mapToGlobal(QPoint(0, place.height())));
    });
    desktop.popUp(screen, menu, &button);
    EXPECT_TRUE(opened);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(PopUp, AnnouncesEntriesAsWhatTheyAre) {
    MenuItem inner;
    inner.caption = u"Selection";
    inner.children = {&way};
    MenuItem sounds;
    sounds.caption = u"&Sounds";
    sounds.shortcut = u"Ctrl+S";
    sounds.checkable = sounds.checked = true;
    MenuItem radio;
    radio.caption = u"Tour";
    radio.radio = true;
    menu.children = {&way, &inner, &sounds, &radio};
    whenOpen([](QMenu& popup) {
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&popup);
        EXPECT_EQ(spoken->child(0)->role(), QAccessible::MenuItem);
        EXPECT_EQ(spoken->child(1)->role(), QAccessible::PopupMenu);
        EXPECT_TRUE(spoken->child(1)->state().hasPopup);
        EXPECT_EQ(spoken->child(2)->role(), QAccessible::CheckBox);
        EXPECT_TRUE(spoken->child(2)->state().checked);
        EXPECT_EQ(spoken->child(2)->text(QAccessible::Name), "Sounds");
        EXPECT_EQ(spoken->child(2)->text(QAccessible::Accelerator), "Ctrl+S");
        EXPECT_EQ(spoken->child(3)->role(), QAccessible::RadioButton);
        EXPECT_FALSE(spoken->child(3)->state().checked);
    });
    choosePopUp(style, menu, {});
    EXPECT_TRUE(opened);
}

TEST_F(PopUp, HoldsItsRadioEntriesTogether) {
    MenuItem other;
    other.caption = u"Other";
    way.radio = other.radio = true;
    other.checked = true;
    menu.children.push_back(&other);
    whenOpen([](QMenu& popup) {
        const QList<QAction*> entries = popup.actions();
        ASSERT_TRUE(entries[0]->actionGroup());
        EXPECT_TRUE(entries[0]->actionGroup()->isExclusive());
        EXPECT_EQ(entries[1]->actionGroup(), entries[0]->actionGroup());
        EXPECT_FALSE(entries[0]->isChecked());
        EXPECT_TRUE(entries[1]->isChecked());
    });
    choosePopUp(style, menu, {});
    EXPECT_TRUE(opened);
}

}  // namespace

}  // namespace quillor
