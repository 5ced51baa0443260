// Opening the game screen: settings, title, mode, score line and tips; also where there
// is no topic to be had.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class SetUpTest : public GameTest {
  protected:
    void addTopics(int count) {
        for (int i = 0; i < count; ++i)
            addTopic(u"T\r\nONE\r\nTWO");
    }
    void writeSettings(const std::string& lines) {
        start();
        run.folder.write("Quillor-Config.ini", lines);
        player.click("lblOption(0)");
    }
};

TEST_F(SetUpTest, AppliesTheSettingsFile) {
    writeSettings("2\r\n1\r\n1\r\n1\r\n1\r\n0\r\n1\r\n1\r\n3\r\n1\r\n0\r\n");
    EXPECT_EQ(settings.giDesign, 2);
    EXPECT_TRUE(settings.gbUseSounds && settings.gbUseWikipedia && settings.gbHiddenLetters);
    EXPECT_TRUE(settings.gbHardScore && settings.gbAgainstClock && settings.gbFirstLetter);
    EXPECT_TRUE(settings.gbColorTransition);
    EXPECT_FALSE(settings.gbInfiniteScore);
    EXPECT_TRUE(game().menu.mWave.checked && game().menu.mHelpy.checked);
    EXPECT_TRUE(game().menu.mHide.checked && game().menu.mColor.checked);
}

TEST_F(SetUpTest, StartsEachRunWithTheManualWay) {
    writeSettings("0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n3\r\n0\r\n0\r\n");
    EXPECT_EQ(settings.giWay, kManual);
    EXPECT_TRUE(game().menu.mDoWay(0).checked);
}

TEST_F(SetUpTest, KeepsTheSavedWayWhenTheSettingsScreenWasOpened) {
    saved.giWay = kAnyTopic;
    start();
    player.click("lblOption(3)");
    player.press(key::kBackspace);
    player.click("lblOption(0)");
    EXPECT_EQ(settings.giWay, kAnyTopic);
    EXPECT_TRUE(game().menu.mDoWayAll(0).checked);
    EXPECT_FALSE(game().menu.mDoWay(0).checked);
}

TEST_F(SetUpTest, ReadsTheSettingsFileOnlyTheFirstTime) {
    openArcade();
    player.press(key::kF2);
    run.folder.write("Quillor-Config.ini",
                     "3\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n3\r\n1\r\n0\r\n");
    player.click("lblOption(0)");
    EXPECT_EQ(settings.giDesign, 0);
    EXPECT_FALSE(settings.gbUseSounds);
}

TEST_F(SetUpTest, HoldsTheSavedTopicWithinTheLibrary) {
    saved.giSavedTopic = 12;
    addTopics(5);
    openArcade();
    EXPECT_EQ(settings.giTopicIndex, 4);
    player.press(key::kReturn);
    EXPECT_EQ(dynamic_cast<frmWord2&>(player.screen()).lstTopics.listIndex(), 4);
}

