#include "toolkit/contrast.h"

#include <vector>

#include <gtest/gtest.h>

namespace quillor::testing {
namespace {

TEST(Contrast, ReachesFromOneToTwentyOne) {
    EXPECT_NEAR(contrast(rgb(0, 0, 0), rgb(255, 255, 255)), 21, 1e-9);
    EXPECT_NEAR(contrast(rgb(20, 140, 220), rgb(20, 140, 220)), 1, 1e-9);
}

TEST(Contrast, IsTheSameBothWays) {
    EXPECT_EQ(contrast(rgb(250, 30, 30), rgb(20, 140, 220)),
              contrast(rgb(20, 140, 220), rgb(250, 30, 30)));
}

TEST(Contrast, OfWhiteTextOnTheThemeIsEnoughToRead) {
    EXPECT_GE(contrast(rgb(250, 250, 250), rgb(20, 140, 220)), 3);
}

// Greys, and colours of every hue.
const std::vector<Color> kPalette = [] {
    std::vector<Color> colors;
    for (int red = 0; red <= 255; red += 51)
        for (int green = 0; green <= 255; green += 51)
            for (int blue = 0; blue <= 255; blue += 51)
                colors.push_back(rgb(red, green, blue));
    return colors;
}();

TEST(Contrast, OfTheFarthestColorIsEnoughForSmallText) {
    for (const Color color : kPalette)
        EXPECT_GE(contrast(color, farthestFrom(color)), kSmallTextContrast) << color;
}

TEST(Contrast, IsReachedByDarkening) {
    for (const Color color : kPalette)
        EXPECT_GE(contrast(rgb(255, 255, 255), darkEnoughForWhite(color, 4.5)), 4.5) << color;
    EXPECT_EQ(darkEnoughForWhite(rgb(20, 80, 160), 4.5), rgb(20, 80, 160));
}

TEST(Contrast, OfAMixtureLiesBetween) {
    EXPECT_EQ(mixed(rgb(10, 20, 30), rgb(110, 220, 230), 0), rgb(10, 20, 30));
    EXPECT_EQ(mixed(rgb(10, 20, 30), rgb(110, 220, 230), 0.5), rgb(60, 120, 130));
    EXPECT_EQ(mixed(rgb(10, 20, 30), rgb(110, 220, 230), 1), rgb(110, 220, 230));
}

}  // namespace
}  // namespace quillor::testing
