// Designs of the letters, the keys under the mouse, the accent's flashes and
// its slow drift.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class ColorsTest : public GameTest {
  protected:
    Color face(int key) { return game().keyboard.shpKey(key).backColor; }
    Color ink(int key) { return game().keyboard.lblKey(key).textColor; }
    // The colour of everything that carries the accent.
    std::set<Color> accents() {
        std::set<Color> colors{
            game().playButton.shpPlay.backColor,  game().sounds.shpWave.backColor,
            game().webSearch.shpFinder.backColor, game().status.lblStatus.backColor,
            game().score.lblScore.backColor,      game().lblMode.backColor,
            game().lblBluebar.backColor};
        for (const Line& line : game().strikes.lnStrike)
            colors.insert(line.color);
        return colors;
    }
};

struct DesignLook {
    std::int16_t design;
    Color underline;
    Color text;
    bool opaque;
};

class DesignTest : public ColorsTest, public ::testing::WithParamInterface<DesignLook> {};

TEST_P(DesignTest, InksTheCells) {
    saved.giDesign = GetParam().design;
    openArcade();
    for (const int i : {1, 42}) {
        const Label& cell = game().board.lblLetter(i);
        EXPECT_EQ(game().board.lnLetter(i).color, GetParam().underline);
        EXPECT_EQ(cell.textColor, GetParam().text);
        EXPECT_EQ(cell.opaque, GetParam().opaque);
        EXPECT_TRUE(!cell.opaque || cell.backColor == GetParam().underline);
    }
    EXPECT_EQ(settings.glDesignColor, GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    All, DesignTest,
    ::testing::Values(DesignLook{0, rgb(0, 0, 0), rgb(0, 0, 0), false},
                      DesignLook{1, rgb(20, 140, 220), rgb(20, 140, 220), false},
                      DesignLook{2, rgb(0, 0, 0), rgb(250, 250, 250), true},
                      DesignLook{3, rgb(20, 140, 220), rgb(250, 250, 250), true}),
    [](const auto& look) { return "Design" + std::to_string(look.param.design); });

TEST_F(ColorsTest, OfTheDesignComeBackAfterADeath) {
    saved.giDesign = 3;
    play(u"A BEE");
    player.type(u"e");
    answer(u"x");
    EXPECT_EQ(game().board.lblLetter(1).textColor, settings.glRed);
    waitForScore();
    deal();
    EXPECT_EQ(game().board.lblLetter(1).textColor, settings.glWhite);
}

TEST_F(ColorsTest, SetVowelsDigitOneAndCommandsApart) {
    play(u"BEE");
    for (const int key : {1, 5, 9, 16, 22, 28, 38, 39, 40})
        EXPECT_EQ(face(key), rgb(230, 230, 230)) << key;
    for (const int key : {2, 15, 27, 29, 37})
        EXPECT_EQ(face(key), settings.glWhite) << key;
}

TEST_F(ColorsTest, LightTheKeyUnderTheMouse) {
    play(u"BEE");
    player.hover("lblKey(2)");
    EXPECT_EQ(face(2), settings.glTheme);
    EXPECT_EQ(ink(2), settings.glWhite);
    player.hover("lblKey(1)");
    EXPECT_EQ(face(1), settings.glRed);
    EXPECT_EQ(face(2), settings.glWhite);
    EXPECT_EQ(ink(2), rgb(0, 0, 0));
    player.hover("lblKey(40)");
    EXPECT_EQ(face(40), settings.glTheme);
    EXPECT_EQ(face(1), rgb(230, 230, 230));
}

TEST_F(ColorsTest, ShowThePressedKey) {
    play(u"BEE");
    player.hover("lblKey(2)");
    player.mouseDown("lblKey(2)");
    EXPECT_EQ(face(2), settings.glGreen);
    player.mouseUp("lblKey(2)");
    EXPECT_EQ(face(2), settings.glTheme);
}

TEST_F(ColorsTest, PutTheKeyOutWhereverTheMouseGoes) {
    saved.gbAgainstClock = true;
    play(u"BEE");
    player.type(u"bx");
    for (const char* id : {"imgBack(0)", "imgBack(1)", "imgBack(2)", "frmeBoard", "lblBluebar",
                           "lblCont", "lblLetter(1)", "lblScore", "lblStatus", "lblStrike(0)",
                           "lblTopic", "lblTime", "lblWave(0)"}) {
        player.hover("lblKey(4)");
        EXPECT_EQ(face(4), settings.glTheme) << id;
        player.hover(id);
        EXPECT_EQ(face(4), settings.glWhite) << id;
        EXPECT_EQ(ink(4), rgb(0, 0, 0)) << id;
    }
}

TEST_F(ColorsTest, PutTheKeyOutOverTheSearchOffer) {
    play(u"BEE");
    player.type(u"be");
    player.hover("lblKey(4)");
    player.hover("lblFinder(0)");
    EXPECT_EQ(face(4), settings.glWhite);
}

TEST_F(ColorsTest, LightNoKeyInTheNextGame) {
    play(u"BEE");
    player.hover("lblKey(4)");
    player.type(u"be");
    waitForScore();
    deal();
    EXPECT_EQ(face(4), settings.glWhite);
}

TEST_F(ColorsTest, OfTheAccentAreEverywhereTheSame) {
    play(u"WORLD");
    EXPECT_EQ(accents(), (std::set<Color>{settings.glTheme}));
    player.type(u"x");
    EXPECT_EQ(accents(), (std::set<Color>{settings.glRed}));
    EXPECT_EQ(settings.glThemeNow, settings.glTheme);
    desktop.advance(400);
    EXPECT_EQ(accents(), (std::set<Color>{settings.glTheme}));
}

class DriftTest : public ColorsTest {
  protected:
    Timer& tmrSmooth() { return game().accent.tmrSmooth; }
    void driftOnce() {
        desktop.deliver([this] { game().tick(tmrSmooth()); });
    }
};

TEST_F(DriftTest, IsSwitchedOnAndOffInTheMenu) {
    openArcade();
    player.chooseMenu("mColor");
    EXPECT_TRUE(settings.gbColorTransition && game().menu.mColor.checked);
    EXPECT_EQ(run.folder.read("Quillor-Config.ini"),
              "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n");
    player.chooseMenu("mColor");
    EXPECT_FALSE(settings.gbColorTransition || game().menu.mColor.checked);
}

TEST_F(DriftTest, MovesOneChannelByThreeAStep) {
    saved.gbColorTransition = true;
    openArcade();
    desktop.draws = {0.9};
    driftOnce();
    EXPECT_EQ(redOf(settings.glThemeNow), 20);
    EXPECT_EQ(greenOf(settings.glThemeNow), 140);
    EXPECT_EQ(std::abs(blueOf(settings.glThemeNow) - 220), 3);
    EXPECT_EQ(accents(), (std::set<Color>{settings.glThemeNow}));
}

TEST_F(DriftTest, ShowsItsNumbers) {
    saved.gbColorTransition = true;
    openArcade();
    desktop.draws = {0.0};
    driftOnce();
    EXPECT_EQ(game().accent.lblColor.caption, u" 23 140 220");
    EXPECT_TRUE(Player::sees(game().accent.lblColor));
}

TEST_F(DriftTest, TakesAStepEveryTenthOfASecond) {
    saved.gbColorTransition = true;
    openArcade();
    const int seeded = desktop.seedings;
    desktop.advance(1'000);
    EXPECT_EQ(desktop.seedings, seeded + 10);
}

TEST_F(DriftTest, SwitchedOffPutsTheThemeBackAtOnce) {
    saved.gbColorTransition = true;
    openArcade();
    desktop.advance(5'000);
    EXPECT_NE(settings.glThemeNow, settings.glTheme);
    player.chooseMenu("mColor");
    EXPECT_EQ(settings.glThemeNow, settings.glTheme);
    EXPECT_EQ(accents(), (std::set<Color>{settings.glTheme}));
    desktop.advance(5'000);
    EXPECT_EQ(settings.glThemeNow, settings.glTheme);
}

struct StartColor {
    const char* name;
    Color color;
};
class LongDrift : public DriftTest, public ::testing::WithParamInterface<StartColor> {
  protected:
    static bool inRange(Color color) {
        const auto held = [](int channel) { return channel >= 61 && channel <= 240; };
        return held(redOf(color)) && held(greenOf(color)) && held(blueOf(color));
    }
};

TEST_P(LongDrift, StaysInRangeAndDarkEnoughOnceItIsThere) {
    saved.gbColorTransition = true;
    run.folder.write("Color.txt", std::to_string(GetParam().color));
    openArcade();
    constexpr int kTicks = 20'000;
    int arrived = kTicks;
    for (int tick = 0; tick < kTicks; ++tick) {
        driftOnce();
        const bool good =
            inRange(settings.glThemeNow) && whiteTextContrast(settings.glThemeNow) >= 3;
        arrived = good ? std::min(arrived, tick) : arrived;
        ASSERT_TRUE(good || arrived == kTicks) << "tick " << tick << ", " << settings.glThemeNow;
    }
    EXPECT_LT(arrived, 1'000);
}

INSTANTIATE_TEST_SUITE_P(
    From, LongDrift,
    ::testing::Values(StartColor{"Theme", rgb(20, 140, 220)}, StartColor{"NearBlack", rgb(1, 0, 0)},
                      StartColor{"White", rgb(255, 255, 255)}, StartColor{"Cyan", rgb(0, 255, 255)},
                      StartColor{"Red", rgb(250, 30, 30)}, StartColor{"Green", rgb(60, 240, 60)},
                      StartColor{"Yellow", rgb(255, 255, 0)}, StartColor{"Floor", rgb(61, 61, 61)}),
    [](const auto& start) { return start.param.name; });

TEST(WhiteTextContrast, GrowsWithDarkness) {
    EXPECT_NEAR(whiteTextContrast(rgb(0, 0, 0)), 20.1, 0.1);
    EXPECT_NEAR(whiteTextContrast(rgb(250, 250, 250)), 1, 1e-9);
    EXPECT_GE(whiteTextContrast(rgb(20, 140, 220)), 3);
}

}  // namespace
}  // namespace quillor::testing
