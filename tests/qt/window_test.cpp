// Windows: events one at a time, what is shown, opening and closing.
#include <QAbstractButton>
#include <QTimer>

#include "tests/qt/shell_fixture.h"

namespace quillor {

namespace {

using Windows = ShellTest;

TEST_F(Windows, ShowTheTitleAndEveryControlInItsPlace) {
    Label button;
    addButton(button, "lbl", 3000, 1500);
    screen.title = u"Quillor | Prueba";
    PageWindow& window = open();
    window.resize(1320, 810);
    EXPECT_EQ(window.windowTitle(), "Quillor | Prueba");
    EXPECT_EQ(widgetOf(button).geometry(), QRect(300, 150, 90, 30));
    EXPECT_EQ(widgetOf(button).objectName(), "lbl");
}

TEST_F(Windows, FillTheDisplayAndComeBackAsTheyWere) {
    PageWindow& window = open();
    const QSize before = window.size();
    shell.setFullScreen(true);
    EXPECT_TRUE(shell.isFullScreen());
    EXPECT_TRUE(window.isFullScreen());
    shell.setFullScreen(false);
    EXPECT_FALSE(shell.isFullScreen());
    EXPECT_EQ(window.size(), before);
}

TEST_F(Windows, FollowTheTitle) {
    PageWindow& window = open();
    shell.event([&] { screen.title = u"Quillor [1]"; });
    EXPECT_EQ(window.windowTitle(), "Quillor [1]");
    EXPECT_EQ(window.accessibleName(), "Quillor [1]");
}

TEST_F(Windows, KeepTheScreensProportions) {
    Label button;
    addButton(button, "lbl", 0, 0);
    PageWindow& window = open();
    window.resize(1720, 810);
    EXPECT_EQ(widgetOf(button).geometry(), QRect(200, 0, 90, 30));
}

TEST_F(Windows, HideWhatIsHidden) {
    Label button;
    addButton(button, "lbl", 0, 0).visible = false;
    open();
    EXPECT_FALSE(widgetOf(button).isVisible());
    shell.event([&] { button.visible = true; });
    EXPECT_TRUE(widgetOf(button).isVisible());
}

TEST_F(Windows, ReportTheMouseInItsOrder) {
    Label button;
    addButton(button, "lbl", 0, 0);
    std::string seen;
    button.onMouseMove = [&] { seen += "move "; };
    button.onMouseDown = [&] { seen += "down "; };
    button.onMouseUp = [&] { seen += "up "; };
    button.onClick = [&] { seen += "click "; };
    button.onRightClick = [&] { seen += "right "; };
    open();
    QTest::mouseMove(&widgetOf(button), QPoint(5, 5));
    QTest::qWait(1);
    seen.clear();
    QTest::mouseClick(&widgetOf(button), Qt::LeftButton);
    QTest::mouseClick(&widgetOf(button), Qt::RightButton);
    EXPECT_EQ(seen, "down up click right ");
}

TEST_F(Windows, OpenTheScreensMenuWhereNothingElseTakesARightClick) {
    Frame frame;
    Shape shape;
    Label button;
    TextField field;
    int menus = 0;
    screen.menuHandler = [&] { ++menus; };
    screen.add(frame).place(0, 0, 3000, 3000);
    screen.add(shape, &frame).place(0, 0, 900, 900);
    addButton(button, "lbl", 4000, 0);
    addField(field, "txt", 4000, 1500);
    open();
    QWidget& canvas = *widgetOf(frame).parentWidget();
    const auto rightClickAt = [&](Twips x, Twips y) {
        const TwipScale& scale = shell.find(&screen)->scale();
        const QPoint at = scale.place({x, y, 1, 1}).topLeft();
        QWidget* target = canvas.childAt(at);
        QTest::mouseClick(target ? target : &canvas, Qt::RightButton, {},
                          target ? target->mapFrom(&canvas, at) : at);
    };
    rightClickAt(300, 300);    // the shape
    rightClickAt(300, 2000);   // the frame
    rightClickAt(4200, 100);   // the button
    rightClickAt(4200, 2500);  // nothing
    EXPECT_EQ(menus, 4);
    rightClickAt(4200, 1600);  // the field
    EXPECT_EQ(menus, 4);
}

TEST_F(Windows, KeepTheBlanksAroundAToolTip) {
    Label button;
    addButton(button, "lbl", 0, 0).toolTip = u" Save it ";
    open();
    EXPECT_EQ(widgetOf(button).toolTip(), " Save it ");
}

TEST_F(Windows, TakeNoMouseWhileTheScreenIsDisabled) {
    Label button;
    addButton(button, "lbl", 0, 0);
    int clicks = 0;
    button.onClick = [&] { ++clicks; };
    open();
    shell.event([&] { screen.enabled = false; });
    QTest::mouseClick(&widgetOf(button), Qt::LeftButton);
    EXPECT_EQ(clicks, 0);
}

TEST_F(Windows, AskTheScreenBeforeTheyClose) {
    int asked = 0;
    screen.closeHandler = [&] { ++asked; };
    PageWindow& window = open();
    window.close();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(Windows, DoNotCloseWhileABoxIsOpen) {
    int asked = 0;
    screen.closeHandler = [&] { ++asked; };
    PageWindow& window = open();
    shell.event([&] { shell.modally([&] { window.close(); }); });
    EXPECT_EQ(asked, 0);
}

TEST_F(Windows, GoWhenTheirScreenClosesButNotInTheMiddleOfAnEvent) {
    int idle = 0;
    shell.onIdle = [&] { ++idle; };
    PageWindow& window = open();
    QPointer<Page> page = window.page();
    idle = 0;
    shell.event([&] {
        shell.close(screen);
        shell.modally([&] { shell.event([] {}); });
        EXPECT_EQ(idle, 0);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(idle, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    EXPECT_TRUE(page.isNull());
}

TEST_F(Windows, ShowWhatATimerDoesWhileABoxIsOpen) {
    Label button;
    addButton(button, "lbl", 0, 0);
    open();
    shell.event([&] {
        shell.modally([&] { shell.event([&] { button.visible = false; }); });
        EXPECT_FALSE(widgetOf(button).isVisible());
    });
}

TEST_F(Windows, DeliverNothingAfterTheEnd) {
    open();
    bool delivered = false;
    shell.event([&] {
        shell.end();
        shell.event([&] { delivered = true; });
    });
    EXPECT_FALSE(delivered);
}

TEST_F(Windows, StandOverTheWindowOfTheirScreen) {
    PlainScreen above;
    above.width = 6000;
    above.height = 3000;
    above.over = &screen;
    PageWindow& below = open();
    PageWindow& window = open(above);
    EXPECT_EQ(window.windowType(), Qt::Dialog);
    EXPECT_EQ(window.windowHandle()->transientParent(), below.windowHandle());
    EXPECT_NEAR(window.page()->scale().pixels, below.page()->scale().pixels, 0.001);
    shell.event([&] { shell.close(above); });
}

TEST_F(Windows, OpenADialogWhereTheDisplayIs) {
    PlainScreen above;
    above.over = &screen;
    PageWindow& below = open();
    const QRect display = below.screen()->availableGeometry();
    below.setGeometry({display.bottomRight() - QPoint(60, 50), below.size()});
    PageWindow& window = open(above);
    EXPECT_TRUE(display.contains(window.geometry()));
    shell.event([&] { shell.close(above); });
}

TEST_F(Windows, ShowOneLargeScreenAfterTheOther) {
    PlainScreen next;
    next.title = u"Quillor | Next";
    PageWindow& window = open();
    window.setGeometry(40, 50, 640, 420);
    const WId native = window.winId();
    Page& before = *window.page();
    shell.event([&] {
        shell.show(next);
        shell.close(screen);
    });
    EXPECT_EQ(&shell.find(&next)->pageWindow(), &window);
    EXPECT_EQ(window.winId(), native);
    EXPECT_EQ(window.geometry(), QRect(40, 50, 640, 420));
    EXPECT_EQ(window.windowTitle(), "Quillor | Next");
    EXPECT_TRUE(window.page()->isVisible());
    EXPECT_FALSE(before.isVisible());
    shell.event([&] { shell.close(next); });
}

TEST_F(Windows, ShowTheScreenBelowWhenTheOneOpenedLastCloses) {
    PlainScreen next;
    PageWindow& window = open();
    shell.event([&] { shell.show(next); });
    shell.event([&] { shell.close(next); });
    EXPECT_EQ(window.page()->screen(), &screen);
    EXPECT_TRUE(window.page()->isVisible());
}

TEST_F(Windows, ShowASmallScreenInTheScaleOfTheLargeOnes) {
    Label button;
    addButton(button, "lbl", 0, 0);
    screen.width = 6600;
    screen.height = 4050;
    open().resize(1320, 810);
    EXPECT_EQ(widgetOf(button).geometry(), QRect(330, 202, 90, 30));
}

TEST_F(Windows, KeepTheFocusOfAScreenThatIsCovered) {
    TextField first;
    TextField second;
    addField(first, "txt1", 0, 0);
    addField(second, "txt2", 0, 600);
    PlainScreen next;
    open();
    shell.event([&] { screen.setFocus(second); });
    shell.event([&] { shell.show(next); });
    shell.event([&] { shell.close(next); });
    EXPECT_EQ(focused(), "txt2");
}

class TimersOfWindows : public ShellTest {
  protected:
    /// The screen's one timer, which ticks as often as a timer can.
    void addTimer(std::function<void()> onTick) {
        timer.id = "tmr";
        timer.interval = 1;
        timer.enabled = true;
        timer.onTick = std::move(onTick);
        screen.add(timer);
    }
    /// Waits until the timer has ticked so often from now on.
    void waitForTicks(const int& ticks, int more) {
        const int wanted = ticks + more;
        EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= wanted; }, 2000));
    }

    Timer timer;
};

TEST_F(TimersOfWindows, RunWhileTheyAreEnabled) {
    int ticks = 0;
    addTimer([&] { timer.enabled = ++ticks < 3; });
    open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }, 2000));
    QTest::qWait(3 * kTimerResolution);
    EXPECT_EQ(ticks, 3);
}

