// The settings screen: every change is in the file at once.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class OptionsTest : public GameTest {
  protected:
    frmOptions& options() { return run.as<frmOptions>(ScreenId::Settings); }
    void openOptions() {
        start();
        player.click("lblOption(3)");
    }
    std::string file() { return run.folder.read("Quillor-Config.ini"); }
    // The file as this screen writes it: flags of lines 1 to 7, no saved topic.
    static std::string lines(const std::string& design, const std::string& flags) {
        std::string text = design + "\r\n";
        for (const char flag : flags)
            text += std::string(1, flag) + "\r\n";
        return text + "0\r\n0\r\n\r\n";
    }
};

TEST_F(OptionsTest, HasItsTextsInEnglish) {
    openOptions();
    EXPECT_EQ(options().title, u"Quillor | Setting");
    EXPECT_EQ(options().lblOpts(0).caption, u" DESIGN");
    EXPECT_EQ(options().lblOpts(1).caption, u" USE &WIKIPEDIA");
    EXPECT_EQ(options().lblOpts(2).caption, u" HAR&D SCORE");
    EXPECT_EQ(options().lblOpts(3).caption, u" &INFINITE SCORE");
    EXPECT_EQ(options().lblOpts(4).caption, u" AGAINST &CLOCK");
    EXPECT_EQ(options().lblCheck(4).toolTip, u" Play against the clock ");
    EXPECT_EQ(options().lblDs(2).toolTip, u" Black background ");
    EXPECT_EQ(options().lblBack(1).caption, u"Back");
    EXPECT_EQ(options().lblBack(0).toolTip, u" Return to Start ");
}

TEST_F(OptionsTest, HasItsTextsInSpanish) {
    english = false;
    openOptions();
    EXPECT_EQ(options().title, u"Quillor | Ajustes");
    EXPECT_EQ(options().lblOpts(0).caption, u" DISEÑO");
    EXPECT_EQ(options().lblOpts(1).toolTip, u" Abrir Wikipedia en vez de Bing ");
    EXPECT_EQ(options().lblOpts(2).caption, u" PUNTAJE &DIFÍCIL");
    EXPECT_EQ(options().lblDs(0).toolTip, u" Tinta negra ");
    EXPECT_EQ(options().lblBack(1).caption, u"ATRÁS");
    Text tiles;
    for (const Label& tile : options().lblLetter)
        tiles += tile.caption;
    EXPECT_EQ(tiles, u"AJUSTES");
}

TEST_F(OptionsTest, ShowsWhatTheFileSays) {
    saved.gbUseWikipedia = saved.gbInfiniteScore = true;
    saved.giDesign = 2;
    openOptions();
    EXPECT_EQ(options().lblCheck(1).caption, u"a");
    EXPECT_EQ(options().lblCheck(2).caption, u"");
    EXPECT_EQ(options().lblCheck(3).caption, u"a");
    EXPECT_EQ(options().lblCheck(4).caption, u"");
    EXPECT_NE(options().shpDs(2).backColor, settings.glTheme);
    EXPECT_GT(options().shpDs(2).borderWidth, 0);  // seen on a dark theme too
    EXPECT_EQ(options().shpDs(0).borderWidth, 0);
    EXPECT_EQ(options().shpDs(0).backColor, settings.glTheme);
}

TEST_F(OptionsTest, WritesEachTickAtOnce) {
    openOptions();
    player.click("lblCheck(1)");
    EXPECT_EQ(file(), lines("0", "0100000"));
    player.click("lblOpts(4)");
    EXPECT_EQ(file(), lines("0", "0100010"));
    EXPECT_TRUE(settings.gbUseWikipedia && settings.gbAgainstClock);
}

TEST_F(OptionsTest, TicksTwiceBackAndForth) {
    openOptions();
    player.click("lblOpts(3)");
    EXPECT_EQ(file(), lines("0", "0000100"));
    EXPECT_EQ(options().lblCheck(3).caption, u"a");
    player.click("lblOpts(3)");
    EXPECT_EQ(file(), lines("0", "0000000"));
    EXPECT_EQ(options().lblCheck(3).caption, u"");
    EXPECT_FALSE(settings.gbInfiniteScore);
}

TEST_F(OptionsTest, KeepsHardAndInfiniteScoreTogether) {
    openOptions();
    player.click("lblCheck(2)");
    player.click("lblCheck(3)");
    EXPECT_EQ(options().lblCheck(2).caption, u"a");
    EXPECT_EQ(options().lblCheck(3).caption, u"a");
    EXPECT_EQ(file(), lines("0", "0001100"));
}

TEST_F(OptionsTest, DoesNothingForTheHeading) {
    openOptions();
    run.folder.write("Quillor-Config.ini", "untouched");
    player.click("lblOpts(0)");
    player.click("lblCheck(0)");
    EXPECT_EQ(file(), "untouched");
    EXPECT_EQ(options().lblCheck(0).caption, u"");
}

TEST_F(OptionsTest, ForgetsTheSavedTopic) {
    saved.giSavedTopic = 3;
    openOptions();
    player.click("lblCheck(2)");
    player.press(key::kBackspace);
    player.click("lblOption(0)");
    EXPECT_EQ(settings.giSavedTopic, 0);
    EXPECT_EQ(settings.giTopicIndex, 0);
}

