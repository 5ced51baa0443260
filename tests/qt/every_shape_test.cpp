// All screens in windows of five sizes, wide and tall, at three scales of the display: nothing
// clipped, nothing outside, nothing too small, and every text's contrast in the picture.
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "qt/windows/field_view.h"
#include "qt/windows/label_views.h"
#include "qt/windows/page_window.h"
#include "tests/support/game_test.h"

namespace quillor::testing {

namespace {

const std::vector<QSize> kSizes{{600, 370}, {640, 450},  {1366, 700}, {3840, 2100},
                                {600, 700}, {960, 1040}, {360, 640}};
const std::vector<double> kScales{1, 2, 3};  // pixels of the display to a logical one
constexpr double kSmallestText = 8;

// The contrast of the two colours that differ most in an area of a picture: of a text to what
// is behind it, or to its edge.
double contrastIn(const QImage& picture, const QRect& area) {
    double lightest = 0;
    double darkest = 1;
    for (int y = std::max(0, area.top()); y <= std::min(area.bottom(), picture.height() - 1); ++y)
        for (int x = std::max(0, area.left()); x <= std::min(area.right(), picture.width() - 1);
             ++x) {
            const QRgb pixel = picture.pixel(x, y);
            const double light = luminance(rgb(qRed(pixel), qGreen(pixel), qBlue(pixel)));
            lightest = std::max(lightest, light);
            darkest = std::min(darkest, light);
        }
    return (lightest + 0.05) / (darkest + 0.05);
}

bool isSpokenOnly(const ControlRef& ref) {
    auto* const* label = std::get_if<Label*>(&ref);
    return label && (*label)->role == LabelRole::Notification;
}

struct Look {
    const char* name;
    Preferences asked;
    double needed;  // of every text
};

class EveryShape : public GameTest, public ::testing::WithParamInterface<bool> {
  protected:
    EveryShape() {
        english = GetParam();
        shell.motions.wanted = false;
    }

    void walk(ScreenId id, const std::string& what) {
        Screen& screen = run.show(id);
        shell.event([&] { shell.show(screen); });
        Page& page = *shell.find(&screen);
        page.pageWindow().setMinimumSize(1, 1);
        for (const QSize& size : kSizes)
            for (const double scale : kScales) {
                const std::string where = what + " at " + std::to_string(size.width()) + "x" +
                                          std::to_string(size.height());
                // The picture of a display of that scale: all is laid out for so many pixels.
                page.pageWindow().resize(size * scale);
                shell.event([] {});
                look(page, screen, scale, where);
            }
        shell.event([&] { shell.close(screen); });
    }

    void look(Page& page, const Screen& screen, double scale, const std::string& where) {
        for (const ControlRef& ref : screen.controls()) {
            const Control& control = controlOf(ref);
            if (std::holds_alternative<Picture*>(ref) || !isSeen(control) || isSpokenOnly(ref))
                continue;
            const QWidget& widget = page.view(control)->widget();
            const QRect place(widget.mapTo(&page, QPoint()), widget.size());
            EXPECT_TRUE(std::holds_alternative<Frame*>(ref) || std::holds_alternative<Line*>(ref) ||
                        page.rect().contains(place))
                << control.id << " of " << where;
            if (auto* const* label = std::get_if<Label*>(&ref))
                expectRead(**label, widget, page, scale, where);
        }
    }

    // In a font of 8 pixels that is not cut off.
    void expectRead(const Label& label, const QWidget& widget, const Page& page, double scale,
                    const std::string& where) {
        const bool symbol = label.font.face == Face::Webdings || label.font.face == Face::Wingdings;
        if (label.caption.empty() || symbol)
            return;
        LabelLook wanted = lookOf(label);
        const QFont drawn = drawnFont(QRectF(widget.rect()), wanted, fonts, page.scale().pixels);
        EXPECT_GE(drawn.pixelSize(), kSmallestText * scale * 0.95) << label.id << " of " << where;
        const QFontMetricsF metrics(drawn);
        EXPECT_TRUE(label.wordWrap ||
                    metrics.horizontalAdvance(plain(label)) <= widget.width() + 1)
            << label.id << " of " << where;
    }

    static QString plain(const Label& label) {
        const Text text = plainCaption(label);
        return QString::fromStdU16String(text);
    }

    void expectContrast(ScreenId id, const Look& asked) {
        shell.apply(asked.asked);
        Screen& screen = run.show(id);
        shell.event([&] { shell.show(screen); });
        Page& page = *shell.find(&screen);
        for (const QSize& size : {QSize(1320, 810), QSize(700, 1200)}) {
            page.pageWindow().resize(size);
            shell.event([] {});
            const QImage picture = page.grab().toImage();
            for (const ControlRef& ref : screen.controls()) {
                auto* const* label = std::get_if<Label*>(&ref);
                if (!label || !isUsable(**label) || (*label)->caption.empty() ||
                    isSpokenOnly(ref) || (*label)->font.face == Face::Comic)
                    continue;
                // Usually what cannot be pressed is faint.
                if (asked.needed == 3 && !groundBehind(screen, **label).enabled)
                    continue;
                const QWidget& widget = page.view(**label)->widget();
                const QRect place(widget.mapTo(&page, QPoint()), widget.size());
                EXPECT_GE(contrastIn(picture, place), asked.needed * 0.97)
                    << asked.name << ": " << (*label)->id << " of " << screen.name << " at "
                    << size.width();
            }
        }
        shell.event([&] { shell.close(screen); });
    }

    FontBook fonts{{QUILLOR_FONT_FOLDER}};
    Shell shell{fonts};
};

TEST_P(EveryShape, ShowsAllOfEveryScreen) {
    start();
    for (const ScreenId id :
         {ScreenId::Start, ScreenId::Menu, ScreenId::Settings, ScreenId::Inventor})
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
    walk(ScreenId::Word1, "entry");
}

TEST_P(EveryShape, LetsEveryTextBeRead) {
    play(u"CASA DE LUNA");
    player.type(u"X");
    for (const Look& asked : {Look{"usual", {}, 3}, Look{"dark", {.dark = true}, 4.5},
                              Look{"contrast", {.highContrast = true}, 7},
                              Look{"dark contrast", {.highContrast = true, .dark = true}, 7}})
        for (const ScreenId id : {ScreenId::Game, ScreenId::Menu, ScreenId::Settings,
                                  ScreenId::Inventor, ScreenId::Word2})
            expectContrast(id, asked);
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryShape, ::testing::Values(false, true),
                         [](const auto& language) {
                             return language.param ? "English" : "Spanish";
                         });

// The keys of a phone can be pressed with a finger.
class Phone : public GameTest {};

TEST_F(Phone, HasKeysOf40Pixels) {
    FontBook fonts({QUILLOR_FONT_FOLDER});
    Shell shell(fonts);
    play(u"CASA DE LUNA");
    player.click("lblKey(38)");
    shell.event([&] { shell.show(game()); });
    Page& page = *shell.find(&game());
    page.pageWindow().setMinimumSize(1, 1);
    page.pageWindow().resize(360, 640);
    for (const Label& key : game().keyboard.lblKey) {
        const QSize size = page.view(key)->widget().size();
        EXPECT_GE(std::min(size.width(), size.height()), 40) << key.id;
    }
}

}  // namespace

}  // namespace quillor::testing
