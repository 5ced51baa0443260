// The time limit: how much there is, and how it follows the wall clock.
#include "game/rules/clock.h"

#include <gtest/gtest.h>

#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

struct TimeLimit {
    int letters;
    const char16_t* time;
    const char16_t* withHiddenLetters;
};
std::ostream& operator<<(std::ostream& out, const TimeLimit& limit) {
    return out << limit.letters << " letters";
}

class TimeLimits : public GameTest, public ::testing::WithParamInterface<TimeLimit> {
  protected:
    TimeLimits() { saved.gbAgainstClock = true; }

    // A phrase of so many characters, blanks included, that fits the board.
    static Text phraseOf(int length) {
        Text phrase;
        for (int i = 0; i < length; ++i)
            phrase += static_cast<char16_t>(u'A' + i % 26);
        return phrase;
    }
};

TEST_P(TimeLimits, FollowTheLength) {
    play(phraseOf(GetParam().letters));
    EXPECT_EQ(game().clock.lblTime.caption, GetParam().time);
    EXPECT_TRUE(Player::sees(game().clock.lblTime));
}

TEST_P(TimeLimits, AreThreefoldWithHiddenLetters) {
    saved.gbHiddenLetters = true;
    play(phraseOf(GetParam().letters));
    EXPECT_EQ(game().clock.lblTime.caption, GetParam().withHiddenLetters);
}

INSTANTIATE_TEST_SUITE_P(
    Phrases, TimeLimits,
    ::testing::Values(TimeLimit{1, u"8:26", u"25:18"}, TimeLimit{5, u"1:54", u"5:42"},
                      TimeLimit{10, u"1:18", u"3:54"}, TimeLimit{20, u"1:21", u"4:03"},
                      TimeLimit{30, u"1:40", u"5:00"}, TimeLimit{42, u"2:09", u"6:27"}));

TEST(SecondsAllowed, AreFewestAroundThirteenLetters) {
    for (int letters = 1; letters <= 42; ++letters)
        EXPECT_GE(secondsAllowed(letters, false), secondsAllowed(13, false)) << letters;
}

class CountDownTest : public GameTest {
  protected:
    CountDownTest() {
        saved.gbAgainstClock = true;
        saved.gbInfiniteScore = true;
    }
    Text time() { return game().clock.lblTime.caption; }
    int left() { return game().round.secondsLeft; }
};

TEST_F(CountDownTest, CountsBlanksToo) {
    play(u"A B C D E ");
    EXPECT_EQ(left(), secondsAllowed(10, false));
}

