// Which page a screen is laid out on.
#include "toolkit/sheets.h"

#include <gtest/gtest.h>

#include "toolkit/screen.h"

namespace quillor {
namespace {

Sheet large(double width, double height) {
    return sheetFor(kLargeSheets, width, height);
}

TEST(Sheets, AreTallInAWindowNarrowerThanHigh) {
    EXPECT_EQ(large(640, 480), kWideSheet);
    EXPECT_EQ(large(3840, 1000), kWideSheet);
    EXPECT_EQ(large(700, 700), kWideSheet);
    EXPECT_EQ(large(699, 700).layout, Layout::Tall);
}

TEST(Sheets, OfHalfADisplayAndOfAPhoneDiffer) {
    EXPECT_EQ(large(960, 1040).width, kHalfSheet.width);
    EXPECT_EQ(large(768, 1024).width, kHalfSheet.width);
    EXPECT_EQ(large(360, 640).width, kPhoneSheet.width);
}

TEST(Sheets, GoOnDownToTheWindowsLowerEdge) {
    const Sheet phone = large(360, 800);
    EXPECT_NEAR(phone.height / phone.width, 800.0 / 360, 0.01);
    EXPECT_EQ(large(600, 620).height, kHalfSheet.height);
    EXPECT_LT(large(100, 5000).height, 2 * kPhoneSheet.height);
}

// What was largest on one sheet is no smaller on the next one.
TEST(Sheets, FollowEachOtherWithoutAJumpInSize) {
    const auto scale = [](double width, double height) {
        const Sheet sheet = large(width, height);
        return std::min(width / sheet.width, height / sheet.height);
    };
    for (double height = 500; height < 1600; height += 10)
        EXPECT_NEAR(scale(800, height) / scale(800, height + 10), 1, 0.03) << height;
}

class TwoLayouts : public Screen {
  public:
    TwoLayouts() : Screen("frmTwo") {}
    int arranged = 0;
    void takePaper(const ImageRef&) override {}

  protected:
    std::span<const Sheet> sheets() const override { return kLargeSheets; }
    void arrange(const Sheet& paper) override {
        ++arranged;
        width = paper.width;
        height = paper.height;
    }
    void onLoad() override {}
    void onCloseRequest() override {}
};

TEST(Fitting, ArrangesAScreenOnlyWhereItsSheetIsAnother) {
    TwoLayouts screen;
    screen.fit(1600, 900);
    screen.fit(1000, 900);
    EXPECT_EQ(screen.arranged, 1);
    screen.fit(800, 900);
    EXPECT_EQ(screen.arranged, 2);
    EXPECT_LT(screen.width, screen.height);
    screen.fit(0, 0);
    EXPECT_EQ(screen.arranged, 2);
}

}  // namespace
}  // namespace quillor
