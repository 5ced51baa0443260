// All screens in windows of ten shapes, wide and tall: nothing clipped, nothing outside, nothing
// too small, nothing that jumps. On whichever scale of the display the tests run: see CMakeLists.
#include <QFontMetricsF>
#include <algorithm>
#include <map>
#include <utility>

#include <gtest/gtest.h>

#include "qt/windows/label_views.h"
#include "qt/windows/page_window.h"
#include "tests/support/game_test.h"

namespace quillor::testing {

namespace {

// In pixels of the display, however it is scaled.
const std::vector<QSize> kSizes{{640, 480}, {1024, 600}, {1366, 700}, {1920, 1010}, {3840, 2100},
                                {480, 800}, {600, 960},  {768, 1024}, {960, 1040},  {2160, 3840}};
constexpr double kSmallestText = 8;

bool isSpokenOnly(const ControlRef& ref) {
    auto* const* label = std::get_if<Label*>(&ref);
    return label != nullptr && (*label)->role == LabelRole::Notification;
}

bool isTyped(const ControlRef& ref) {
    return std::holds_alternative<ListBox*>(ref) || std::holds_alternative<TextField*>(ref);
}

QString plain(const Label& label) {
    const Text text = plainCaption(label);
    return QString::fromStdU16String(text);
}

class EveryShape : public GameTest, public ::testing::WithParamInterface<bool> {
  protected:
    EveryShape() {
        english = GetParam();
        shell.motions.wanted = false;
    }

    Page& open(Screen& screen) {
        shell.event([&] { shell.show(screen); });
        Page& page = *shell.find(&screen);
        page.pageWindow().setMinimumSize(1, 1);
        return page;
    }

    void resize(Page& page, const QSize& pixels) {
        page.pageWindow().resize(pixels / page.devicePixelRatioF());
        shell.event([] {});
    }

    void walk(ScreenId id, const std::string& what) {
        Screen& screen = run.show(id);
        Page& page = open(screen);
        for (const QSize& size : kSizes) {
            resize(page, size);
            where =
                what + " at " + std::to_string(size.width()) + "x" + std::to_string(size.height());
            look(page);
        }
        shell.event([&] { shell.close(screen); });
    }

    void look(const Page& page) {
        for (const ControlRef& ref : page.screen()->controls()) {
            const Control& control = controlOf(ref);
            if (std::holds_alternative<Picture*>(ref) || !isSeen(control) || isSpokenOnly(ref))
                continue;
            const QWidget& widget = page.view(control)->widget();
            const QRect place(widget.mapTo(&page, QPoint()), widget.size());
            EXPECT_TRUE(std::holds_alternative<Frame*>(ref) || std::holds_alternative<Line*>(ref) ||
                        page.rect().contains(place))
                << control.id << " of " << where;
            if (auto* const* label = std::get_if<Label*>(&ref)) {
                expectRead(**label, widget, page);
            } else if (isTyped(ref)) {
                EXPECT_GE(widget.font().pixelSize() * page.devicePixelRatioF(), kSmallestText)
                    << control.id << " of " << where;
            }
        }
    }

    // In a font of 8 pixels of the display that is not cut off.
    void expectRead(const Label& label, const QWidget& widget, const Page& page) {
        const bool symbol = label.font.face == Face::Webdings || label.font.face == Face::Wingdings;
        if (label.caption.empty() || symbol)
            return;
        const double density = page.devicePixelRatioF();
        const QRectF room(QPointF(), QSizeF(widget.size()) * density);
        const QFont drawn = drawnFont(room, lookOf(label), fonts, page.scale().pixels * density);
        EXPECT_GE(drawn.pixelSize(), kSmallestText) << label.id << " of " << where;
        EXPECT_TRUE(label.wordWrap ||
                    QFontMetricsF(drawn).horizontalAdvance(plain(label)) <= room.width() + 1)
            << label.id << " of " << where;
    }

    FontBook fonts{{QUILLOR_FONT_FOLDER}};
    Shell shell{fonts};
    std::string where;
};

TEST_P(EveryShape, ShowsAllOfEveryScreen) {
    start();
    for (const ScreenId id : {ScreenId::Start, ScreenId::Menu, ScreenId::Settings,
                              ScreenId::Inventor, ScreenId::OpenTopic, ScreenId::Progress})
        walk(id, "screen " + std::to_string(static_cast<int>(id)));
}

TEST_P(EveryShape, ShowsAllOfAGameAndItsEnd) {
    saved.gbAgainstClock = true;
    play(u"MURCI\u00c9LAGOS ALBOROTADOS EN CUEVAS OSCURAS");
    player.click("lblKey(38)");
    walk(ScreenId::Game, "playing");
    for (const char16_t wrong : {u'X', u'Y', u'Z', u'W', u'V', u'K'})
        player.type(Text(1, wrong));
    walk(ScreenId::Game, "dead");
    walk(ScreenId::Word2, "topics");
}

TEST_P(EveryShape, ShowsAllOfTheClassicEntry) {
    openClassic();
    player.press(key::kReturn);
    player.type(Text(35, u'w'));
    walk(ScreenId::Word1, "entry");
}

// From one width or height to the next, with the same page, all moves by a pixel or two.
TEST_P(EveryShape, DoesNotJumpWhileItsWindowIsDragged) {
    play(u"CASA DE LUNA");
    for (const ScreenId id : {ScreenId::Game, ScreenId::Menu, ScreenId::Settings,
                              ScreenId::Inventor, ScreenId::Progress}) {
        Screen& screen = run.show(id);
        Page& page = open(screen);
        Twips sheetBefore = 0;
        std::map<const Control*, QRect> before;
        for (int height = 900; height < 1500; height += 3) {
            page.pageWindow().resize(700, height);
            shell.event([] {});
            const bool same =
                screen.sheet().width == std::exchange(sheetBefore, screen.sheet().width);
            for (const ControlRef& ref : screen.controls()) {
                const Control& control = controlOf(ref);
                const QRect now = page.view(control)->widget().geometry();
                const QRect last = std::exchange(before[&control], now);
                if (!same || std::holds_alternative<Picture*>(ref))
                    continue;
                EXPECT_LE((now.topLeft() - last.topLeft()).manhattanLength(), 6) << control.id;
                EXPECT_LE(std::abs(now.width() - last.width()), 6) << control.id;
            }
        }
        shell.event([&] { shell.close(screen); });
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryShape, ::testing::Values(false, true),
                         [](const auto& language) {
                             return language.param ? "English" : "Spanish";
                         });

// 9 mm at the 96 pixels an inch that a logical pixel stands for.
class Upright : public GameTest, public ::testing::WithParamInterface<QSize> {};

TEST_P(Upright, HasKeysForAFinger) {
    constexpr int kFinger = 34;
    FontBook fonts({QUILLOR_FONT_FOLDER});
    Shell shell(fonts);
    play(u"CASA DE LUNA");
    player.click("lblKey(38)");
    shell.event([&] { shell.show(game()); });
    Page& page = *shell.find(&game());
    page.pageWindow().setMinimumSize(1, 1);
    page.pageWindow().resize(GetParam());
    for (const Label& key : game().keyboard.lblKey) {
        const QSize size = page.view(key)->widget().size();
        EXPECT_GE(std::min(size.width(), size.height()), kFinger) << key.id;
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, Upright,
                         ::testing::Values(QSize(360, 640), QSize(400, 620), QSize(500, 620),
                                           QSize(600, 620), QSize(768, 1024), QSize(960, 1040)));

}  // namespace

}  // namespace quillor::testing
