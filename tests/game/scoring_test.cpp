// Whole games, with what the score line and the points show afterwards.

#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class ScoringTest : public GameTest {
  protected:
    Text score() { return game().score.lblScore.caption; }
    Text points() { return game().score.lblPoints.caption; }
    static constexpr int kLong = 20'000;  // ms; more than any rise or count takes
    bool counts() { return game().score.tmrScore.enabled; }
    // Lets the points rise to their end, where the counting starts.
    void waitForRise() {
        for (int waited = 0; !counts() && waited < kLong; ++waited)
            desktop.advance(1);
    }
    std::vector<int> scoresWhileCounting() {
        std::vector<int> seen{settings.giScore};
        for (int waited = 0; counts() && waited < kLong; ++waited) {
            desktop.advance(1);
            if (settings.giScore != seen.back())
                seen.push_back(settings.giScore);
        }
        return seen;
    }
};

TEST_F(ScoringTest, PaysForFiveLetters) {
    play(u"WORLD");
    player.type(u"world");
    EXPECT_EQ(points(), u"+800");
    EXPECT_TRUE(Player::sees(game().score.lblPoints));
    EXPECT_EQ(game().score.lblPoints.textColor, settings.glGreen - rgb(0, 50, 0));
    EXPECT_EQ(settings.giScore, 1000);
    waitForScore();
    EXPECT_EQ(score(), u"SCORE/ 1800");
}

TEST_F(ScoringTest, DividesByTheMistakes) {
    play(u"WORLD");
    player.type(u"xyzworld");
    EXPECT_EQ(points(), u"+200");
}

TEST_F(ScoringTest, PaysHalfInHardScore) {
    saved.gbHardScore = true;
    play(u"WORLD");
    player.type(u"xyzworld");
    EXPECT_EQ(points(), u"+100");
}

TEST_F(ScoringTest, PaysTheBonusForATypedAnswer) {
    play(u"ABCDEFGHIJ");
    player.type(u"ab");
    answer(u"abcdefghij");
    EXPECT_EQ(points(), u"+1290");
    EXPECT_EQ(game().score.lblBonus.caption, u"50% BONUS ACHIEVED");
    EXPECT_EQ(game().score.lblBonus.textColor, game().score.lblPoints.textColor);
}

TEST_F(ScoringTest, TakesThePenaltyForTheHint) {
    saved.gbFirstLetter = true;
    play(u"SOL");
    player.type(u"ol");
    EXPECT_EQ(points(), u"+560");
}

TEST_F(ScoringTest, PaysForTheSecondsLeft) {
    saved.gbAgainstClock = true;
    play(u"ABCDEFGHIJ");
    player.type(u"abcdefghij");
    EXPECT_EQ(points(), u"+739");
}

TEST_F(ScoringTest, EndsAtZero) {
    addTopic(u"T\r\nA BEE\r\nWORLD\r\nWORLD");
    openArcade();
    settings.giScore = 300;
    deal();
    player.type(u"e");
    answer(u"x");
    EXPECT_EQ(points(), u"-500");
    EXPECT_EQ(game().score.lblPoints.textColor, settings.glRed - rgb(50, 0, 0));
    waitForScore();
    EXPECT_EQ(settings.giScore, 0);
    EXPECT_EQ(score(), u"ZERO SCORE/ 0");
}

TEST_F(ScoringTest, AtZeroBlocksTheNextArcadeGame) {
    play(u"WORLD");
    answer(u"x");
    waitForScore();
    expectBox(texts::kNoPoints);
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kDead);
    EXPECT_EQ(game().status.lblStatus.caption, u"DEAD!");
    EXPECT_TRUE(isFound(game(), 1));
}

TEST_F(ScoringTest, OfADeathCarriesTheLettersOfAnEarlierGame) {
    addTopic(u"T\r\nFOUR\r\nABCDEFGHIJ");
    openArcade();
    deal();
    player.type(u"four");
    deal();
    answer(u"wrong");
    EXPECT_EQ(points(), u"-600");
}

