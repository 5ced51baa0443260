// The dots of the status line, the rising points, the pulse of a low score.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class StatusAnimationsTest : public GameTest {
  protected:
    Text status() { return game().lifeCycle.lblStatus.caption; }
    Twips height() { return game().scoring.lblPoints.top; }
    Color scoreInk() { return game().scoring.lblScore.textColor; }
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

TEST_F(StatusAnimationsTest, LeaveAnUnknownStatusAlone) {
    play(u"WORLD");
    game().lifeCycle.lblStatus.caption = u"THINKING";
    desktop.advance(5'000);
    EXPECT_EQ(status(), u"THINKING");
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
    EXPECT_EQ(game().scoring.lblBonus.top, height());
    EXPECT_TRUE(Player::sees(game().scoring.lblBonus));
}

TEST_F(StatusAnimationsTest, HideThePointsAtTheTopAndStartTheCount) {
    saved.gbUseSounds = true;
    play(u"WORLD");
    answer(u"world");
    desktop.advance(20 + 26 * 15);
    EXPECT_EQ(height(), 180);
    EXPECT_FALSE(game().scoring.tmrScore.enabled);
    desktop.advance(26);
    EXPECT_FALSE(Player::sees(game().scoring.lblPoints));
    EXPECT_FALSE(Player::sees(game().scoring.lblBonus));
    EXPECT_FALSE(game().animations.tmrUp.enabled);
    EXPECT_TRUE(game().scoring.tmrScore.enabled);
}

TEST_F(StatusAnimationsTest, PulseALowScoreBetweenRedAndWhite) {
    play(u"A BEE");
    player.type(u"e");
    answer(u"x");
    waitForScore();
    ASSERT_EQ(settings.giScore, 500);
    std::set<Color> seen;
    for (int i = 0; i < 600; ++i) {
        desktop.advance(100);
        const Color ink = scoreInk();
        seen.insert(ink);
        EXPECT_EQ(redOf(ink), 250);
        EXPECT_EQ(greenOf(ink), blueOf(ink));
        EXPECT_GE(greenOf(ink), 30);
        EXPECT_LE(greenOf(ink), 250);
    }
    EXPECT_EQ(seen.count(settings.glRed), 1U);
    EXPECT_EQ(seen.count(settings.glWhite), 1U);
    EXPECT_GE(seen.size(), 8U);
}

TEST_F(StatusAnimationsTest, HoldThePulseAtItsTurns) {
    start();
    settings.giScoreKept = 400;
    player.click("lblOption(0)");
    desktop.advance(100);
    EXPECT_EQ(game().animations.tmrBlood.interval, 300);
    EXPECT_EQ(scoreInk(), settings.glWhite);
    desktop.advance(300);
    EXPECT_EQ(scoreInk(), settings.glWhite - rgb(0, 25, 25));
    EXPECT_EQ(game().animations.tmrBlood.interval, 100);
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
    EXPECT_FALSE(game().animations.tmrBlood.enabled);
}

}  // namespace
}  // namespace quillor::testing
