// What a game is worth, as a formula, and in whole games with what the score line and the
// points show afterwards.
#include "game/rules/scoring.h"

#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class ScoringTest : public GameTest {
  protected:
    Text score() { return game().score.lblScore.caption; }
    Text points() { return game().score.lblPoints.caption; }
    bool counts() { return game().score.tmrScore.enabled; }
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

struct Worth {
    const char* what;
    GameResult game;
    int points;
};
std::ostream& operator<<(std::ostream& out, const Worth& worth) {
    return out << worth.what;
}

class DeathPoints : public ::testing::TestWithParam<Worth> {};
class VictoryPoints : public ::testing::TestWithParam<Worth> {};

TEST_P(DeathPoints, AreTheShareOfLettersNotFound) {
    EXPECT_EQ(deathPoints(GetParam().game), GetParam().points);
}
TEST_P(VictoryPoints, FollowTheRule) {
    EXPECT_EQ(victoryPoints(GetParam().game), GetParam().points);
}

GameResult lost(int found, int letters, bool hard = false) {
    GameResult game;
    game.found = found;
    game.letters = game.length = letters;
    game.hard = hard;
    return game;
}

GameResult won(int found, int strikes = 0, bool hard = false) {
    GameResult game = lost(found, found, hard);
    game.strikes = strikes;
    return game;
}

GameResult hinted(int found, int length, int blanks) {
    GameResult game = won(found);
    game.length = length;
    game.blanks = blanks;
    game.hintUsed = true;
    return game;
}

GameResult timed(int found, int seconds, bool written = false) {
    GameResult game = won(found);
    game.secondsLeft = seconds;
    game.answerWritten = written;
    return game;
}

INSTANTIATE_TEST_SUITE_P(
    Games, DeathPoints,
    ::testing::Values(Worth{"nothing found of 8", lost(0, 8), -1000},
                      Worth{"nothing found, hard", lost(0, 8, true), -3000},
                      Worth{"6 of 8", lost(6, 8), -250},
                      Worth{"6 of 8, hard", lost(6, 8, true), -750},
                      Worth{"1 of 3 goes to the lower number", lost(1, 3), -667},
                      Worth{"2 of 3", lost(2, 3), -334}, Worth{"41 of 42", lost(41, 42), -24},
                      Worth{"4 of 10", lost(4, 10), -600}));

INSTANTIATE_TEST_SUITE_P(
    Games, VictoryPoints,
    ::testing::Values(
        Worth{"5 letters", won(5), 800}, Worth{"5 letters, 3 mistakes", won(5, 3), 200},
        Worth{"5 letters, 3 mistakes, hard", won(5, 3, true), 100},
        Worth{"a long phrase is worth less", won(42), 60}, Worth{"1 letter", won(1), 880},
        Worth{"5 mistakes", won(5, 5), 133}, Worth{"SOL with the hint", hinted(3, 3, 0), 560},
        Worth{"a hint with many blanks raises it", hinted(4, 42, 38), 838},
        Worth{"penalty with half to the even neighbour, down", hinted(5, 320, 0), 798},
        Worth{"penalty with half to the even neighbour, up", hinted(3, 560, 0), 838},
        Worth{"half a point a second", timed(5, 78), 839},
        Worth{"an odd second is not paid", timed(5, 79), 839},
        Worth{"a typed answer pays half as much again", timed(2, 0, true), 1290},
        Worth{"also for the time", timed(2, 3, true), 1291}));

}  // namespace
}  // namespace quillor::testing
