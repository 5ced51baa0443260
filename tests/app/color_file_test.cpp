// The colour file and the palette at start-up.
#include "tests/app/app_fixture.h"

namespace quillor::testing {
namespace {

constexpr Color kDefault = rgb(20, 140, 220);

class ColorFile : public AppTest {
  protected:
    Color themeOf(std::string_view bytes) {
        folder.write("Color.txt", bytes);
        start();
        EXPECT_EQ(settings().glThemeNow, settings().glTheme);
        return settings().glTheme;
    }
};

TEST_F(ColorFile, MayBeMissing) {
    frmStart& screen = start();
    EXPECT_EQ(settings().glTheme, kDefault);
    EXPECT_EQ(screen.lnGo.color, kDefault);
    EXPECT_EQ(screen.lblSub.textColor, kDefault);
    EXPECT_EQ(screen.lblName.backColor, rgb(250, 250, 250));
}

TEST_F(ColorFile, GivesTheTheme) {
    EXPECT_EQ(themeOf("255"), rgb(255, 0, 0));
}

TEST_F(ColorFile, ColoursTheProgressLine) {
    folder.write("Color.txt", "16711680");
    EXPECT_EQ(start().lnGo.color, rgb(0, 0, 255));
}

TEST_F(ColorFile, OfWordsKeepsTheDefault) {
    EXPECT_EQ(themeOf("abc"), kDefault);
}

TEST_F(ColorFile, ThatIsEmptyKeepsTheDefault) {
    EXPECT_EQ(themeOf(""), kDefault);
}

TEST_F(ColorFile, CountsByItsLastLine) {
    EXPECT_EQ(themeOf("1\r\n2\r\n300\r\n"), 300);
}

TEST_F(ColorFile, WithALastLineOfZeroKeepsTheDefault) {
    EXPECT_EQ(themeOf("255\r\n0\r\n"), kDefault);
}

TEST_F(ColorFile, WithAnEmptyLastLineKeepsTheDefault) {
    EXPECT_EQ(themeOf("255\r\n\r\n"), kDefault);
}

TEST_F(ColorFile, IsRoundedToAWholeNumber) {
    EXPECT_EQ(themeOf("255.5"), 256);
}

TEST_F(ColorFile, BeyondALongEndsTheLoadingThere) {
    folder.write("Color.txt", "255\r\n99999999999\r\n");
    start();
    EXPECT_EQ(settings().glTheme, 255);
    EXPECT_FALSE(folder.has("Quillor-Config.ini"));
    desktop.advance(kWholeLine);
    EXPECT_NE(program.find(ScreenId::Menu), nullptr);
}

TEST_F(ColorFile, ThatIsAFolderEndsTheLoadingThere) {
    std::filesystem::create_directory(folder / "Color.txt");
    start();
    EXPECT_EQ(settings().glTheme, kDefault);
    EXPECT_FALSE(folder.has("Temas"));
}

}  // namespace
}  // namespace quillor::testing