TEST_F(SetUpTest, HoldsANegativeSavedTopicWithinTheLibrary) {
    saved.giSavedTopic = -3;
    addTopics(5);
    openArcade();
    EXPECT_GE(settings.giTopicIndex, 0);
    deal();
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(SetUpTest, RepeatsANegativeSavedTopicWithoutHarm) {
    saved.giSavedTopic = -3;
    saved.giWay = kRepeat;
    addTopics(2);
    start();
    player.click("lblOption(3)");
    player.press(key::kBackspace);
    player.click("lblOption(0)");
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(SetUpTest, TakesAnUnknownWayAsManual) {
    start();
    player.click("lblOption(3)");
    player.press(key::kBackspace);
    run.folder.write("Quillor-Config.ini",
                     "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n7\r\n0\r\n0\r\n");
    player.click("lblOption(0)");
    EXPECT_TRUE(game().menu.mDoWay(0).checked);
    player.press(key::kReturn);
    EXPECT_EQ(player.screen().name, "frmWord2");
}

TEST_F(SetUpTest, LeavesTheLettersWithAnUnknownDesign) {
    writeSettings("9\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n");
    EXPECT_EQ(settings.giDesign, 9);
    EXPECT_FALSE(game().board.lblLetter(1).opaque);
    deal();
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(SetUpTest, OpensWithoutASettingsFile) {
    start();
    std::filesystem::remove(run.folder / "Quillor-Config.ini");
    player.click("lblOption(0)");
    EXPECT_EQ(player.screen().name, "frmGame");
    deal();
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(SetUpTest, ShowsTheMode) {
    openArcade();
    EXPECT_EQ(game().lblMode.caption, u"ARCADE MODE");
    EXPECT_EQ(game().title, u"Quillor | Arcade mode");
    EXPECT_TRUE(game().menu.mAuto.enabled);
    EXPECT_EQ(game().score.lblScore.caption, u"SCORE/ 1000");
}

TEST_F(SetUpTest, ShowsTheModeInSpanish) {
    english = false;
    saved.gbHardScore = saved.gbAgainstClock = true;
    openClassic();
    EXPECT_EQ(game().lblMode.caption, u"MODO CLÁSICO");
    EXPECT_EQ(game().title, u"Quillor | Modo clásico [Difícil] [Tiempo]");
}

TEST_F(SetUpTest, ShowsNeitherGamesNorTourInAClassicTitle) {
    start();
    settings.giGamesPlayed = 7;
    settings.giWay = kTour;
    settings.gbSettingsLoaded = true;
    player.click("lblOption(1)");
    EXPECT_EQ(game().title, u"Quillor | Classic mode");
    EXPECT_FALSE(game().menu.mAuto.enabled);
    EXPECT_FALSE(Player::sees(game().score.lblScore));
}

TEST_F(SetUpTest, ShowsEveryPieceOfTheTitle) {
    saved.gbHardScore = saved.gbAgainstClock = true;
    addTopics(5);
    openArcade();
    settings.giGamesPlayed = 3;
    settings.giWay = kTour;
    settings.giTopicIndex = 1;
    game().eChangeTitle();
    EXPECT_EQ(game().title, u"Quillor | Arcade mode [3] [Hard] [Time] [Tour 2/5]");
}

TEST_F(SetUpTest, CountsTheGamesInTheTitleOfTheNext) {
    play(u"BEE");
    player.type(u"be");
    waitForScore();
    EXPECT_EQ(game().title, u"Quillor | Arcade mode");
    player.press(key::kReturn);
    EXPECT_EQ(game().title, u"Quillor | Arcade mode [1]");
}

TEST_F(SetUpTest, ShowsATipForEachDraw) {
    openArcade();
    for (std::size_t tip = 0; tip < texts::kTips.size(); ++tip) {
        desktop.draws = {(static_cast<double>(tip) + 0.5) / 10};
        game().ePutSomeLucky();
        EXPECT_EQ(game().lblHey.caption, texts::kTips.at(tip).english);
    }
}

TEST_F(SetUpTest, ChangesTheTipWithEachGame) {
    addTopic(u"T\r\nONE\r\nTWO");
    openArcade();
    desktop.draws = {0.0, 0.75};
    player.press(key::kReturn);
    player.press(key::kReturn);
    EXPECT_EQ(game().lblHey.caption, u"Quillor brings different experiences to try!");
}

TEST_F(SetUpTest, LinesThePicturesUp) {
    openArcade();
    EXPECT_EQ(game().imgBack(1).left, -game().figure.frmeMan.left);
    EXPECT_EQ(game().imgBack(1).top, -game().figure.frmeMan.top);
    EXPECT_EQ(game().imgBack(2).left, -game().board.frmeMagic.left);
    EXPECT_EQ(game().board.frmeMagic.backColor, settings.glWhite);
}

TEST_F(SetUpTest, ComesBackWithTheScoreThatWasKept) {
    openArcade();
    player.press(key::kF2);
    settings.giScoreKept = 0;
    player.click("lblOption(0)");
    EXPECT_EQ(game().score.lblScore.caption, u"ZERO SCORE/ 0");
}

class NoTopics : public GameTest {
  protected:
    NoTopics() {
        english = false;
        run.disk.breakDown(FaultyDisk::Operation::List);
    }
};

TEST_F(NoTopics, KeepTheSavedSettings) {
    saved.giDesign = 3;
    saved.gbUseSounds = saved.gbHardScore = true;
    openArcade();
    EXPECT_EQ(settings.giDesign, 3);
    EXPECT_TRUE(settings.gbHardScore);
    EXPECT_EQ(settings.giTopicMax, -1);
}

class NoTopicsSaved : public NoTopics, public ::testing::WithParamInterface<int> {};

TEST_P(NoTopicsSaved, LeaveNoTopicChosen) {
    saved.giSavedTopic = static_cast<std::int16_t>(GetParam());
    openArcade();
    EXPECT_EQ(settings.giTopicIndex, -1);
    EXPECT_EQ(settings.giSavedTopic, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Topics, NoTopicsSaved, ::testing::Values(-5, 0, 5));

TEST_F(NoTopics, AreSaidWhenPlayIsPressed) {
    openArcade();
    desktop.expectMessage(lang(texts::kNoTopics));
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kIdle);
}

}  // namespace

}  // namespace quillor::testing
