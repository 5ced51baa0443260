// What lies behind a text, and the edges that follow from it.
#include <gtest/gtest.h>

#include "toolkit/contrast.h"

namespace quillor::testing {
namespace {

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
    EXPECT_EQ(groundBehind(layers, layers.label).color, kRed);
    layers.shape.width = 250;
    EXPECT_EQ(groundBehind(layers, layers.label).picture, &layers.picture);
    layers.frame.opaque = true;
    layers.frame.backColor = kBlue;
    EXPECT_EQ(groundBehind(layers, layers.label).color, kBlue);
}

TEST(Ground, IsNothingThatIsNotSeen) {
    Layers layers;
    layers.shape.visible = false;
    EXPECT_EQ(groundBehind(layers, layers.label).picture, &layers.picture);
    layers.shape.visible = true;
    layers.shape.filled = false;
    EXPECT_EQ(groundBehind(layers, layers.label).picture, &layers.picture);
}

TEST(Ground, TellsWhetherItIsTheFaceOfADisabledButton) {
    Layers layers;
    EXPECT_TRUE(groundBehind(layers, layers.label).enabled);
    layers.shape.enabled = false;
    EXPECT_FALSE(groundBehind(layers, layers.label).enabled);
}

TEST(Ground, OfAnOpaqueLabelIsItsOwn) {
    Layers layers;
    layers.label.opaque = true;
    layers.label.backColor = kBlue;
    EXPECT_EQ(groundBehind(layers, layers.label).color, kBlue);
}

TEST(Ground, OfALineIsFoundAtItsMiddle) {
    Layers layers;
    EXPECT_EQ(groundBehind(layers, layers.label).color, kRed);
    Line line;
    line.parent = &layers.frame;
    line.span(0, 0, 300, 300);
    EXPECT_EQ(groundBehind(layers, line).color, layers.front.backColor);
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