TEST_F(ScoringTest, OfADeathIsNeverAGain) {
    addTopic(u"T\r\nABCDEFGHIJ\r\nFOUR");
    openArcade();
    deal();
    player.type(u"abcdefghij");
    deal();
    const int before = settings.giScore;
    answer(u"wrong");
    EXPECT_EQ(settings.giScoreStep, 0);
    waitForScore();
    EXPECT_EQ(settings.giScore, before);
    EXPECT_FALSE(game().score.tmrScore.enabled);
}

TEST_F(ScoringTest, CountsInTensAndThenInOnes) {
    play(u"WORLD");
    player.type(u"world");
    waitForRise();
    const std::vector<int> seen = scoresWhileCounting();
    EXPECT_EQ(std::vector<int>(seen.begin(), seen.begin() + 3),
              (std::vector<int>{1000, 1010, 1020}));
    EXPECT_EQ(std::vector<int>(seen.begin() + 74, seen.begin() + 78),
              (std::vector<int>{1740, 1750, 1751, 1752}));
    EXPECT_EQ(seen.size(), 1U + 75 + 50);
    EXPECT_EQ(seen.back(), 1800);
}

TEST_F(ScoringTest, CountsDownInTensAndThenInOnes) {
    play(u"A BEE");
    player.type(u"e");
    answer(u"x");
    waitForRise();
    const std::vector<int> seen = scoresWhileCounting();
    EXPECT_EQ(std::vector<int>(seen.begin() + 44, seen.begin() + 48),
              (std::vector<int>{560, 550, 549, 548}));
    EXPECT_EQ(seen.back(), 500);
}

TEST_F(ScoringTest, KeepsThePlayButtonWaitingWhileItCounts) {
    play(u"WORLD");
    player.type(u"world");
    waitForRise();
    player.press(key::kReturn);
    EXPECT_EQ(player.screen().name, "frmGame");
    EXPECT_EQ(settings.giGameState, kWon);
}

TEST_F(ScoringTest, IsSettledWhenThePlayerGoesOnWhilePointsRise) {
    play(u"WORLD");
    player.type(u"world");
    desktop.advance(100);
    deal();
    EXPECT_EQ(settings.giScore, 1800);
    EXPECT_EQ(score(), u"SCORE/ 1800");
    EXPECT_FALSE(Player::sees(game().score.lblPoints));
    waitForScore();
    EXPECT_EQ(settings.giScore, 1800);
}

TEST_F(ScoringTest, SettledToZeroBlocksTheNextArcadeGame) {
    play(u"WORLD");
    answer(u"x");
    desktop.advance(100);
    expectBox(texts::kNoPoints);
    player.press(key::kReturn);
    EXPECT_EQ(settings.giScore, 0);
    EXPECT_EQ(score(), u"ZERO SCORE/ 0");
    EXPECT_EQ(settings.giGameState, kDead);
}

TEST_F(ScoringTest, IsSettledWhenThePlayerLeavesWhilePointsRise) {
    play(u"WORLD");
    player.type(u"world");
    player.press(key::kF2);
    EXPECT_EQ(settings.giScoreKept, 1800);
    player.click("lblOption(0)");
    EXPECT_EQ(score(), u"SCORE/ 1800");
}

TEST_F(ScoringTest, IsSettledWhenThePlayerLeavesWhileItCounts) {
    play(u"A BEE");
    player.type(u"e");
    answer(u"x");
    waitForRise();
    desktop.advance(50);
    EXPECT_GT(settings.giScore, 500);
    player.press(key::kF2);
    EXPECT_EQ(settings.giScoreKept, 500);
}

TEST_F(ScoringTest, StartsAnewWithAReboot) {
    play(u"WORLD");
    answer(u"x");
    player.press(key::kF3);
    desktop.advance(2000);
    player.click("lblOption(0)");
    EXPECT_EQ(score(), u"SCORE/ 1000");
}

