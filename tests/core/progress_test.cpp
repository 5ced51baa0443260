// What the player has done: counted, kept, and not lost to a damaged file.
#include "core/progress.h"

#include <gtest/gtest.h>

#include "tests/support/faulty_disk.h"
#include "tests/support/temp_folder.h"

namespace quillor::testing {
namespace {

constexpr const char* kFile = "Quillor-Progress.txt";
constexpr const char* kAside = "Quillor-Progress-aside-1.txt";

Played victory(int score) {
    return {true, 5, 1, score, u"AVES", u"BÚHO"};
}
Played defeat(int score) {
    return {false, 7, 0, score, u"AVES", u"MIRLO"};
}

Progress after(const std::vector<Played>& games) {
    Progress progress;
    for (const Played& game : games)
        count(progress, game);
    return progress;
}

TEST(Counting, OfGamesAndTheLongestRun) {
    const Progress progress = after({victory(1500), victory(2000), defeat(1800), victory(1900)});
    EXPECT_EQ(progress.won, 3);
    EXPECT_EQ(progress.lost, 1);
    EXPECT_EQ(progress.run, 1);
    EXPECT_EQ(progress.longestRun, 2);
    EXPECT_EQ(progress.bestScore, 2000);
    EXPECT_EQ(progress.letters, 22);
    EXPECT_EQ(progress.answers, 3);
    EXPECT_EQ(progress.scores, (std::vector<int>{1500, 2000, 1800, 1900}));
}

TEST(Counting, OfWhatWasTypedWithoutAnEnd) {
    const Progress progress = after({{std::nullopt, 3, 0, std::nullopt, {}, {}}});
    EXPECT_EQ(progress.letters, 3);
    EXPECT_EQ(progress.won + progress.lost, 0);
    EXPECT_TRUE(progress.scores.empty());
}

TEST(Counting, OfGamesWithoutScoreAndTopic) {
    const Progress progress = after({{true, 1, 0, std::nullopt, {}, {}}});
    EXPECT_EQ(progress.won, 1);
    EXPECT_TRUE(progress.scores.empty());
    EXPECT_TRUE(progress.solved.empty());
}

TEST(Counting, KeepsTheLastFiftyScores) {
    std::vector<Played> games;
    for (int i = 1; i <= 51; ++i)
        games.push_back(victory(i));
    const Progress progress = after(games);
    EXPECT_EQ(progress.scores.size(), 50U);
    EXPECT_EQ(progress.scores.front(), 2);
    EXPECT_EQ(progress.scores.back(), 51);
}

TEST(Counting, OfSolvedPhrasesThatCanBeDealt) {
    Topic topic{u"AVES [ESPAÑOL]", u"BÚHO", u"MIRLO", u"", u"GARZA"};
    Progress progress = after({victory(1), victory(2), defeat(3)});
    progress.solved[u"AVES"].insert(u"GARZA");
    progress.solved[u"AVES"].insert(u"GONE");
    EXPECT_EQ(solvedPhrases(progress, topic), 1);
    topic[0] = u"OTRO";
    EXPECT_EQ(solvedPhrases(progress, topic), 0);
}

class ProgressFile : public ::testing::Test {
  protected:
    Place place() { return {folder.path(), disk}; }
    Progress read() { return readProgress(place()).value(); }
    TempFolder folder;
    FaultyDisk disk;
};

TEST_F(ProgressFile, IsReadableByPeople) {
    addToProgress(place(), {victory(1500)});
    addToProgress(place(), {defeat(900)});
    EXPECT_EQ(folder.read(kFile),
              "Quillor-Progress 1\r\ngames won: 1\r\ngames lost: 1\r\nvictories in a row: 0\r\n"
              "longest run of victories: 1\r\nbest score: 1500\r\nletters typed: 12\r\n"
              "answers typed: 1\r\nlast scores: 1500 900\r\nsolved: AVES\tB\xDAHO\r\n");
}

TEST_F(ProgressFile, IsReadBackAsItWasWritten) {
    addToProgress(place(), {victory(1500)});
    addToProgress(place(), {{true, 1, 0, 1600, u"Ω: Ñ", u"UNO: DOS"}});
    const Progress progress = read();
    EXPECT_EQ(progress.won, 2);
    EXPECT_EQ(progress.scores, (std::vector<int>{1500, 1600}));
    EXPECT_TRUE(progress.solved.at(u"AVES").contains(u"BÚHO"));
    EXPECT_TRUE(progress.solved.at(u"Ω: Ñ").contains(u"UNO: DOS"));
}

TEST_F(ProgressFile, ThatIsNotThereMeansNothingDone) {
    EXPECT_EQ(read().won, 0);
    EXPECT_EQ(folder.size(), 0);
}

TEST_F(ProgressFile, KeepsLinesThatItDoesNotKnow) {
    folder.write(kFile, "Quillor-Progress 1\r\ngames won: 4\r\nstars: 7\r\na note of mine\r\n");
    addToProgress(place(), {victory(1)});
    EXPECT_TRUE(folder.read(kFile).ends_with("stars: 7\r\na note of mine\r\n"));
    EXPECT_EQ(read().won, 5);
    emptyProgress(place());
    EXPECT_TRUE(folder.read(kFile).ends_with("stars: 7\r\na note of mine\r\n"));
    EXPECT_EQ(read().won, 0);
}

TEST_F(ProgressFile, IsEmptied) {
    addToProgress(place(), {victory(1500)});
    emptyProgress(place());
    const Progress progress = read();
    EXPECT_EQ(progress.won + progress.letters + progress.bestScore + progress.longestRun, 0);
    EXPECT_TRUE(progress.scores.empty());
    EXPECT_TRUE(progress.solved.empty());
}

TEST_F(ProgressFile, TakesNoPhraseThatWouldDamageIt) {
    addToProgress(place(), {{true, 1, 0, 5, u"T", u"A\tB"}});
    addToProgress(place(), {{true, 1, 0, 5, u"T\n", u"AB"}});
    EXPECT_EQ(read().won, 2);
    EXPECT_TRUE(read().solved.empty());
}

class DamagedProgress : public ProgressFile, public ::testing::WithParamInterface<const char*> {};

TEST_P(DamagedProgress, IsPutAsideAndNotOverwritten) {
    folder.write(kFile, GetParam());
    EXPECT_FALSE(readProgress(place()));
    addToProgress(place(), {victory(1)});
    EXPECT_EQ(folder.read(kAside), GetParam());
    EXPECT_EQ(read().won, 1);
}

TEST_P(DamagedProgress, StaysWhereItCannotBePutAside) {
    folder.write(kFile, GetParam());
    disk.breakDown(FaultyDisk::Operation::MoveToNew);
    addToProgress(place(), {victory(1)});
    emptyProgress(place());
    EXPECT_EQ(folder.read(kFile), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Contents, DamagedProgress,
                         ::testing::Values("", "a shopping list\r\n", "Quillor-Progress 2\r\n",
                                           "Quillor-Progress 1\r\ngames won: many\r\n",
                                           "Quillor-Progress 1\r\ngames won: -1\r\n",
                                           "Quillor-Progress 1\r\ngames won: 99999999999\r\n",
                                           "Quillor-Progress 1\r\ngames won\r\n",
                                           "Quillor-Progress 1\r\nlast scores: 1 2 x\r\n",
                                           "Quillor-Progress 1\r\nsolved: AVES\r\n",
                                           "Quillor-Progress 1\r\n\x01\x02\x03\r\n"));

TEST_F(ProgressFile, ThatCannotBeReadStaysAsItIs) {
    addToProgress(place(), {victory(1)});
    const std::string before = folder.read(kFile);
    disk.breakDown(FaultyDisk::Operation::Open);
    addToProgress(place(), {victory(2)});
    EXPECT_EQ(folder.read(kFile), before);
}

TEST_F(ProgressFile, IsWrittenWholeOrNotAtAll) {
    addToProgress(place(), {victory(1)});
    const std::string before = folder.read(kFile);
    for (const auto operation : {FaultyDisk::Operation::Create, FaultyDisk::Operation::Write,
                                 FaultyDisk::Operation::Flush, FaultyDisk::Operation::Replace}) {
        disk.breakDown(operation);
        EXPECT_FALSE(addToProgress(place(), {victory(2)}));
        disk.mend();
        EXPECT_EQ(folder.read(kFile), before);
        EXPECT_EQ(folder.size(), 1);
    }
}

TEST_F(ProgressFile, PutsEachDamagedOneAsideUnderAnotherName) {
    for (int i = 0; i < 2; ++i) {
        folder.write(kFile, "foreign");
        addToProgress(place(), {victory(1)});
    }
    EXPECT_EQ(folder.read("Quillor-Progress-aside-2.txt"), "foreign");
}

}  // namespace
}  // namespace quillor::testing
