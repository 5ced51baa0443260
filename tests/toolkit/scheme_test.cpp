// Colours for high contrast and for a dark scheme.
#include "toolkit/scheme.h"

#include <vector>

#include <gtest/gtest.h>

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

TEST(Scheme, KeepsWhatStandsOnPaperApartFromIt) {
    const Scheme dark({.dark = true});
    EXPECT_NE(dark.ground(rgb(230, 230, 230)), dark.ground(style::kPaper));
    EXPECT_NE(dark.edge(style::kFineEdge, style::kPaper), dark.ground(style::kPaper));
}

}  // namespace
}  // namespace quillor
