// The tour from topic to topic.
#include "tests/game/ways_fixture.h"

namespace quillor::testing {
namespace {

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

}  // namespace
}  // namespace quillor::testing
