// Where the next phrase comes from: the five ways, and the tour from topic to
// topic.
#include "game/rules/ways.h"
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class SelectionWaysTest : public GameTest {
  protected:
    // Topics "T0", "T1", ... whose phrases are letters that occur nowhere else.
    void addTopics(int count) {
        for (int i = 0; i < count; ++i) {
            const auto name = static_cast<char16_t>(u'0' + i);
            const auto phrase = static_cast<char16_t>(u'A' + i);
            addTopic(Text(u"T") + name + u"\r\nX" + phrase + u"\r\nY" + phrase);
        }
    }
    void openWithTopics(int count) {
        addTopics(count);
        openArcade();
    }
    // Picks a topic and a way on the selection screen.
    void pick(int topic, int stepsForward = 0) {
        player.press(key::kReturn);
        player.selectItem("lstTopics", topic);
        for (int i = 0; i < stepsForward; ++i)
            player.press(key::kRight);
        player.press(key::kReturn);
    }
    void win() {
        answer(settings.gsPhrase);
        waitForScore();
    }
    // The last game of a tour: its end is told before the score counts.
    void winTheTour() {
        desktop.answerInput(lang(texts::kEnterAnswer), settings.gsPhrase);
        expectBox(texts::kTourCompleted);
        player.type(u"!");
        waitForScore();
    }
    void next() { player.press(key::kReturn); }
    Text topic() { return game().board.lblTopic.caption; }
    // The entries of the menu that are checked.
    std::vector<std::string> checks() {
        std::vector<std::string> ids;
        for (const MenuItem* item : game().menu.mAuto.children)
            if (item->checked)
                ids.push_back(item->id);
        return ids;
    }
    using Ids = std::vector<std::string>;
};

constexpr int kTourSteps = 2;  // from Manual to Tour on the selection screen

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

class TourTest : public SelectionWaysTest {
  protected:
    // Plays the next topics of the tour to their ends and tells which they were.
    Text playOn(int games) {
        Text topics;
        for (int i = 0; i < games; ++i) {
            topics += topic().back();
            win();
            next();
        }
        return topics;
    }
};

TEST_F(TourTest, ShowsThePlaceOfATopic) {
    openWithTopics(5);
    pick(3, kTourSteps);
    EXPECT_EQ(ePutWhere(settings), u"Tour 1/5");
    playOn(2);
    EXPECT_EQ(settings.giTopicIndex, 0);
    EXPECT_EQ(ePutWhere(settings), u"Tour 3/5");
}

TEST_F(TourTest, ShowsThePlaceInSpanish) {
    english = false;
    openWithTopics(5);
    pick(3, kTourSteps);
    EXPECT_EQ(ePutWhere(settings), u"Turista 1 de 5");
}

TEST_F(TourTest, ShowsThePlaceInTheTitle) {
    saved.gbHardScore = true;
    openWithTopics(5);
    pick(0, kTourSteps);
    EXPECT_EQ(game().title, u"Quillor | Arcade mode [Hard] [Tour 1/5]");
    playOn(3);
    EXPECT_EQ(game().title, u"Quillor | Arcade mode [3] [Hard] [Tour 4/5]");
}

TEST_F(TourTest, EndsAfterEveryTopicWasPlayedOnce) {
    openWithTopics(4);
    pick(2, kTourSteps);
    EXPECT_EQ(playOn(3), u"230");
    winTheTour();
    EXPECT_EQ(texts::kTourCompleted.english, u"You've completed the tour!");
    EXPECT_EQ(settings.giTopicIndex, 2);
    EXPECT_EQ(settings.giGamesPlayed, 4);
}

TEST_F(TourTest, GoesRoundAgainAfterItsEnd) {
    openWithTopics(2);
    pick(1, kTourSteps);
    EXPECT_EQ(playOn(1), u"1");
    EXPECT_EQ(topic(), u"T0");
    winTheTour();
    next();
    EXPECT_EQ(topic(), u"T1");
    EXPECT_EQ(ePutWhere(settings), u"Tour 1/2");
}

TEST_F(TourTest, OfOneTopicEndsWithEachGame) {
    openWithTopics(1);
    pick(0, kTourSteps);
    winTheTour();
    next();
    EXPECT_EQ(topic(), u"T0");
}

