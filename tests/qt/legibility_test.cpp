// Whether texts can be read, measured in the pixels that are painted.
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <memory>

#include <gtest/gtest.h>

#include "qt/paint/label_painter.h"
#include "qt/paint/paper.h"
#include "qt/paint/symbol_painter.h"
#include "qt/windows/label_views.h"
#include "qt/windows/page_window.h"
#include "qt/windows/qt_values.h"
#include "tests/support/game_test.h"
#include "toolkit/contrast.h"

namespace quillor::testing {

namespace {

Color colorAt(const QImage& image, int x, int y) {
    const QRgb pixel = image.pixel(x, y);
    return rgb(qRed(pixel), qGreen(pixel), qBlue(pixel));
}

// Of the ends of all strokes in that colour, along the rows of `area`, the share
// that has this contrast to one of the few pixels beyond it. Within letters some
// gaps are too narrow to show what is in them. 1 when nothing is written there.
double readable(const QImage& image, const QRect& area, Color text, double needed) {
    constexpr int kBeside = 5;
    constexpr int kStroke = 2;          // thinner ones are blurred by their smooth edges
    constexpr double kMeasured = 0.95;  // and so are their surroundings, a little
    int ends = 0;
    int good = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        int stroke = 0;
        for (int x = area.left(); x <= area.right() - kBeside; ++x) {
            stroke = colorAt(image, x, y) == text ? stroke + 1 : 0;
            if (stroke < kStroke || colorAt(image, x + 1, y) == text)
                continue;
            double best = 1;
            for (int beside = 1; beside <= kBeside; ++beside)
                best = std::max(best, contrast(text, colorAt(image, x + beside, y)));
            ++ends;
            good += best >= needed * kMeasured ? 1 : 0;
        }
    }
    return ends == 0 ? 1 : static_cast<double>(good) / ends;
}

constexpr double kNearlyAll = 0.75;

const std::vector<Color> kColors{rgb(0, 0, 0),       rgb(255, 255, 255), rgb(128, 128, 128),
                                 rgb(20, 140, 220),  rgb(250, 30, 30),   rgb(30, 180, 30),
                                 rgb(240, 210, 30),  rgb(250, 250, 250), rgb(10, 10, 60),
                                 rgb(180, 240, 255), rgb(90, 200, 120),  rgb(200, 90, 200)};

class Legibility : public GameTest {
  protected:
    FontBook fonts{{QUILLOR_FONT_FOLDER}};
    Shell shell{fonts};

    double measured(const LabelLook& look, double needed) {
        QImage image(400, 80, QImage::Format_RGB32);
        image.fill(toQt(look.grounds[0]));
        QPainter painter(&image);
        paintLabel(painter, QRectF(image.rect()), look, fonts, 0.1);
        painter.end();
        return readable(image, image.rect(), look.textColor, needed);
    }

    // On the screen as it is shown now.
    void expectReadable(Screen& screen, const std::string& what) {
        if (!shell.find(&screen))
            shell.event([&] { shell.show(screen); });
        Page& page = *shell.find(&screen);
        page.pageWindow().resize(1320, static_cast<int>(1320 * screen.height / screen.width));
        shell.event([] {});
        const QImage image = page.grab().toImage();
        for (const ControlRef& ref : screen.controls()) {
            ControlView* view = page.view(controlOf(ref));
            const auto* label = dynamic_cast<LabelView*>(view);
            if (!label || !isUsable(controlOf(ref)) || label->label().caption.empty())
                continue;
            if (label->label().font.face == Face::Comic)
                continue;  // the man's face: of the same ink as his head
            const QWidget& widget = view->widget();
            QRect area(widget.mapTo(&page, QPoint()), widget.size());
            if (isSymbolFace(label->label().font.face))
                area.adjust(10, 10, -10, -10);  // without the frame around it
            EXPECT_GE(readable(image, area & image.rect(), label->label().textColor,
                               contrastNeeded(label->label().font)),
                      kNearlyAll)
                << what << ": " << label->label().id;
        }
        shell.event([&] { shell.close(screen); });
    }

