// The progress line, the hand-over to the menu, and the font panel.
#include "tests/app/app_fixture.h"

namespace quillor::testing {
namespace {

class StartScreen : public AppTest {
  protected:
    void ticks(int count) { desktop.advance(count * 20); }
    frmStart& panel() {
        desktop.fontInstalled = false;
        frmStart& screen = start();
        desktop.advance(kWholeLine);
        return screen;
    }
};

TEST_F(StartScreen, OpensTheFontsPageOnceHoweverLongItsKeyIsHeld) {
    panel();
    player.hold(u'f', 5);
    EXPECT_EQ(desktop.openedAddresses.size(), 1U);
    EXPECT_EQ(desktop.programStarts, 0);
    EXPECT_FALSE(desktop.ended);
}

TEST_F(StartScreen, LengthensItsLineByOneStepATick) {
    frmStart& screen = start();
    EXPECT_EQ(screen.lnGo.x2, 1950);
    ticks(1);
    EXPECT_EQ(screen.lnGo.x2, 2070);
    ticks(32);
    EXPECT_EQ(screen.lnGo.x2, 5910);
    EXPECT_EQ(screen.lnGo.x1, 1920);
}

TEST_F(StartScreen, SlidesItsSubtitleAndSettlesIt) {
    frmStart& screen = start();
    EXPECT_EQ(screen.lblSub.left, 3000);
    ticks(15);
    EXPECT_EQ(screen.lblSub.left, 4500);
    ticks(1);
    EXPECT_EQ(screen.lblSub.left, 4470);
    ticks(10);
    EXPECT_EQ(screen.lblSub.left, 4470);
}

TEST_F(StartScreen, HandsOverOnTheThirtyFourthTick) {
    start();
    ticks(33);
    EXPECT_EQ(program.find(ScreenId::Menu), nullptr);
    ticks(1);
    EXPECT_NE(program.find(ScreenId::Menu), nullptr);
    EXPECT_EQ(program.find(ScreenId::Start), nullptr);
    EXPECT_EQ(desktop.shown, (std::vector<std::string>{"frmStart", "frmMenu"}));
}

TEST_F(StartScreen, HandsOverScoreAndPicture) {
    folder.write("Pic.jpg", kJpeg);
    const ImageRef paper = start().imgBack(0).image;
    desktop.advance(kWholeLine);
    EXPECT_EQ(settings().giScore, 1000);
    EXPECT_EQ(settings().giScoreKept, 1000);
    EXPECT_EQ(as<frmMenu>(ScreenId::Menu).imgBack.image, paper);
}

TEST_F(StartScreen, StopsAtTheFontPanelWhenTheFontIsMissing) {
    frmStart& screen = panel();
    EXPECT_TRUE(screen.frmeFont.visible);
    EXPECT_FALSE(screen.tmrBar.enabled);
    desktop.advance(10'000);
    EXPECT_EQ(program.find(ScreenId::Menu), nullptr);
    EXPECT_EQ(settings().giScore, 0);
}

TEST_F(StartScreen, FocusesTheButtonOfTheFontPanel) {
    frmStart& screen = panel();
    EXPECT_EQ(desktop.focusOf(screen), &screen.lblAction);
}

TEST_F(StartScreen, OpensTheWebPageFirstAndThenStartsAnew) {
    frmStart& screen = panel();
    player.click("lblAction");
    EXPECT_EQ(desktop.openedAddresses,
              (std::vector<Text>{u"http://www.bing.com/search?q=Arial Rounded MT Bold"}));
    EXPECT_EQ(screen.lblAction.caption, u"&REINICIAR JUEGO");
    EXPECT_EQ(desktop.programStarts, 0);
    player.click("lblAction");
    EXPECT_EQ(desktop.programStarts, 1);
    EXPECT_TRUE(desktop.ended);
    EXPECT_EQ(desktop.openedAddresses.size(), 1U);
}

TEST_F(StartScreen, OpensTheFontFileWhenItIsThere) {
    folder.write("ARLRDBD.ttf", "font");
    folder.write("English.txt", "");
    frmStart& screen = panel();
    EXPECT_EQ(screen.lblAction.caption, u"OPEN &FONT");
    player.click("lblAction");
    EXPECT_EQ(desktop.openedFiles, (std::vector{folder / "ARLRDBD.ttf"}));
    EXPECT_TRUE(desktop.openedAddresses.empty());
    EXPECT_EQ(screen.lblAction.caption, u"&REBOOT ALL");
}

TEST_F(StartScreen, LooksForTheFontFileAgainWhenClicked) {
    folder.write("ARLRDBD.ttf", "font");
    panel();
    std::filesystem::remove(folder / "ARLRDBD.ttf");
    player.click("lblAction");
    EXPECT_TRUE(desktop.openedFiles.empty());
    EXPECT_EQ(desktop.openedAddresses.size(), 1U);
}

TEST_F(StartScreen, SaysSpanishOpenFontWithAFontFile) {
    folder.write("ARLRDBD.ttf", "font");
    EXPECT_EQ(panel().lblAction.caption, u"ABRIR FUENTE");
}

TEST_F(StartScreen, TakesTheKeysRAndFForItsButton) {
    panel();
    player.press('R');
    EXPECT_EQ(desktop.openedAddresses.size(), 1U);
    player.press('F');
    EXPECT_EQ(desktop.programStarts, 1);
    EXPECT_TRUE(desktop.ended);
}

TEST_F(StartScreen, IgnoresOtherKeysOnTheFontPanel) {
    panel();
    for (const int code : {int{'A'}, int{'S'}, key::kEscape, key::kF2})
        player.press(code);
    EXPECT_TRUE(desktop.openedAddresses.empty());
    EXPECT_FALSE(desktop.ended);
}

TEST_F(StartScreen, IgnoresKeysWhileThePanelIsHidden) {
    start();
    player.press('R');
    player.press('F');
    EXPECT_TRUE(desktop.openedAddresses.empty());
}

TEST_F(StartScreen, EndsAtTheCloseButtonOfThePanel) {
    panel();
    const std::string settingsBefore = folder.read("Quillor-Config.ini");
    player.click("lblEsc");
    EXPECT_TRUE(desktop.ended);
    EXPECT_EQ(folder.read("Quillor-Config.ini"), settingsBefore);
    EXPECT_EQ(desktop.programStarts, 0);
}

TEST_F(StartScreen, EndsWhenItsWindowIsClosed) {
    start();
    player.closeWindow();
    EXPECT_TRUE(desktop.ended);
    desktop.advance(kWholeLine);
    EXPECT_EQ(program.find(ScreenId::Menu), nullptr);
}

TEST_F(StartScreen, ShowsThatItsButtonsAreHeld) {
    frmStart& screen = panel();
    player.mouseDown("lblAction");
    EXPECT_TRUE(screen.shpAction.filled);
    player.mouseUp("lblAction");
    EXPECT_FALSE(screen.shpAction.filled);
    player.mouseDown("lblEsc");
    EXPECT_TRUE(screen.lblEsc.opaque);
    player.mouseUp("lblEsc");
    EXPECT_FALSE(screen.lblEsc.opaque);
}

}  // namespace
}  // namespace quillor::testing
