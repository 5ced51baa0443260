// What a person has asked the system for, and how the windows follow.
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include "qt/system/portal_settings.h"
#include "qt/windows/motions.h"
#include "tests/qt/shell_fixture.h"
#include "toolkit/scheme.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

using platform::PortalSettings;
using platform::textSizeOf;
using platform::withPortal;

TEST(Portal, SaysNothingWhereNothingIsAskedFor) {
    EXPECT_EQ(withPortal({}, {}), Preferences());
    const PortalSettings usual{{"org.freedesktop.appearance", {{"color-scheme", 0u}}},
                               {"org.gnome.desktop.interface", {{"enable-animations", true}}}};
    EXPECT_EQ(withPortal({}, usual), Preferences());
}

TEST(Portal, TellsOfEverythingThatIsAskedFor) {
    const PortalSettings settings{
        {"org.freedesktop.appearance", {{"color-scheme", 1u}, {"contrast", 1u}}},
        {"org.gnome.desktop.interface",
         {{"enable-animations", false}, {"text-scaling-factor", 1.5}}}};
    EXPECT_EQ(withPortal({}, settings), (Preferences{true, true, true, 1.5}));
}

TEST(Portal, GoesBeforeWhatWasGuessed) {
    const PortalSettings light{{"org.freedesktop.appearance", {{"color-scheme", 2u}}}};
    EXPECT_FALSE(withPortal({.dark = true}, light).dark);
    EXPECT_TRUE(withPortal({.dark = true}, {}).dark);
}

TEST(TextSize, IsTheUsualOneForTheFontsOfDesktops) {
    for (const double points : {9.0, 10.0, 11.0, -1.0})
        EXPECT_EQ(textSizeOf(points), 1) << points;
    EXPECT_GT(textSizeOf(16), 1.4);
    EXPECT_LE(textSizeOf(500), 2.5);
}

TEST(MotionAt, EndsInThePlaceInAShortTime) {
    for (const Motion motion : {Motion::Appear, Motion::Shake}) {
        EXPECT_TRUE(motionAt(motion, 100));
        EXPECT_FALSE(motionAt(motion, 400));  // as long as a colour flashes
    }
    EXPECT_GT(motionAt(Motion::Appear, 0)->y(), motionAt(Motion::Appear, 90)->y());
}

class Following : public ShellTest {
  protected:
    Following() {
        addButton(button, "lblButton", 600, 600);
        button.caption = u"A";
        addField(field, "txtField", 600, 1800);
        field.place(600, 1800, 6240, 720);
    }
    QColor paper() {
        const QImage image = shell.find(&screen)->grab().toImage();
        return image.pixelColor(image.width() / 2, image.height() - 3);
    }
    Label button;
    TextField field;
};

TEST_F(Following, PaperAndFieldsTurnDarkAndBack) {
    open();
    shell.apply({.dark = true});
    EXPECT_LT(paper().lightness(), 60);
    EXPECT_GT(as<QLineEdit>(field).palette().text().color().lightness(), 150);
    shell.apply({});
    EXPECT_GT(paper().lightness(), 200);
}

TEST_F(Following, PreferencesThatComeInTheMidstOfAnEventReachAllTheSame) {
    button.opaque = true;
    button.backColor = rgb(250, 250, 250);
    open();
    shell.event([&] { shell.apply({.dark = true}); });
    const QImage image = widgetOf(button).grab().toImage();
    EXPECT_LT(image.pixelColor(2, image.height() - 3).lightness(), 100);
}

TEST_F(Following, HighContrastLeavesPlainPaper) {
    open();
    shell.apply({.highContrast = true});
    EXPECT_EQ(paper(), QColor(255, 255, 255));
}

TEST_F(Following, FieldsTakeTheSystemsTextSize) {
    open().resize(1320, 810);
    const int usual = as<QLineEdit>(field).font().pixelSize();
    shell.apply({.textSize = 1.3});
    EXPECT_NEAR(as<QLineEdit>(field).font().pixelSize(), usual * 1.3, 1);
}

TEST_F(Following, AFieldShowsTheWholeOfALongText) {
    open().resize(1320, 810);
    shell.apply({.textSize = 2});
    shell.event([&] { field.setText(Text(35, u'W')); });
    auto& edit = as<QLineEdit>(field);
    EXPECT_LE(QFontMetrics(edit.font()).horizontalAdvance(edit.text()), edit.width());
    EXPECT_GE(edit.font().pixelSize(), 8);
}

TEST_F(Following, AControlMovesAndArrives) {
    open().resize(1320, 810);
    const QRect place = widgetOf(button).geometry();
    shell.event([&] { button.move(Motion::Appear); });
    EXPECT_GT(widgetOf(button).y(), place.y());
    EXPECT_TRUE(QTest::qWaitFor([&] { return widgetOf(button).geometry() == place; }, 2000));
}

TEST_F(Following, NothingMovesWhereNoMotionIsWanted) {
    open().resize(1320, 810);
    shell.apply({.reducedMotion = true});
    const QRect place = widgetOf(button).geometry();
    shell.event([&] { button.move(Motion::Shake); });
    QTest::qWait(50);
    EXPECT_EQ(widgetOf(button).geometry(), place);
}

}  // namespace

}  // namespace quillor