    static ImageRef picture(Color top, Color bottom) {
        QImage image(80, 50, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixelColor(x, y, toQt(mixed(top, bottom, y / 49.0)));
        return std::make_shared<DecodedImage>(std::move(image));
    }
};

TEST_F(Legibility, OfEveryTextOnEveryColor) {
    LabelLook look;
    look.caption = u"HILTE";
    for (const Font& font : {Font{Face::Display, 12, true}, Font{Face::Display, 24, true}})
        for (const Color text : kColors)
            for (const Color ground : kColors) {
                look.font = font;
                look.textColor = text;
                look.grounds = {ground, ground};
                EXPECT_GE(measured(look, contrastNeeded(font)), kNearlyAll)
                    << text << " on " << ground << " at " << font.size;
            }
}

TEST_F(Legibility, TakesNoMoreEdgeThanItNeeds) {
    LabelLook look;
    look.caption = u"HILTE";
    look.font = {Face::Display, 17, true};
    look.textColor = rgb(250, 250, 250);
    const Color theme = rgb(20, 140, 220);
    look.grounds = {theme, theme};
    EXPECT_EQ(measured(look, contrast(look.textColor, theme) + 0.5), 0);
    const Color green = rgb(30, 180, 30);
    look.grounds = {green, green};
    EXPECT_GE(measured(look, 3), kNearlyAll);
    EXPECT_LT(measured(look, 7), 0.2);
}

struct Surroundings {
    const char* name;
    Color theme;
    Color top;  // of the picture
    Color bottom;
};

void PrintTo(const Surroundings& surroundings, std::ostream* out) {
    *out << surroundings.name;
}

class LegibilityWith : public Legibility, public ::testing::WithParamInterface<Surroundings> {
  protected:
    LegibilityWith() {
        run.folder.write("Color.txt", std::to_string(GetParam().theme));
        paper = GetParam().top < 0 ? nullptr : picture(GetParam().top, GetParam().bottom);
    }
    void look(ScreenId id, const std::string& what) {
        Screen& screen = run.show(id);
        screen.takePaper(paper);
        expectReadable(screen, what);
    }

    ImageRef paper;
};

TEST_P(LegibilityWith, OfMenuSettingsAndInventor) {
    start();
    look(ScreenId::Start, "start");
    look(ScreenId::Menu, "menu");
    player.hover("lblOption(5)");
    look(ScreenId::Menu, "hovered");
    look(ScreenId::Inventor, "inventor");
    run.show(ScreenId::Settings);
    player.click("lblDs(1)");
    look(ScreenId::Settings, "settings");
}

TEST_P(LegibilityWith, OfTheGame) {
    saved.giDesign = 1;
    play(u"CASA DE LUNA");
    settings.giScore = 400;
    game().accent.flash(settings.glYellow);
    look(ScreenId::Game, "flash");
    desktop.advance(1200);  // the low score pulses
    look(ScreenId::Game, "pulse");
    for (const char16_t wrong : {u'X', u'Y', u'Z', u'W', u'V', u'K'})
        player.type(Text(1, wrong));
    look(ScreenId::Game, "dead");
    look(ScreenId::Word2, "topics");
}

INSTANTIATE_TEST_SUITE_P(
    Palettes, LegibilityWith,
    ::testing::Values(Surroundings{"usual", rgb(20, 140, 220), -1, -1},
                      Surroundings{"white", rgb(255, 255, 255), -1, -1},
                      Surroundings{"black", rgb(1, 1, 1), -1, -1},
                      Surroundings{"yellow", rgb(240, 230, 60), 0, 0},
                      Surroundings{"navy", rgb(10, 10, 60), rgb(10, 30, 10), rgb(60, 80, 60)},
                      Surroundings{"sky", rgb(180, 240, 255), rgb(0, 0, 0), rgb(255, 255, 255)}),
    [](const auto& palette) { return palette.param.name; });

}  // namespace

}  // namespace quillor::testing
