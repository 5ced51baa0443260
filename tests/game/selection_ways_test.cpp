// Where the next phrase comes from: the five ways, and the help switches.
#include "tests/game/ways_fixture.h"

namespace quillor::testing {
namespace {

TEST_F(SelectionWaysTest, StartManual) {
    openWithTopics(3);
    EXPECT_EQ(checks(), (Ids{"mDoWay(0)"}));
    EXPECT_FALSE(game().menu.mDoWay(1).enabled);
    EXPECT_FALSE(game().menu.mDoWay(2).enabled);
    EXPECT_TRUE(game().menu.mDoWayAll(0).enabled);
}

TEST_F(SelectionWaysTest, OfferRepeatAndTourAfterTheFirstDeal) {
    openWithTopics(3);
    player.press('R', kControl);
    player.press('T', kControl);
    EXPECT_EQ(settings.giWay, kManual);
    pick(1);
    EXPECT_TRUE(game().menu.mDoWay(1).enabled);
    EXPECT_TRUE(game().menu.mDoWay(2).enabled);
}

TEST_F(SelectionWaysTest, ManualAsksEachTime) {
    openWithTopics(3);
    pick(2);
    EXPECT_EQ(topic(), u"T2");
    win();
    next();
    EXPECT_EQ(player.screen().name, "frmWord2");
}

TEST_F(SelectionWaysTest, RepeatStaysWithTheTopic) {
    openWithTopics(3);
    pick(1);
    player.press('R', kControl);
    EXPECT_EQ(checks(), (Ids{"mDoWay(1)"}));
    for (int i = 0; i < 3; ++i) {
        win();
        next();
        EXPECT_EQ(topic(), u"T1");
    }
    EXPECT_EQ(player.screen().name, "frmGame");
}

TEST_F(SelectionWaysTest, RepeatNeverDealsAPhraseTwiceInARow) {
    openWithTopics(1);
    pick(0, 1);
    for (int i = 0; i < 6; ++i) {
        const Text before = settings.gsPhrase;
        win();
        next();
        EXPECT_NE(settings.gsPhrase, before);
    }
}

TEST_F(SelectionWaysTest, AnyTopicDrawsATopic) {
    openWithTopics(5);
    player.press('A', kControl);
    EXPECT_EQ(checks(), (Ids{"mDoWayAll(0)"}));
    desktop.draws = {0.61, 0.0};
    next();
    EXPECT_EQ(topic(), u"T3");
    win();
    desktop.draws = {0.9999, 0.0};
    next();
    EXPECT_EQ(topic(), u"T4");
}

TEST_F(SelectionWaysTest, AnyTopicOfOneIsThatOne) {
    openWithTopics(1);
    player.press('A', kControl);
    for (int i = 0; i < 5; ++i) {
        next();
        EXPECT_EQ(topic(), u"T0");
        win();
    }
}

TEST_F(SelectionWaysTest, AnyTopicReachesEveryTopic) {
    openWithTopics(3);
    player.press('A', kControl);
    std::set<Text> seen;
    for (int i = 0; i < 60; ++i) {
        next();
        seen.insert(topic());
        win();
    }
    EXPECT_EQ(seen.size(), 3U);
}

TEST_F(SelectionWaysTest, HiddenShowsNoTopic) {
    openWithTopics(3);
    player.chooseMenu("mDoWayAll(1)");
    EXPECT_EQ(checks(), (Ids{"mDoWayAll(1)"}));
    next();
    EXPECT_EQ(topic(), u"(HIDDEN TOPIC)");
    EXPECT_EQ(settings.giWay, kHiddenTopic);
}

TEST_F(SelectionWaysTest, HiddenShowsNoTopicInSpanish) {
    english = false;
    openWithTopics(3);
    player.chooseMenu("mDoWayAll(1)");
    next();
    EXPECT_EQ(topic(), u"(TEMA OCULTO)");
}

TEST_F(SelectionWaysTest, AreSavedWhenChosen) {
    openWithTopics(3);
    player.press('A', kControl);
    EXPECT_EQ(run.folder.read("Quillor-Config.ini"),
              "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n3\r\n0\r\n0\r\n");
    player.press('M', kControl);
    EXPECT_EQ(run.folder.read("Quillor-Config.ini"),
              "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n");
}

TEST_F(SelectionWaysTest, AreTakenOnTheSelectionScreen) {
    openWithTopics(3);
    pick(1, 1);
    EXPECT_EQ(settings.giWay, kRepeat);
    EXPECT_EQ(checks(), (Ids{"mDoWay(1)"}));
    EXPECT_EQ(topic(), u"T1");
}

TEST_F(SelectionWaysTest, AreOutOfReachInClassicMode) {
    addTopics(3);
    openClassic();
    EXPECT_FALSE(game().menu.mAuto.enabled);
    player.press('A', kControl);
    player.press('M', kControl);
    EXPECT_EQ(settings.giWay, kManual);
    EXPECT_EQ(checks(), (Ids{"mDoWay(0)"}));
}

TEST_F(SelectionWaysTest, ComeBackWithTheGameScreen) {
    openWithTopics(3);
    player.press('A', kControl);
    player.press(key::kF2);
    player.click("lblOption(0)");
    EXPECT_EQ(checks(), (Ids{"mDoWayAll(0)"}));
    EXPECT_EQ(settings.giWay, kAnyTopic);
}

class HelpSwitchTest : public GameTest {};

TEST_F(HelpSwitchTest, TurnsTheFirstLetterOnAndOff) {
    openArcade();
    player.press('L', kControl);
    EXPECT_TRUE(settings.gbFirstLetter && game().menu.mHelpy.checked);
    EXPECT_EQ(run.folder.read("Quillor-Config.ini"),
              "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n");
    player.chooseMenu("mHelpy");
    EXPECT_FALSE(settings.gbFirstLetter || game().menu.mHelpy.checked);
}

TEST_F(HelpSwitchTest, TurnsHiddenLettersOnAndOff) {
    openArcade();
    player.press('O', kControl);
    EXPECT_TRUE(settings.gbHiddenLetters && game().menu.mHide.checked);
    EXPECT_EQ(run.folder.read("Quillor-Config.ini"),
              "0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n");
    player.chooseMenu("mHide");
    EXPECT_FALSE(settings.gbHiddenLetters || game().menu.mHide.checked);
}

TEST_F(HelpSwitchTest, OfHiddenLettersCountsFromTheNextBoardOn) {
    play(u"BEE");
    player.press('O', kControl);
    player.type(u"e");
    EXPECT_EQ(game().board.lblLetter(2).caption, u"E");
    player.type(u"b");
    waitForScore();
    deal();
    EXPECT_EQ(game().board.lblLetter(1).caption, u"?");
}

}  // namespace
}  // namespace quillor::testing
