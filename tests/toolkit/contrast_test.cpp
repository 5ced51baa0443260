// Contrast of two colours, what lies behind a text, and the edges that follow from it.
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

constexpr Color kRed = rgb(250, 30, 30);
constexpr Color kBlue = rgb(20, 140, 220);
constexpr Color kWhite = rgb(255, 255, 255);

/// A label in front of a shape in front of a picture.
class Layers : public Screen {
  public:
    Layers() : Screen("frmLayers") {
        add(picture).place(0, 0, 3000, 3000);
        add(frame).place(300, 300, 900, 900);
        shape.backColor = kRed;
        add(shape, &frame).place(0, 0, 600, 600);
        add(label, &frame).place(150, 150, 300, 300);
        add(front).place(0, 0, 3000, 3000);
    }
    Picture picture;
    Frame frame;
    Shape shape;
    Label label;
    Shape front;
    void takePaper(const ImageRef&) override {}

  protected:
    void onLoad() override {}
    void onCloseRequest() override {}
};

TEST(Ground, IsTheNextFilledThingBehindTheMiddle) {
    Layers layers;
    EXPECT_EQ(Grounds(layers).behind(layers.label).color, kRed);
    layers.shape.width = 250;
    EXPECT_EQ(Grounds(layers).behind(layers.label).picture, &layers.picture);
    layers.frame.opaque = true;
    layers.frame.backColor = kBlue;
    EXPECT_EQ(Grounds(layers).behind(layers.label).color, kBlue);
}

TEST(Ground, IsNothingThatIsNotSeen) {
    Layers layers;
    layers.shape.visible = false;
    EXPECT_EQ(Grounds(layers).behind(layers.label).picture, &layers.picture);
    layers.shape.visible = true;
    layers.shape.filled = false;
    EXPECT_EQ(Grounds(layers).behind(layers.label).picture, &layers.picture);
}

TEST(Ground, TellsWhetherItIsTheFaceOfADisabledButton) {
    Layers layers;
    EXPECT_TRUE(Grounds(layers).behind(layers.label).enabled);
    layers.shape.enabled = false;
    EXPECT_FALSE(Grounds(layers).behind(layers.label).enabled);
}

TEST(Ground, OfAnOpaqueLabelIsItsOwn) {
    Layers layers;
    layers.label.opaque = true;
    layers.label.backColor = kBlue;
    EXPECT_EQ(Grounds(layers).behind(layers.label).color, kBlue);
}

TEST(Ground, OfALineIsFoundAtItsMiddle) {
    Layers layers;
    EXPECT_EQ(Grounds(layers).behind(layers.label).color, kRed);
    Line line;
    line.parent = &layers.frame;
    line.span(0, 0, 300, 300);
    EXPECT_EQ(Grounds(layers).behind(line).color, layers.front.backColor);
}

TEST(Edge, IsOnlyGivenWhereItIsNeeded) {
    EXPECT_EQ(edgeFor(kWhite, {kBlue, kBlue}, kLargeTextContrast).share, 0);
    EXPECT_GT(edgeFor(kWhite, {kBlue, kBlue}, kSmallTextContrast).share, 0);
    EXPECT_EQ(edgeFor(kWhite, {kWhite, kWhite}, kLargeTextContrast), (Edge{rgb(0, 0, 0), 1}));
}

TEST(Edge, IsLightAroundDarkInkAndDarkAroundLightInk) {
    EXPECT_EQ(edgeFor(rgb(40, 40, 40), {rgb(10, 10, 10), kWhite}, 4.5).color, kWhite);
    EXPECT_EQ(edgeFor(rgb(250, 250, 250), {rgb(10, 10, 10), kWhite}, 4.5).color, rgb(0, 0, 0));
}

TEST(Edge, ServesInkThatLiesBetweenTheColorsOfAPicture) {
    EXPECT_GT(edgeFor(kRed, {rgb(0, 0, 0), kWhite}, kLargeTextContrast).share, 0.9);
}

TEST(ContrastNeeded, IsLessForLargeTextsAndSymbols) {
    EXPECT_EQ(contrastNeeded({Face::Display, 12, true}), 4.5);
    EXPECT_EQ(contrastNeeded({Face::Plain, 14, false}), 4.5);
    EXPECT_EQ(contrastNeeded({Face::Display, 14, true}), 3);
    EXPECT_EQ(contrastNeeded({Face::Webdings, 12, false}), 3);
}

}  // namespace

}  // namespace quillor::testing
