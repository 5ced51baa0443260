// The formulas of what a game is worth.
#include <gtest/gtest.h>

#include "game/rules/scoring.h"

namespace quillor::testing {
namespace {

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
