// The dots of the status line, the rising points, the counting score and its pulse.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class StatusAnimationsTest : public GameTest {
  protected:
    Text status() { return game().status.lblStatus.caption; }
    Twips height() { return game().score.lblPoints.top; }
    Text score() { return game().score.lblScore.caption; }
    Color scoreInk() { return game().score.lblScore.textColor; }
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

TEST_F(StatusAnimationsTest, PutDotsAroundTheStatusWhilePlaying) {
    play(u"WORLD");
    for (const TextView caption :
         {u". PLAYING .", u".. PLAYING ..", u"... PLAYING ...", u"PLAYING", u". PLAYING ."}) {
        desktop.advance(500);
        EXPECT_EQ(status(), caption);
    }
}

TEST_F(StatusAnimationsTest, PutDotsInSpanish) {
    english = false;
    play(u"WORLD");
    desktop.advance(1'500);
    EXPECT_EQ(status(), u"... JUGANDO ...");
}

TEST_F(StatusAnimationsTest, LeaveAnEndingAlone) {
    play(u"WORLD");
    player.type(u"world");
    desktop.advance(5'000);
    EXPECT_EQ(status(), u"VICTORY!");
}

TEST_F(StatusAnimationsTest, LeaveAnIdleScreenAlone) {
    openArcade();
    desktop.advance(5'000);
    EXPECT_EQ(status(), u"NEW GAME");
}

TEST_F(StatusAnimationsTest, LeaveTheTextOfAnEndingAlone) {
    play(u"WORLD");
    desktop.advance(600);
    answer(u"x");
    desktop.advance(5'000);
    EXPECT_EQ(status(), u"DEAD!");
}

TEST_F(StatusAnimationsTest, BeginWithoutDotsInANewGame) {
    play(u"BEE");
    desktop.advance(600);
    player.type(u"b");
    EXPECT_EQ(status(), u". PLAYING .");
    player.type(u"e");
    deal();
    EXPECT_EQ(status(), u"PLAYING");
}

TEST_F(StatusAnimationsTest, LetThePointsStandForASecondWithoutSound) {
    play(u"WORLD");
    player.type(u"world");
    EXPECT_EQ(height(), 660);
    desktop.advance(999);
    EXPECT_EQ(height(), 660);
    desktop.advance(1);
    EXPECT_EQ(height(), 630);
}

TEST_F(StatusAnimationsTest, LetThePointsRiseAtOnceWithSound) {
    saved.gbUseSounds = true;
    play(u"WORLD");
    player.type(u"world");
    desktop.advance(20);
    EXPECT_EQ(height(), 630);
}

TEST_F(StatusAnimationsTest, RaisePointsAndBonusTogetherEvery26Milliseconds) {
    saved.gbUseSounds = true;
    play(u"WORLD");
    answer(u"world");
    desktop.advance(20 + 26 * 5);
    EXPECT_EQ(height(), 660 - 30 * 6);
    EXPECT_EQ(game().score.lblBonus.top, height());
    EXPECT_TRUE(Player::sees(game().score.lblBonus));
}

TEST_F(StatusAnimationsTest, HideThePointsAtTheTopAndStartTheCount) {
    saved.gbUseSounds = true;
    play(u"WORLD");
    answer(u"world");
    desktop.advance(20 + 26 * 15);
    EXPECT_EQ(height(), 180);
    EXPECT_FALSE(game().score.tmrScore.enabled);
    desktop.advance(26);
    EXPECT_FALSE(Player::sees(game().score.lblPoints));
    EXPECT_FALSE(Player::sees(game().score.lblBonus));
    EXPECT_FALSE(game().score.tmrUp.enabled);
    EXPECT_TRUE(game().score.tmrScore.enabled);
}

TEST_F(StatusAnimationsTest, CountInTensAndThenInOnes) {
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

TEST_F(StatusAnimationsTest, CountDownInTensAndThenInOnes) {
    play(u"A BEE");
    player.type(u"e");
    answer(u"x");
    waitForRise();
    const std::vector<int> seen = scoresWhileCounting();
    EXPECT_EQ(std::vector<int>(seen.begin() + 44, seen.begin() + 48),
              (std::vector<int>{560, 550, 549, 548}));
    EXPECT_EQ(seen.back(), 500);
}

TEST_F(StatusAnimationsTest, KeepThePlayButtonWaitingWhileTheScoreCounts) {
    play(u"WORLD");
    player.type(u"world");
    waitForRise();
    player.press(key::kReturn);
    EXPECT_EQ(player.screen().name, "frmGame");
    EXPECT_EQ(settings.giGameState, kWon);
}

TEST_F(StatusAnimationsTest, AreSettledWhenThePlayerGoesOnWhilePointsRise) {
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

TEST_F(StatusAnimationsTest, AreSettledWhenThePlayerLeavesWhilePointsRise) {
    play(u"WORLD");
    player.type(u"world");
    player.press(key::kF2);
    EXPECT_EQ(settings.giScoreKept, 1800);
    player.click("lblOption(0)");
    EXPECT_EQ(score(), u"SCORE/ 1800");
}

TEST_F(StatusAnimationsTest, AreSettledWhenThePlayerLeavesWhileTheScoreCounts) {
    play(u"A BEE");
    player.type(u"e");
    answer(u"x");
    waitForRise();
    desktop.advance(50);
    EXPECT_GT(settings.giScore, 500);
    player.press(key::kF2);
    EXPECT_EQ(settings.giScoreKept, 500);
}

TEST_F(StatusAnimationsTest, PulseALowScoreInAllThreeComponents) {
    start();
    settings.giScoreKept = 400;
    player.click("lblOption(0)");
    desktop.advance(100);  // at white the direction turns first
    std::vector<Color> down;
    for (int tick = 0; tick < 9; ++tick) {
        desktop.advance(game().score.tmrBlood.interval);
        down.push_back(scoreInk());
    }
    EXPECT_EQ(down.at(0), rgb(245, 225, 225));
    EXPECT_EQ(down.at(1), rgb(240, 200, 200));
    EXPECT_EQ(down.at(8), rgb(205, 25, 25));
    EXPECT_LE(down.at(8), settings.glRed);
}

TEST_F(StatusAnimationsTest, BringThePulseBackToWhite) {
    start();
    settings.giScoreKept = 400;
    player.click("lblOption(0)");
    // Nine steps either way, with a hold at each end.
    desktop.advance(100 + 300 + 8 * 100 + 100 + 300 + 8 * 100);
    EXPECT_EQ(scoreInk(), settings.glWhite);
    desktop.advance(100);
    EXPECT_EQ(game().score.tmrBlood.interval, 300);
}

TEST_F(StatusAnimationsTest, PulseAlsoAfterPointsWereSettledStraightToALowScore) {
    play(u"A BEE");
    player.type(u"e");
    answer(u"x");
    desktop.advance(100);
    player.press(key::kReturn);
    EXPECT_EQ(settings.giScore, 500);
    EXPECT_TRUE(game().score.tmrBlood.enabled);
}

TEST_F(StatusAnimationsTest, PulseAlsoAfterPointsWereSettledStraightToZero) {
    play(u"WORLD");
    answer(u"x");
    desktop.advance(100);
    expectBox(texts::kNoPoints);
    player.press(key::kReturn);
    EXPECT_EQ(settings.giScore, 0);
    EXPECT_TRUE(game().score.tmrBlood.enabled);
}

TEST_F(StatusAnimationsTest, HoldThePulseAtItsTurns) {
    start();
    settings.giScoreKept = 400;
    player.click("lblOption(0)");
    desktop.advance(100);
    EXPECT_EQ(game().score.tmrBlood.interval, 300);
    EXPECT_EQ(scoreInk(), settings.glWhite);
    desktop.advance(300);
    EXPECT_EQ(scoreInk(), settings.glWhite - rgb(5, 25, 25));
    EXPECT_EQ(game().score.tmrBlood.interval, 100);
}

TEST_F(StatusAnimationsTest, EndThePulseWhenTheScoreIsHighAgain) {
    start();
    settings.giScoreKept = 400;
    player.click("lblOption(0)");
    desktop.advance(1'000);
    EXPECT_NE(scoreInk(), settings.glWhite);
    deal();
    player.type(settings.gsPhrase);
    waitForScore();
    EXPECT_GT(settings.giScore, 500);
    EXPECT_EQ(scoreInk(), settings.glWhite);
    EXPECT_FALSE(game().score.tmrBlood.enabled);
}

}  // namespace
}  // namespace quillor::testing