TEST_F(CountDownTest, GoesOneStepASecondAlthoughItLooksFiveTimes) {
    play(u"ABCDEFGHIJ");
    desktop.advance(10'000);
    EXPECT_EQ(time(), u"1:08");
    desktop.advance(8'000);
    EXPECT_EQ(time(), u"1:00");
    desktop.advance(1'000);
    EXPECT_EQ(time(), u"0:59");
}

TEST_F(CountDownTest, ReachesZeroAndKills) {
    play(u"ABCDEFGHIJ");
    desktop.advance(77'000);
    EXPECT_EQ(time(), u"0:01");
    EXPECT_EQ(settings.giGameState, kPlaying);
    desktop.advance(1'000);
    EXPECT_EQ(time(), u"0:00");
    EXPECT_EQ(settings.giGameState, kDead);
    EXPECT_EQ(settings.giStrikes, 0);
    EXPECT_EQ(game().status.lblStatus.caption, u"DEAD!");
}

TEST_F(CountDownTest, StopsAtTheEndAndKeepsTheTimeLeft) {
    play(u"ABCDEFGHIJ");
    desktop.advance(8'000);
    player.type(u"abcdefghij");
    desktop.advance(60'000);
    EXPECT_EQ(left(), 70);
    EXPECT_EQ(settings.giGameState, kWon);
}

TEST_F(CountDownTest, LosesOneSecondWhenTheSystemClockJumpsForwards) {
    play(u"ABCDEFGHIJ");
    desktop.setTimeOfDay({23, 59, 30});
    desktop.advance(900);
    EXPECT_GE(left(), 76);
    const int before = left();
    desktop.advance(10'000);
    EXPECT_EQ(left(), before - 10);
}

TEST_F(CountDownTest, LosesOneSecondWhenTheSystemClockJumpsBackwards) {
    desktop.setTimeOfDay({12, 0, 0});
    play(u"ABCDEFGHIJ");
    desktop.setTimeOfDay({11, 0, 0});
    desktop.advance(900);
    EXPECT_GE(left(), 76);
    const int before = left();
    desktop.advance(10'000);
    EXPECT_EQ(left(), before - 10);
}

TEST_F(CountDownTest, GoesOnPastMidnight) {
    desktop.setTimeOfDay({23, 59, 50});
    play(u"ABCDEFGHIJ");
    desktop.advance(20'000);
    EXPECT_EQ(left(), 58);
}

TEST_F(CountDownTest, RunsOutWhileTheLeaveQuestionIsOpen) {
    play(u"ABCDEFGHIJ");
    desktop.answerQuestion(texts::kLeaveGame.english, true, [this] { desktop.advance(90'000); });
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kDead);
    EXPECT_EQ(player.screen().name, "frmGame");
    EXPECT_EQ(game().status.lblStatus.caption, u"DEAD!");
}

TEST_F(CountDownTest, RunsOutWhileTheQuestionOfGoingBackIsOpen) {
    play(u"ABCDEFGHIJ");
    desktop.answerQuestion(texts::kLeaveGame.english, true, [this] { desktop.advance(90'000); });
    player.press(key::kF2);
    EXPECT_EQ(settings.giGameState, kDead);
    EXPECT_EQ(player.screen().name, "frmGame");
}

TEST_F(CountDownTest, RunsOutWhileTheQuestionOfRestartingIsOpen) {
    play(u"ABCDEFGHIJ");
    desktop.answerQuestion(texts::kLeaveGame.english, true, [this] { desktop.advance(90'000); });
    player.press(key::kF3);
    EXPECT_EQ(settings.giGameState, kDead);
    EXPECT_EQ(player.screen().name, "frmGame");
}

TEST_F(CountDownTest, GoesOnWhileTheRefusalToLeaveIsOpen) {
    play(u"ABCDEFGHIJ");
    player.type(u"xyzw");
    desktop.expectMessage(texts::kTooManyMistakes.english, [this] { desktop.advance(90'000); });
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kDead);
    EXPECT_EQ(settings.giGamesPlayed, 1);
}

TEST_F(CountDownTest, DoesNotRunWithoutThePreference) {
    saved.gbAgainstClock = false;
    play(u"BEE");
    EXPECT_FALSE(Player::sees(game().clock.lblTime));
    desktop.advance(3'600'000);
    EXPECT_EQ(settings.giGameState, kPlaying);
    EXPECT_EQ(left(), 0);
}

TEST_F(CountDownTest, IsClearedWhenThePlayerLeaves) {
    play(u"BEE");
    desktop.answerQuestion(texts::kLeaveGame.english, true);
    player.press(key::kReturn);
    EXPECT_EQ(player.screen().name, "frmWord2");
    EXPECT_EQ(left(), 0);
    EXPECT_FALSE(Player::sees(game().clock.lblTime));
    desktop.advance(3'600'000);
    EXPECT_EQ(settings.giGameState, kIdle);
}

TEST_F(CountDownTest, RunsInClassicModeToo) {
    playClassic(u"ABCDEFGHIJ");
    desktop.advance(78'000);
    EXPECT_EQ(settings.giGameState, kDead);
}

TEST_F(CountDownTest, StartsWithTheNextSecondOfTheClock) {
    desktop.setTimeOfDay({12, 0, 0});
    play(u"ABCDEFGHIJ");
    EXPECT_EQ(left(), 78);
    desktop.advance(1'000);
    EXPECT_EQ(left(), 77);
}

}  // namespace

}  // namespace quillor::testing
