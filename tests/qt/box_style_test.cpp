// The colours and shapes of boxes and menus, and how a screen's menu pops up.
#include "qt/boxes/box_style.h"

#include <QAccessible>
#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include <gtest/gtest.h>

#include "app/program.h"
#include "qt/boxes/popup_menu.h"
#include "qt/qt_desktop.h"
#include "qt/windows/qt_values.h"
#include "tests/qt/shell_fixture.h"
#include "tests/support/temp_folder.h"
#include "toolkit/contrast.h"
#include "toolkit/style.h"

namespace quillor {
namespace {

constexpr Color kAccent = rgb(20, 140, 220);

QFont fontOf(int size) {
    QFont font;
    font.setPixelSize(size);
    return font;
}

QColor shownAccent(Color color) {
    return notebookColors(color, rgb(255, 255, 255)).color(QPalette::Highlight);
}

QStyleOptionMenuItem entry(bool checked, QStyle::State state) {
    QStyleOptionMenuItem item;
    item.rect = QRect(0, 0, 300, 38);
    item.state = state;
    item.font = fontOf(20);
    item.text = "Entry\tF2";
    item.checkType = QStyleOptionMenuItem::NonExclusive;
    item.checked = checked;
    return item;
}

QImage painted(QStyleOptionMenuItem item) {
    QMenu menu;
    menu.setFont(item.font);
    item.palette = notebookColors(kAccent, rgb(255, 255, 255));
    QImage image(item.rect.size(), QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    NotebookStyle().drawControl(QStyle::CE_MenuItem, &item, &painter, &menu);
    return image;
}

// Where an entry's check mark is.
QImage checkOf(const QImage& image) {
    return image.copy(0, 0, 40, image.height());
}

TEST(BoxIcon, IsSharpAtTheDisplaysDensity) {
    const QPixmap icon = boxIcon(BoxSign::Question, Qt::blue, 30, 1.5);
    EXPECT_EQ(icon.size(), QSize(45, 45));
    EXPECT_EQ(icon.deviceIndependentSize(), QSizeF(30, 30));
}

TEST(BoxIcon, IsACircleInTheAccentOrInRed) {
    const QColor accent(20, 140, 220);
    const QImage calm = boxIcon(BoxSign::Information, accent, 100, 1).toImage();
    EXPECT_EQ(calm.pixelColor(15, 50), accent);
    EXPECT_EQ(calm.pixelColor(50, 60), QColor(Qt::white));
    EXPECT_EQ(calm.pixelColor(2, 2).alpha(), 0);
    const QImage alarm = boxIcon(BoxSign::Critical, accent, 100, 1).toImage();
    EXPECT_GT(alarm.pixelColor(15, 50).red(), 200);
    EXPECT_LT(alarm.pixelColor(15, 50).blue(), 60);
}

TEST(BoxStyle, DarkensAnAccentThatWhiteCannotBeReadOn) {
    for (const Color color : {rgb(255, 255, 255), rgb(240, 210, 30), kAccent}) {
        const QColor used = shownAccent(color);
        EXPECT_GE(contrast(rgb(255, 255, 255), rgb(used.red(), used.green(), used.blue())), 4.5);
    }
    const Color dark = rgb(20, 80, 160);
    EXPECT_EQ(shownAccent(dark), toQt(dark));
}

TEST(MenuEntry, ShowsItsCheckMarkInEveryState) {
    for (const QStyle::State state :
         {QStyle::State(QStyle::State_Enabled), QStyle::State_Enabled | QStyle::State_Selected,
          QStyle::State(QStyle::State_None)}) {
        const QImage on = painted(entry(true, state));
        const QImage off = painted(entry(false, state));
        EXPECT_NE(checkOf(on), checkOf(off));
    }
}

TEST(MenuEntry, HasARoundMarkWhenItIsOneOfSeveral) {
    QStyleOptionMenuItem item = entry(false, QStyle::State_Enabled);
    const QImage square = painted(item);
    item.checkType = QStyleOptionMenuItem::Exclusive;
    EXPECT_NE(checkOf(painted(item)), checkOf(square));
    item.checked = true;
    EXPECT_NE(checkOf(painted(item)), checkOf(painted(entry(true, QStyle::State_Enabled))));
}

TEST(MenuEntry, FadesWhenItIsDisabledAndIgnoresTheMouse) {
    const QImage disabled = painted(entry(true, QStyle::State_None));
    EXPECT_NE(disabled, painted(entry(true, QStyle::State_Enabled)));
    EXPECT_EQ(disabled, painted(entry(true, QStyle::State_Selected)));
}

TEST(MenuEntry, IsInTheAccentUnderTheMouse) {
    const QImage hovered = painted(entry(false, QStyle::State_Enabled | QStyle::State_Selected));
    EXPECT_EQ(hovered.pixelColor(150, 2), shownAccent(kAccent));
    EXPECT_EQ(painted(entry(false, QStyle::State_Enabled)).pixelColor(150, 2), QColor(Qt::white));
}

TEST(MenuEntry, HasItsShortcutAtTheRightEdge) {
    const QImage image = painted(entry(false, QStyle::State_Enabled));
    const QImage edge = image.copy(266, 0, 20, image.height());
    QImage blank = edge;
    blank.fill(Qt::white);
    EXPECT_NE(edge, blank);
    EXPECT_EQ(image.copy(150, 0, 100, 38), QImage(blank.scaled(100, 38)));
}

TEST(PopUpMenu, FitsTheScreenHoweverLongItIs) {
    QMenu menu;
    menu.setFont(fontOf(20));
    for (int i = 0; i < 100; ++i)
        menu.addAction("entry");
    menu.popup({0, 0});
    EXPECT_LE(menu.height(), menu.screen()->availableGeometry().height());
}

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

TEST(NotebookColors, CanBeReadAsThePlayerHasAskedTheSystemForIt) {
    const Preferences usual;
    Preferences dark;
    Preferences high;
    Preferences both;
    dark.dark = high.highContrast = both.dark = both.highContrast = true;
    for (const Preferences& asked : {usual, dark, high, both})
        for (const Color ground : {style::kPaper, rgb(255, 255, 255)}) {
            const QPalette colors = notebookColors(kAccent, ground, Scheme(asked));
            const auto colorOf = [&](QPalette::ColorRole role) {
                const QColor color = colors.color(role);
                return rgb(color.red(), color.green(), color.blue());
            };
            const auto expectRead = [&](QPalette::ColorRole ink, QPalette::ColorRole behind) {
                EXPECT_GE(contrast(colorOf(ink), colorOf(behind)), asked.highContrast ? 7 : 4.5)
                    << ink << " on " << behind << ", dark: " << asked.dark;
            };
            expectRead(QPalette::WindowText, QPalette::Window);
            expectRead(QPalette::Text, QPalette::Base);
            expectRead(QPalette::ButtonText, QPalette::Button);
            for (const auto face : {QPalette::Highlight, QPalette::Light, QPalette::Dark})
                expectRead(QPalette::HighlightedText, face);
        }
}

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