// How often a widget is painted.
class PaintCount : public QObject {
  public:
    explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

TEST_F(TimersOfWindows, HaveOnlyPaintedWhatTheyHaveChanged) {
    Label changed;
    Label still;
    addButton(changed, "lblChanged", 0, 0);
    addButton(still, "lblStill", 3000, 3000);
    int ticks = 0;
    Text caption = u"before";
    addTimer([&] {
        ++ticks;
        changed.caption = caption;
    });
    open();
    waitForTicks(ticks, 3);
    PaintCount changedPaints(widgetOf(changed));
    PaintCount stillPaints(widgetOf(still));
    waitForTicks(ticks, 5);
    EXPECT_EQ(changedPaints.count, 0);
    caption = u"behind";
    waitForTicks(ticks, 5);
    EXPECT_EQ(changedPaints.count, 1);
    EXPECT_EQ(stillPaints.count, 0);
}

TEST_F(TimersOfWindows, MayMoveTheFocusAlone) {
    Label first;
    Label second;
    addButton(first, "lblFirst", 0, 0);
    addButton(second, "lblSecond", 3000, 3000);
    addTimer([&] { screen.setFocus(second); });
    open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return widgetOf(second).hasFocus(); }, 2000));
}

TEST_F(TimersOfWindows, DoNotTickInsideTheirOwnTick) {
    int ticks = 0;
    addTimer([&] {
        ++ticks;
        shell.modally([] { QTest::qWait(5 * kTimerResolution); });
        timer.enabled = false;
    });
    open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !timer.enabled; }, 2000));
    EXPECT_EQ(ticks, 1);
}

}  // namespace

}  // namespace quillor
