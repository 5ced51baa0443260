// What every text differs by from what is behind it, measured in pictures of all screens, as
// they are usually and as a person may have asked the system for them.
#include <QImage>
#include <QLineEdit>
#include <algorithm>
#include <functional>
#include <utility>

#include <gtest/gtest.h>

#include "qt/windows/control_view.h"
#include "qt/windows/page_window.h"
#include "tests/support/game_test.h"
#include "toolkit/contrast.h"

namespace quillor::testing {

namespace {

Color colorAt(const QImage& image, int x, int y) {
    const QRgb pixel = image.pixel(x, y);
    return rgb(qRed(pixel), qGreen(pixel), qBlue(pixel));
}

// Of a strip of two pictures that differ by a text: the contrast of its strokes to what is
// behind them, or to their own edges; and of how many pixels it is.
struct Strip {
    double contrast = 1;
    int inked = 0;
};

Strip measured(const QImage& with, const QImage& without, int from, int to) {
    Strip strip;
    Color lightest = rgb(0, 0, 0);
    Color darkest = rgb(255, 255, 255);
    for (int y = 0; y < with.height(); ++y)
        for (int x = from; x < to; ++x) {
            const Color inked = colorAt(with, x, y);
            if (inked == colorAt(without, x, y))
                continue;
            ++strip.inked;
            strip.contrast = std::max(strip.contrast, contrast(inked, colorAt(without, x, y)));
            lightest = luminance(inked) > luminance(lightest) ? inked : lightest;
            darkest = luminance(inked) < luminance(darkest) ? inked : darkest;
        }
    if (strip.inked > 0)
        strip.contrast = std::max(strip.contrast, contrast(lightest, darkest));
    return strip;
}

// The least contrast along the text, letter by letter; nothing is written: a high one. What
// only a stroke or two reach into counts to the next strip.
double leastContrast(const QImage& with, const QImage& without, int letter) {
    constexpr double kNothing = 21;
    double least = kNothing;
    for (int from = 0, to = letter; from < with.width(); to += letter) {
        const Strip strip = measured(with, without, from, std::min(to, with.width()));
        if (strip.inked >= 2 * letter)
            least = std::min(least, strip.contrast);
        if (strip.inked >= 2 * letter || strip.inked == 0)
            from = to;
        if (to >= with.width())
            break;
    }
    return least;
}

struct Asked {
    const char* name;
    Preferences preferences;
    double needed;  // of every text; 0: as its font needs it
};

void PrintTo(const Asked& asked, std::ostream* out) {
    *out << asked.name;
}

class SchemeContrast : public GameTest, public ::testing::WithParamInterface<Asked> {
  protected:
    SchemeContrast() {
        shell.motions.wanted = false;
        shell.apply(GetParam().preferences);
        shell.motions.wanted = false;
    }

    void look(ScreenId id) {
        Screen& screen = run.show(id);
        shell.event([&] { shell.show(screen); });
        Page& page = *shell.find(&screen);
        for (const QSize& size : {QSize(1320, 810), QSize(700, 1200)}) {
            page.pageWindow().resize(size);
            shell.event([] {});
            for (const ControlRef& ref : screen.controls())
                if (isSeen(controlOf(ref)))
                    std::visit([&](auto* control) { expectRead(page, *control); }, ref);
        }
        shell.event([&] { shell.close(screen); });
    }

    void expectRead(Page&, Control&) {}
    void expectRead(Page& page, Label& label) {
        // The man's face is of the ink of his head.
        if (label.role == LabelRole::Notification || label.font.face == Face::Comic)
            return;
        // Usually what cannot be pressed is faint.
        const bool faint = !isUsable(label) || !Grounds(*page.screen()).behind(label).enabled;
        if (faint && GetParam().needed == 0)
            return;
        Text caption;
        const auto turn = [&] { std::swap(caption, label.caption); };
        expect(page, label, label.font, turn);
    }
    void expectRead(Page& page, ListBox& list) {
        std::vector<Text> entries(list.items.size());
        expect(page, list, list.font, [&] { std::swap(entries, list.items); });
    }
    void expectRead(Page& page, TextField& field) {
        auto& edit = dynamic_cast<QLineEdit&>(page.view(field)->widget());
        const QSignalBlocker silent(edit);
        QString text;
        expect(page, field, field.font, [&] {
            const QString shown = edit.text();
            edit.setText(std::exchange(text, shown));
        });
    }

    // `turn` takes the text away, and puts it back when it is called again.
    void expect(Page& page, Control& control, const Font& font, const std::function<void()>& turn) {
        const QWidget& widget = page.view(control)->widget();
        const QRect place(widget.mapTo(&page, QPoint()), widget.size());
        const QImage with = page.grab(place).toImage();
        turn();
        shell.event([] {});
        const QImage without = page.grab(place).toImage();
        turn();
        shell.event([] {});
        constexpr double kSmoothed = 0.95;  // the middle of a thin stroke is a little paler
        const double needed = GetParam().needed > 0 ? GetParam().needed : contrastNeeded(font);
        const int letter =
            static_cast<int>(font.size * 20 * page.scale().pixels * page.devicePixelRatioF());
        EXPECT_GE(leastContrast(with, without, letter), needed * kSmoothed)
            << control.id << " of " << page.screen()->name << " at " << page.width();
    }

    FontBook fonts{{QUILLOR_FONT_FOLDER}};
    Shell shell{fonts};
};

TEST_P(SchemeContrast, OfTheMenuAndWhatItLeadsTo) {
    saved.giDesign = 1;
    start();
    for (const ScreenId id : {ScreenId::Start, ScreenId::Menu, ScreenId::Settings,
                              ScreenId::Inventor, ScreenId::Progress})
        look(id);
}

TEST_P(SchemeContrast, OfAGameAndItsTopics) {
    saved.gbAgainstClock = true;
    saved.giDesign = 2;
    play(u"CASA DE LUNA");
    player.type(u"XA");
    player.click("lblKey(38)");
    look(ScreenId::Game);
    look(ScreenId::Word2);
}

TEST_P(SchemeContrast, OfTheEndOfAGame) {
    saved.giDesign = 3;
    play(u"CASA DE LUNA");
    player.type(u"A");
    for (const char16_t wrong : {u'X', u'Y', u'Z', u'W', u'V', u'K'})
        player.type(Text(1, wrong));
    look(ScreenId::Game);
}

TEST_P(SchemeContrast, OfTheFieldsOfTheClassicEntry) {
    openClassic();
    player.press(key::kReturn);
    player.type(u"casa de luna");
    look(ScreenId::Word1);
}

INSTANTIATE_TEST_SUITE_P(
    Preferences, SchemeContrast,
    ::testing::Values(Asked{"usual", {}, 0}, Asked{"dark", {.dark = true}, 4.5},
                      Asked{"contrast", {.highContrast = true}, 7},
                      Asked{"darkContrast", {.highContrast = true, .dark = true}, 7}),
    [](const auto& asked) { return asked.param.name; });

}  // namespace

}  // namespace quillor::testing
