// Colours for high contrast and for a dark scheme.
#include "toolkit/scheme.h"

#include <vector>

#include <gtest/gtest.h>

#include "tests/support/plain_screen.h"
#include "toolkit/style.h"

namespace quillor {
namespace {

const std::vector<Color> kColors{
    rgb(0, 0, 0),       rgb(250, 250, 250), rgb(200, 200, 200), rgb(230, 230, 230),
    rgb(20, 140, 220),  rgb(250, 30, 30),   rgb(30, 180, 30),   rgb(240, 210, 30),
    rgb(128, 128, 128), rgb(120, 84, 52),   style::kPaper,      style::kInk,
    style::kFaint,      rgb(255, 255, 255), rgb(1, 1, 1),       rgb(180, 240, 255)};

void expectContrast(const Scheme& scheme, double needed) {
    for (const Color ground : kColors)
        for (const Color ink : kColors)
            EXPECT_GE(contrast(scheme.ink(ink, ground), scheme.ground(ground)), needed)
                << ink << " on " << ground;
}

TEST(Scheme, LeavesAScreenAsItIs) {
    for (const Color ground : kColors)
        for (const Color ink : kColors) {
            EXPECT_EQ(Scheme().ground(ground), ground);
            EXPECT_EQ(Scheme().ink(ink, ground), ink);
            EXPECT_EQ(Scheme().edge(ink, ground), ink);
        }
    EXPECT_EQ(Scheme().needed(kLargeTextContrast), kLargeTextContrast);
}

TEST(Scheme, LetsEveryTextBeReadInTheDark) {
    expectContrast(Scheme({.dark = true}), 4.5);
}

TEST(Scheme, LetsEveryTextBeReadInHighContrast) {
    expectContrast(Scheme({.highContrast = true}), 7);
    expectContrast(Scheme({.highContrast = true, .dark = true}), 7);
}

TEST(Scheme, TurnsPaperDarkAndKeepsColors) {
    const Scheme dark({.dark = true});
    EXPECT_LT(luminance(dark.ground(style::kPaper)), 0.05);
    EXPECT_GT(luminance(dark.ink(style::kInk, style::kPaper)), 0.4);
    const Color theme = dark.ground(rgb(20, 140, 220));
    EXPECT_GT(blueOf(theme), redOf(theme) + 80);
}

TEST(Scheme, KeepsTheCaptionsOfColoredButtonsLight) {
    const Scheme dark({.dark = true});
    for (const Color face : {rgb(20, 140, 220), rgb(250, 30, 30), rgb(30, 180, 30)})
        EXPECT_GT(luminance(dark.ink(style::kPale, face)), luminance(dark.ground(face)));
}

TEST(Scheme, KeepsWhatStandsOnPaperApartFromIt) {
    const Scheme dark({.dark = true});
    EXPECT_NE(dark.ground(rgb(230, 230, 230)), dark.ground(style::kPaper));
    EXPECT_NE(dark.edge(style::kFineEdge, style::kPaper), dark.ground(style::kPaper));
}

// On paper, and on a shape in the colour of the theme.
struct OnAFace : ::testing::Test {
    OnAFace() {
        screen.add(face).place(0, 0, 900, 300);
        face.backColor = rgb(20, 140, 220);
        screen.addButton(label, "lbl", 0, 0);
        label.textColor = style::kPale;
        label.font = style::kText;
    }
    PlainScreen screen;
    Shape face;
    Label label;
};

TEST_F(OnAFace, WordsAreInkedAsTheirGroundNeedsIt) {
    const Inked usual = inked(Grounds(screen), label, Scheme());
    EXPECT_EQ(usual.ink, style::kPale);
    EXPECT_EQ(usual.grounds, (ColorRange{face.backColor, face.backColor}));
    EXPECT_GT(usual.edge().share, 0);  // white on the theme is less than small print needs
    const Inked high = inked(Grounds(screen), label, Scheme({.highContrast = true}));
    EXPECT_GE(contrast(high.ink, high.grounds[0]), kHighContrast);
}

TEST_F(OnAFace, WordsOnAFaceThatIsDisabledAreToo) {
    face.enabled = false;
    const Inked shown = inked(Grounds(screen), label, Scheme());
    EXPECT_FALSE(shown.enabled);
    EXPECT_EQ(shown.ink, style::kInk);
}

TEST_F(OnAFace, LinesNeedWhatLargeTextsNeed) {
    Line line;
    line.span(0, 150, 900, 150);
    line.color = face.backColor;
    screen.add(line);
    const Inked shown = inked(Grounds(screen), line, Scheme());
    EXPECT_EQ(shown.needed, kLargeTextContrast);
    EXPECT_GT(shown.edge().share, 0);
}

}  // namespace
}  // namespace quillor
