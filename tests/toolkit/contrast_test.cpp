#include "toolkit/contrast.h"

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

}  // namespace
}  // namespace quillor::testing