TEST_F(TourTest, ChosenAfterAVictoryCountsTheTopicJustWon) {
    openWithTopics(3);
    pick(0);
    win();
    player.press('T', kControl);
    EXPECT_EQ(settings.giTopicIndex, 1);
    EXPECT_EQ(settings.giTourStart, 0);
    next();
    EXPECT_EQ(ePutWhere(settings), u"Tour 2/3");
    EXPECT_EQ(playOn(1), u"1");
    EXPECT_EQ(topic(), u"T2");
    winTheTour();
}

TEST_F(TourTest, ChosenAfterADeathStartsWithThatTopic) {
    openWithTopics(3);
    pick(1);
    player.type(u"x");
    answer(u"no");
    waitForScore();
    player.press('T', kControl);
    next();
    EXPECT_EQ(topic(), u"T1");
    EXPECT_EQ(ePutWhere(settings), u"Tour 1/3");
}

TEST_F(TourTest, IsStartedAnewByChoosingAnotherTopic) {
    openWithTopics(4);
    pick(0, kTourSteps);
    playOn(1);
    win();
    player.press('M', kControl);
    pick(3, kTourSteps);
    EXPECT_EQ(ePutWhere(settings), u"Tour 1/4");
    EXPECT_EQ(playOn(3), u"301");
    winTheTour();
}

TEST_F(TourTest, IsNotMovedOnByClassicGames) {
    openWithTopics(3);
    pick(0, kTourSteps);
    win();
    player.press(key::kF2);
    player.click("lblOption(1)");
    enter(u"BEE");
    answer(u"bee");
    EXPECT_EQ(settings.giTopicIndex, 1);
    player.press(key::kF2);
    player.click("lblOption(0)");
    next();
    EXPECT_EQ(topic(), u"T1");
    EXPECT_EQ(ePutWhere(settings), u"Tour 2/3");
}

TEST_F(TourTest, ChosenAgainOnItsWayStartsWithTheCurrentTopic) {
    openWithTopics(3);
    pick(0, kTourSteps);
    playOn(1);
    player.press('T', kControl);
    EXPECT_EQ(ePutWhere(settings), u"Tour 1/3");
    EXPECT_EQ(playOn(2), u"12");
    EXPECT_EQ(topic(), u"T0");
    winTheTour();
}

TEST_F(TourTest, FollowedByRepeatComesBackToTheTopicPlayedLast) {
    openWithTopics(3);
    pick(1, kTourSteps);
    win();
    EXPECT_EQ(settings.giTopicIndex, 2);
    player.press('R', kControl);
    EXPECT_FALSE(settings.gbTourStarted);
    next();
    EXPECT_EQ(topic(), u"T1");
}

TEST_F(TourTest, IsLeftByAnotherWay) {
    openWithTopics(3);
    pick(1, kTourSteps);
    player.press('R', kControl);
    win();
    next();
    EXPECT_EQ(topic(), u"T1");
    EXPECT_FALSE(settings.gbTourStarted);
    EXPECT_EQ(game().title, u"Quillor | Arcade mode [1]");
}

TEST_F(TourTest, DoesNotMoveOnWhenAGameIsLeft) {
    openWithTopics(3);
    pick(1, kTourSteps);
    desktop.answerQuestion(texts::kLeaveGame.english, true);
    next();
    EXPECT_EQ(topic(), u"T1");
    EXPECT_EQ(ePutWhere(settings), u"Tour 1/3");
}

TEST_F(TourTest, StopsWithItsBoxOpenWhileTimeGoesOn) {
    saved.gbAgainstClock = true;
    saved.gbUseSounds = true;
    openWithTopics(1);
    pick(0, kTourSteps);
    const int left = game().round.secondsLeft;
    desktop.expectMessage(texts::kTourCompleted.english, [this] { desktop.advance(900'000); });
    player.type(u"xaya");
    EXPECT_EQ(settings.giGameState, kWon);
    EXPECT_EQ(settings.giGamesPlayed, 1);
    EXPECT_EQ(game().round.secondsLeft, left);
    desktop.advance(100);
    EXPECT_EQ(desktop.playedSounds.back(), 105);
}

TEST_F(TourTest, SoundsTheDeathThatCompletesItUnderItsBox) {
    saved.gbUseSounds = true;
    openWithTopics(1);
    pick(0, kTourSteps);
    player.type(u"bcdef");
    desktop.advance(100);
    desktop.playedSounds.clear();
    desktop.expectMessage(texts::kTourCompleted.english, [this] { desktop.advance(100); });
    player.type(u"g");
    desktop.advance(100);
    EXPECT_EQ(desktop.playedSounds, std::vector<int>{103});
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