TEST_F(OptionsTest, WritesWhatItDoesNotShowUnchanged) {
    saved.gbUseSounds = saved.gbHiddenLetters = saved.gbFirstLetter = true;
    saved.giWay = kHiddenTopic;
    saved.gbColorTransition = true;
    openOptions();
    player.click("lblDs(1)");
    EXPECT_EQ(file(), "1\r\n1\r\n0\r\n1\r\n0\r\n0\r\n0\r\n1\r\n4\r\n1\r\n\r\n");
}

TEST_F(OptionsTest, HasAKeyForEachOption) {
    openOptions();
    player.type(u"wdic");
    EXPECT_EQ(file(), lines("0", "0101110"));
    player.type(u"WDIC");
    EXPECT_EQ(file(), lines("0", "0000000"));
}

TEST_F(OptionsTest, HasAKeyForEachDesignOnBothRows) {
    openOptions();
    for (int design = 0; design < 4; ++design) {
        player.press('1' + (design + 1) % 4);
        player.press(key::kKeypad0 + 1 + design);
        EXPECT_EQ(settings.giDesign, design);
    }
    player.press('3');
    EXPECT_EQ(settings.giDesign, 2);
    EXPECT_EQ(file(), lines("2", "0000000"));
}

TEST_F(OptionsTest, IgnoresOtherKeys) {
    openOptions();
    for (const int code : std::initializer_list<int>{'0', '5', 'A', key::kReturn, key::kKeypad0,
                                                     key::kKeypad0 + 5, key::kF2})
        player.press(code);
    EXPECT_EQ(player.screen().name, "frmOptions");
    EXPECT_EQ(settings.giDesign, 0);
}

TEST_F(OptionsTest, PreviewsTheDesignOnItsTitle) {
    openOptions();
    player.click("lblDs(3)");
    for (int i = 0; i <= 6; ++i) {
        EXPECT_EQ(options().lnLetter(i).color, settings.glTheme);
        EXPECT_EQ(options().lblLetter(i).textColor, settings.glWhite);
        EXPECT_EQ(options().lblLetter(i).backColor, settings.glTheme);
        EXPECT_TRUE(options().lblLetter(i).opaque);
    }
    player.click("lblDs(0)");
    EXPECT_EQ(options().lblLetter(0).textColor, settings.glBlack);
    EXPECT_FALSE(options().lblLetter(0).opaque);
}

TEST_F(OptionsTest, MarksTheChosenDesignAfterThePress) {
    openOptions();
    player.mouseDown("lblDs(1)");
    EXPECT_EQ(options().shpDs(1).backColor, settings.glGreen);
    player.mouseUp("lblDs(1)");
    EXPECT_EQ(options().shpDs(1).backColor, settings.glTheme);
    player.click("lblDs(1)");
    EXPECT_NE(options().shpDs(1).backColor, settings.glTheme);
    EXPECT_EQ(options().shpDs(0).backColor, settings.glTheme);
}

TEST_F(OptionsTest, ShowsPressedTicksButNotThePressedHeading) {
    openOptions();
    player.mouseDown("lblOpts(2)");
    EXPECT_EQ(options().shpCheck(2).backColor, settings.glGreen);
    player.mouseUp("lblOpts(2)");
    EXPECT_EQ(options().shpCheck(2).backColor, settings.glTheme);
    player.mouseDown("lblCheck(0)");
    EXPECT_EQ(options().shpCheck(0).backColor, settings.glTheme);
}

TEST_F(OptionsTest, GoesBackToTheMenu) {
    openOptions();
    player.click("lblBack(1)");
    EXPECT_EQ(player.screen().name, "frmMenu");
    EXPECT_TRUE(settings.gbOptionsOpened);
}

TEST_F(OptionsTest, GoesBackToTheMenuByItsTitleBar) {
    openOptions();
    player.closeWindow();
    EXPECT_EQ(player.screen().name, "frmMenu");
    EXPECT_FALSE(desktop.ended);
}

TEST_F(OptionsTest, OnlyEverSwitchesOptionsOnWhenLoading) {
    openOptions();
    player.click("lblCheck(2)");
    player.press(key::kBackspace);
    run.folder.write("Quillor-Config.ini", "0\r\n0\r\n1\r\n0\r\n0\r\n-1\r\n");
    player.click("lblOption(3)");
    EXPECT_TRUE(settings.gbHardScore && settings.gbUseWikipedia);
    EXPECT_FALSE(settings.gbInfiniteScore);
    EXPECT_EQ(options().lblCheck(2).caption, u"a");
}

TEST_F(OptionsTest, StaysUsableWithoutItsFile) {
    start();
    std::filesystem::remove(run.folder / "Quillor-Config.ini");
    player.click("lblOption(3)");
    player.click("lblCheck(4)");
    EXPECT_EQ(file(), lines("0", "0000010"));
}

TEST_F(OptionsTest, StaysUsableWhenItsFileCannotBeWritten) {
    openOptions();
    std::filesystem::remove(run.folder / "Quillor-Config.ini");
    run.folder.write("Quillor-Config.ini/inside", "a folder in its place");
    player.click("lblCheck(4)");
    EXPECT_TRUE(settings.gbAgainstClock);
    EXPECT_EQ(options().lblCheck(4).caption, u"a");
}

TEST_F(OptionsTest, MarksNoButtonForAnUnknownDesign) {
    start();
    run.folder.write("Quillor-Config.ini", "9\r\n");
    player.click("lblOption(3)");
    for (const Shape& square : options().shpDs)
        EXPECT_EQ(square.backColor, settings.glTheme);
}

}  // namespace
}  // namespace quillor::testing
