// The whole answer typed at once, and what the end of a game leaves.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class AnswerTest : public GameTest {
  protected:
    // What happens to this answer for that phrase.
    int outcome(TextView phrase, TextView typed) {
        play(phrase);
        answer(typed);
        return settings.giGameState;
    }
};

TEST_F(AnswerTest, WarnsOfQuickDeath) {
    play(u"BEE");
    desktop.answerInput(u"Enter the answer.\r\nBe careful, wrong is quick death.", u"");
    player.type(u"!");
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(AnswerTest, WinsInSmallLetters) {
    EXPECT_EQ(outcome(u"CAÑÓN", u"cañon"), kWon);
}
TEST_F(AnswerTest, WinsAsItIsWritten) {
    EXPECT_EQ(outcome(u"CAÑÓN", u"CAÑÓN"), kWon);
}
TEST_F(AnswerTest, LosesWithoutTheEnye) {
    EXPECT_EQ(outcome(u"CAÑÓN", u"canon"), kDead);
}
TEST_F(AnswerTest, LosesWithADieresis) {
    EXPECT_EQ(outcome(u"PINGÜINO", u"pingüino"), kDead);
}
TEST_F(AnswerTest, WinsWithoutTheDieresis) {
    EXPECT_EQ(outcome(u"PINGÜINO", u"pinguino"), kWon);
}
TEST_F(AnswerTest, LosesWithAGraveAccent) {
    EXPECT_EQ(outcome(u"PERÙ", u"perù"), kDead);
}
TEST_F(AnswerTest, LosesWithABlankBehindIt) {
    EXPECT_EQ(outcome(u"BEE", u"bee "), kDead);
}
TEST_F(AnswerTest, LosesWithTwoBlanksBetweenWords) {
    EXPECT_EQ(outcome(u"A BEE", u"a  bee"), kDead);
}
TEST_F(AnswerTest, IsTheWholePhraseEvenWhenTheBoardShowsItInRows) {
    EXPECT_EQ(outcome(u"WASHING MACHINE", u"washing machine"), kWon);
}
TEST_F(AnswerTest, OfBlanksIsNoAttempt) {
    EXPECT_EQ(outcome(u"BEE", u"   "), kPlaying);
    EXPECT_EQ(settings.giStrikes, 0);
}

TEST_F(AnswerTest, EarnsTheBonusBelowHalfOfTheLetters) {
    play(u"ABCDEFGHIJ");
    player.type(u"ABC");
    answer(u"abcdefghij");
    EXPECT_TRUE(settings.gbAnswerWritten);
    EXPECT_TRUE(Player::sees(game().score.lblBonus));
}

TEST_F(AnswerTest, EarnsNoBonusFromHalfOfTheLettersOn) {
    play(u"ABCDEFGHIJ");
    player.type(u"ABCDE");
    answer(u"abcdefghij");
    EXPECT_FALSE(settings.gbAnswerWritten);
    EXPECT_FALSE(Player::sees(game().score.lblBonus));
}

TEST_F(AnswerTest, ThatIsWrongKillsWithoutAStrike) {
    play(u"BEE");
    player.type(u"x");
    answer(u"bees");
    EXPECT_EQ(settings.giGameState, kDead);
    EXPECT_EQ(settings.giStrikes, 1);
    EXPECT_EQ(game().strikes.lblStrike(1).caption, u"");
}

TEST_F(AnswerTest, IsReachedInFourWays) {
    play(u"BEE");
    for (int i = 0; i < 4; ++i)
        desktop.answerInput(texts::kEnterAnswer.english, u"");
    player.type(u"!");
    player.press('E', kControl);
    player.click("lblKey(40)");
    player.chooseMenu("mWrite");
    EXPECT_EQ(desktop.answersLeft(), 0U);
}

TEST_F(AnswerTest, IsNotAskedForOutsidePlay) {
    openArcade();
    player.type(u"!");
    player.press('E', kControl);
    EXPECT_FALSE(game().menu.mWrite.enabled);
}

TEST_F(AnswerTest, IsNotAskedForAfterTheEnd) {
    play(u"BEE");
    player.type(u"be");
    player.type(u"!");
    player.press('E', kControl);
    EXPECT_FALSE(game().menu.mWrite.enabled);
}

TEST_F(AnswerTest, IsIgnoredWhenTheClockHasRunOutMeanwhile) {
    saved.gbAgainstClock = true;
    play(u"BEE");
    desktop.answerInput(texts::kEnterAnswer.english, u"bee", [this] { desktop.advance(600'000); });
    player.type(u"!");
    EXPECT_EQ(settings.giGameState, kDead);
    EXPECT_EQ(settings.giGamesPlayed, 1);
    EXPECT_EQ(settings.giScore + settings.giScoreShown, 0);
}

class EndOfGameTest : public GameTest {};

TEST_F(EndOfGameTest, OffersTheSearchAndPutsCounterAndClockAway) {
    saved.gbAgainstClock = true;
    play(u"BEE");
    player.type(u"be");
    EXPECT_TRUE(Player::sees(game().webSearch.lblFinder(0)));
    EXPECT_TRUE(Player::sees(game().webSearch.lblFinder(1)));
    EXPECT_TRUE(Player::sees(game().webSearch.shpFinder));
    EXPECT_FALSE(Player::sees(game().board.lblCont));
    EXPECT_FALSE(Player::sees(game().clock.lblTime));
    EXPECT_FALSE(game().menu.mWrite.enabled);
    EXPECT_FALSE(game().clock.tmrTime.enabled);
}

TEST_F(EndOfGameTest, PaintsTheScreenGreenAfterAVictory) {
    play(u"BEE");
    player.type(u"be");
    EXPECT_EQ(game().accent.color(), settings.glGreen);
    desktop.advance(10'000);
    EXPECT_EQ(game().accent.color(), settings.glGreen);
}

TEST_F(EndOfGameTest, PaintsTheScreenRedAfterADeath) {
    play(u"BEE");
    loseGame();
    EXPECT_EQ(game().accent.color(), settings.glRed);
    desktop.advance(10'000);
    EXPECT_EQ(game().accent.color(), settings.glRed);
}

TEST_F(EndOfGameTest, CountsArcadeGames) {
    play(u"BEE");
    player.type(u"be");
    EXPECT_EQ(settings.giGamesPlayed, 1);
}

TEST_F(EndOfGameTest, DoesNotCountClassicGames) {
    playClassic(u"BEE");
    player.type(u"be");
    EXPECT_EQ(settings.giGamesPlayed, 0);
    EXPECT_EQ(settings.giGameState, kWon);
}

TEST_F(EndOfGameTest, SpeaksSpanish) {
    english = false;
    play(u"BEE");
    player.type(u"be");
    EXPECT_EQ(game().status.lblStatus.caption, u"¡VICTORIA!");
}

}  // namespace
}  // namespace quillor::testing