TEST_F(ScoringTest, StaysAtAThousandWhenInfinite) {
    saved.gbInfiniteScore = true;
    play(u"WORLD");
    EXPECT_EQ(score(), u"INFINITE SCORE");
    answer(u"x");
    EXPECT_EQ(points(), u"-1000");
    waitForScore();
    EXPECT_EQ(score(), u"INFINITE SCORE");
    EXPECT_EQ(settings.giScore, 1000);
    deal();
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(ScoringTest, WhenInfiniteIsNotKept) {
    saved.gbInfiniteScore = true;
    play(u"WORLD");
    player.type(u"world");
    player.press(key::kF2);
    EXPECT_EQ(settings.giScoreKept, 1000);
}

TEST_F(ScoringTest, IsNotShownInClassicMode) {
    playClassic(u"WORLD");
    EXPECT_FALSE(Player::sees(game().score.lblScore));
    player.type(u"w");
    answer(u"world");
    EXPECT_FALSE(Player::sees(game().score.lblPoints));
    EXPECT_FALSE(Player::sees(game().score.lblBonus));
    waitForScore();
    EXPECT_EQ(settings.giScore, 1000);
    EXPECT_EQ(settings.giScoreKept, 1000);
}

TEST_F(ScoringTest, OfClassicGamesDoesNotReachArcadeMode) {
    playClassic(u"WORLD");
    answer(u"x");
    waitForScore();
    player.press(key::kF2);
    player.click("lblOption(0)");
    EXPECT_EQ(score(), u"SCORE/ 1000");
}

TEST_F(ScoringTest, OfArcadeModeOutlivesAVisitToClassicMode) {
    play(u"WORLD");
    player.type(u"world");
    waitForScore();
    player.press(key::kF2);
    player.click("lblOption(1)");
    enter(u"BEE");
    answer(u"x");
    waitForScore();
    player.press(key::kF2);
    player.click("lblOption(0)");
    EXPECT_EQ(score(), u"SCORE/ 1800");
    EXPECT_EQ(settings.giScoreKept, 1800);
}

TEST_F(ScoringTest, IsNotCountedInClassicMode) {
    playClassic(u"BEE");
    answer(u"x");
    for (int waited = 0; waited < 3'000; ++waited) {
        desktop.advance(1);
        ASSERT_FALSE(counts()) << waited;
    }
    player.press(key::kReturn);
    EXPECT_EQ(player.screen().name, "frmWord1");
}

TEST_F(ScoringTest, IsNotCountedWhenInfinite) {
    saved.gbInfiniteScore = true;
    play(u"WORLD");
    answer(u"x");
    for (int waited = 0; waited < 3'000; ++waited) {
        desktop.advance(1);
        ASSERT_FALSE(counts()) << waited;
    }
    EXPECT_EQ(settings.giScore, 1000);
}

TEST_F(ScoringTest, NeverPassesTheLargestNumber) {
    play(u"WORLD");
    settings.giScore = 32'500;
    player.type(u"world");
    waitForScore();
    EXPECT_EQ(settings.giScore, 32'767);
    EXPECT_EQ(score(), u"SCORE/ 32767");
}

TEST_F(ScoringTest, SpeaksSpanish) {
    english = false;
    play(u"WORLD");
    EXPECT_EQ(score(), u"PUNTOS/ 1000");
    answer(u"x");
    waitForScore();
    EXPECT_EQ(score(), u"SIN PUNTOS/ 0");
}

TEST_F(ScoringTest, SpeaksSpanishWhenInfinite) {
    english = false;
    saved.gbInfiniteScore = true;
    openArcade();
    EXPECT_EQ(score(), u"PUNTOS INFINITOS");
    EXPECT_EQ(game().score.lblBonus.caption, u"BONO DEL 50% CONSEGUIDO");
}

}  // namespace
}  // namespace quillor::testing
