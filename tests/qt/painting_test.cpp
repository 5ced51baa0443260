// What is painted anew after an event: what it has changed, and nothing else.
#include <QPaintEvent>
#include <QTest>
#include <map>

#include <gtest/gtest.h>

#include "qt/windows/control_view.h"
#include "qt/windows/page_window.h"
#include "tests/support/game_test.h"
#include "toolkit/shown_control.h"

namespace quillor::testing {

namespace {

/// Where a page is painted, in its own pixels.
class Painted : public QObject {
  public:
    explicit Painted(Page& page) : page_(page) {
        for (QWidget* widget : page.findChildren<QWidget*>())
            widget->installEventFilter(this);
    }
    QRegion region;

    bool eventFilter(QObject* object, QEvent* event) override {
        auto* widget = qobject_cast<QWidget*>(object);
        if (event->type() == QEvent::Paint && widget)
            region |= static_cast<QPaintEvent*>(event)->region().translated(
                widget->mapTo(&page_, QPoint()));
        return false;
    }

  private:
    Page& page_;
};

class PaintingTest : public GameTest {
  protected:
    PaintingTest() { shell.motions.wanted = false; }

    Page& show() {
        shell.event([&] { shell.show(game()); });
        Page& page = *shell.find(&game());
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&page.pageWindow()));
        QApplication::processEvents();
        return page;
    }

    static QRect placeOf(Page& page, const Control& control) {
        const QWidget& widget = page.view(control)->widget();
        return {widget.mapTo(&page, QPoint()), widget.size()};
    }

    /// Runs the event and returns what was painted of the page beside what has changed.
    template <typename Body>
    QRegion paintedBeside(Page& page, Body&& body) {
        struct Known {
            ShownControl shown;
            QRect place;
        };
        std::map<const Control*, Known> known;
        for (const ControlRef& ref : game().controls()) {
            Known& control = known[&controlOf(ref)];
            control.shown.update(ref);
            control.place = placeOf(page, controlOf(ref));
        }
        const Painted painted(page);
        shell.event(std::forward<Body>(body));
        QApplication::processEvents();
        QRegion changed;
        for (const ControlRef& ref : game().controls())
            if (Known& control = known[&controlOf(ref)]; control.shown.update(ref).any())
                changed |= QRegion(control.place) | placeOf(page, controlOf(ref));
        EXPECT_FALSE(painted.region.isEmpty());
        return painted.region - changed;
    }

    FontBook fonts{{QUILLOR_FONT_FOLDER}};
    Shell shell{fonts};
};

TEST_F(PaintingTest, OfAKeyInAGameIsWhatItHasChanged) {
    play(u"CASA DE LUNA");
    Page& page = show();
    for (const char16_t letter : {u'A', u'X', u'L'})
        EXPECT_EQ(paintedBeside(page, [&] { player.type(Text(1, letter)); }), QRegion());
}

TEST_F(PaintingTest, OfAColourThatDriftsIsWhatBearsIt) {
    saved.gbColorTransition = true;
    play(u"CASA DE LUNA");
    Page& page = show();
    EXPECT_EQ(paintedBeside(page, [&] { game().tick(game().accent.tmrSmooth); }), QRegion());
}

}  // namespace

}  // namespace quillor::testing
