// Whole files: lines with any ends, and writing that replaces all or nothing. And the
// guard, which ends an operation on an error, keeps what it did, and tells of it on wish.
#include "core/files.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "core/guard.h"
#include "tests/support/environment.h"
#include "tests/support/faulty_disk.h"
#include "tests/support/temp_folder.h"

namespace quillor {
namespace {

using quillor::testing::FaultyDisk;
using quillor::testing::TempFolder;
using Lines = std::vector<Text>;

Lines linesOf(std::string_view bytes, std::size_t most = 100) {
    return splitLines(bytes, most).lines;
}

TEST(Lines, MayEndInAnyWay) {
    EXPECT_EQ(linesOf("a\r\nb\r\n"), (Lines{u"a", u"b"}));
    EXPECT_EQ(linesOf("a\nb\n"), (Lines{u"a", u"b"}));
    EXPECT_EQ(linesOf("a\rb\r"), (Lines{u"a", u"b"}));
    EXPECT_EQ(linesOf("a\nb\rc\r\nd"), (Lines{u"a", u"b", u"c", u"d"}));
}

TEST(Lines, AreNoneInAnEmptyText) {
    EXPECT_EQ(linesOf(""), Lines{});
}

TEST(Lines, KeepEmptyOnesBetween) {
    EXPECT_EQ(linesOf("a\r\n\r\nb"), (Lines{u"a", u"", u"b"}));
    EXPECT_EQ(linesOf("\n"), (Lines{u""}));
    EXPECT_EQ(linesOf("\n\r\n\r"), (Lines{u"", u"", u""}));
}

TEST(Lines, NeedNoEndAtTheLast) {
    EXPECT_EQ(linesOf("a\r\nb"), (Lines{u"a", u"b"}));
}

TEST(Lines, KeepZeroBytesAsCharacters) {
    EXPECT_EQ(linesOf(std::string_view("a\0b\nc", 5)), (Lines{Text(u"a\0b", 3), u"c"}));
}

TEST(Lines, AreDecodedTogether) {
    EXPECT_EQ(linesOf("\xEF\xBB\xBF\xC3\xB1\nb"), (Lines{u"ñ", u"b"}));
    EXPECT_EQ(linesOf("\xC3\xB1\n\xF1"), (Lines{u"Ã±", u"ñ"}));
}

TEST(Lines, StopAtTheMostAndTellOfMore) {
    const SplitLines two = splitLines("a\r\nb\r\nc", 2);
    EXPECT_EQ(two.lines, (Lines{u"a", u"b"}));
    EXPECT_TRUE(two.more);
    EXPECT_FALSE(splitLines("a\r\nb\r\n", 2).more);
    EXPECT_TRUE(splitLines("a\r\nb\r\n\r\n", 2).more);
}

TEST(Lines, BeyondTheMostDoNotDecideTheEncoding) {
    EXPECT_EQ(linesOf("\xC3\xB1\n\xF1", 1), (Lines{u"ñ"}));
}

TEST(ReadingFiles, GivesTheBytes) {
    TempFolder folder;
    folder.write("f", std::string_view("\0\r\n\xFF", 4));
    EXPECT_EQ(readFile(folder / "f", 9), std::string("\0\r\n\xFF", 4));
}

TEST(ReadingFiles, TakesAWholeFileOnlyUpToItsLimit) {
    TempFolder folder;
    folder.write("f", std::string(100'000, 'x'));
    EXPECT_EQ(readFile(folder / "f", 100'000)->size(), 100'000U);
    EXPECT_FALSE(readFile(folder / "f", 99'999).has_value());
}

TEST(ReadingFiles, RefusesFoldersAndWhatIsNotThere) {
    TempFolder folder;
    EXPECT_THROW(readFile(folder.path(), 9), std::runtime_error);
    EXPECT_THROW(readFile(folder / "none", 9), std::runtime_error);
    EXPECT_THROW(readLines(folder.path(), 5), std::runtime_error);
}

TEST(ReadingFiles, TakesALineOfTenMegabytesInLargePieces) {
    TempFolder folder;
    FaultyDisk disk;
    folder.write("f", std::string(10'000'000, 'x'));
    const Lines lines = readLines({folder / "f", disk}, 51);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].size(), 10'000'000U);
    EXPECT_LT(std::ranges::count(disk.asked(), FaultyDisk::Operation::Read), 50);
}

TEST(ReadingFiles, TakesLinesLongerThanWhatIsReadAtOnce) {
    TempFolder folder;
    const std::string longLine(100'000, 'x');
    folder.write("f", longLine + "\r\n" + longLine + "\r\n" + longLine);
    const Lines lines = readLines(folder / "f", 3);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[1].size(), longLine.size());
    EXPECT_EQ(lines[2].size(), longLine.size());
}

TEST(ReadingFiles, TakesALineEndThatIsReadInTwoPieces) {
    TempFolder folder;
    folder.write("f", std::string(65'535, 'x') + "\r\nend");
    EXPECT_EQ(readLines(folder / "f", 9).back(), u"end");
    EXPECT_EQ(readLines(folder / "f", 9).size(), 2U);
}

TEST(ReadingFiles, LooksOnlyAtTheStartOfAHugeFile) {
    TempFolder folder;
    folder.write("f", "one\r\ntwo\r\nthree\r\n" + std::string(100'000, '\n'));
    std::filesystem::resize_file(folder / "f", 64 << 20);
    EXPECT_EQ(readLines(folder / "f", 2), (Lines{u"one", u"two"}));
    EXPECT_LT(readFileStart(folder / "f", 2).size(), 1'000'000U);
}

TEST(ReadingFiles, GivesUpOnALineThatNeverEnds) {
    TempFolder folder;
    folder.write("f", "x");
    std::filesystem::resize_file(folder / "f", 20 << 20);
    EXPECT_THROW(readLines(folder / "f", 2), std::runtime_error);
}

TEST(WritingFiles, ReplacesAndLeavesNothingElse) {
    TempFolder folder;
    folder.write("f", "a much longer text");
    writeFile(folder / "f", std::string_view("b\0c", 3));
    EXPECT_EQ(folder.read("f"), std::string("b\0c", 3));
    EXPECT_EQ(folder.size(), 1);
}

TEST(WritingFiles, LeavesAFolderOfThatName) {
    TempFolder folder;
    folder.write("f/inside", "kept");
    EXPECT_THROW(writeFile(folder / "f", "new"), std::runtime_error);
    EXPECT_EQ(folder.read("f/inside"), "kept");
    EXPECT_EQ(folder.size(), 1);
}

TEST(WritingFiles, LeavesAReadOnlyFileAsItWas) {
    TempFolder folder;
    folder.write("f", "old");
    std::filesystem::permissions(folder / "f", std::filesystem::perms::owner_read);
    EXPECT_THROW(writeFile(folder / "f", "new"), std::runtime_error);
    EXPECT_EQ(folder.read("f"), "old");
}

TEST(WritingFiles, LeavesAFileAloneThatHoldsTheseBytes) {
    const TempFolder folder;
    folder.write("a.txt", "same");
    const auto longAgo = std::filesystem::last_write_time(folder / "a.txt") - std::chrono::hours(1);
    std::filesystem::last_write_time(folder / "a.txt", longAgo);
    writeFile(folder / "a.txt", "same");
    EXPECT_EQ(std::filesystem::last_write_time(folder / "a.txt"), longAgo);
    writeFile(folder / "a.txt", "fame");
    EXPECT_EQ(folder.read("a.txt"), "fame");
}

TEST(WritingFiles, FailsInAFolderThatIsNotThere) {
    TempFolder folder;
    EXPECT_THROW(writeFile(folder / "none" / "f", "new"), std::runtime_error);
    EXPECT_FALSE(folder.has("none"));
}

TEST(WritingFiles, TakesANameAsLongAsTheSystemAllows) {
    TempFolder folder;
    const std::string name(255, 'n');
    writeFile(folder / name, "x");
    EXPECT_EQ(folder.read(name), "x");
}

TEST(WritingLines, EndsEachWithCrLf) {
    TempFolder folder;
    writeLines(folder / "f", {u"uno", u"", u"año"});
    EXPECT_EQ(folder.read("f"), "uno\r\n\r\na\xF1o\r\n");
}

TEST(FileNames, KeepAnyUnicode) {
    for (const TextView name : {u"año.txt", u"Ωмир.txt", u"\U0001F600.txt", u"名.txt"}) {
        TempFolder folder;
        writeFile(folder.path() / toPath(name), "x");
        const auto listed = std::filesystem::directory_iterator(folder.path())->path();
        EXPECT_EQ(fromPath(listed.filename()), name);
    }
}

TEST(FileExists, IsTrueForFilesAndFolders) {
    TempFolder folder;
    folder.write("f", "");
    EXPECT_TRUE(eFileExists(folder / "f"));
    EXPECT_TRUE(eFileExists(folder.path()));
}

TEST(FileExists, DoesNotMakeAFolderAFile) {
    TempFolder folder;
    folder.write("f", "");
    EXPECT_TRUE(isFile(folder / "f"));
    EXPECT_FALSE(isFile(folder.path()));
    EXPECT_FALSE(isFile(folder / "none"));
}

TEST(FileExists, TakesEveryErrorAsNo) {
    TempFolder folder;
    folder.write("f", "");
    EXPECT_FALSE(eFileExists(folder / "none"));
    EXPECT_FALSE(eFileExists(folder / "f" / "below"));
    EXPECT_FALSE(eFileExists(folder / std::string(5000, 'x')));
    EXPECT_FALSE(eFileExists(std::filesystem::path()));
}

TEST(Guard, SaysThatTheBodyRanToItsEnd) {
    EXPECT_TRUE(quietly("eTest", [] {}));
}

TEST(Guard, KeepsWhatWasDoneBeforeTheError) {
    int done = 0;
    const bool ended = quietly("eTest", [&] {
        done = 1;
        throw std::runtime_error("broken");
    });
    EXPECT_FALSE(ended);
    EXPECT_EQ(done, 1);
}

TEST(Guard, SwallowsWhatIsNoException) {
    EXPECT_FALSE(quietly("eTest", [] { throw 1; }));
}

class GuardLog : public ::testing::Test {
  protected:
    void TearDown() override { clearVariable("QUILLOR_LOG"); }

    static std::string logOf(const char* error) {
        ::testing::internal::CaptureStderr();
        quietly("eTest", [&] { throw std::runtime_error(error); });
        return ::testing::internal::GetCapturedStderr();
    }
};

TEST_F(GuardLog, SaysNothingUnlessAsked) {
    clearVariable("QUILLOR_LOG");
    EXPECT_EQ(logOf("broken"), "");
}

TEST_F(GuardLog, WritesOneLineWithOperationAndErrorWhenAsked) {
    setVariable("QUILLOR_LOG", "1");
    EXPECT_EQ(logOf("broken"), "quillor: eTest ended: broken\n");
}

}  // namespace

}  // namespace quillor
