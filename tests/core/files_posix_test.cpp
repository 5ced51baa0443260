// Files where they are out of reach: no room left, a folder that takes nothing,
// links, names that are no text. Not on Windows, which has other means for these.
#include <csignal>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "core/files.h"
#include "core/topic_library.h"
#include "tests/support/temp_folder.h"

namespace quillor {
namespace {

using quillor::testing::TempFolder;

// While it lives, no file of this process may grow beyond so many bytes.
class RoomLimit {
  public:
    explicit RoomLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~RoomLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    RoomLimit(const RoomLimit&) = delete;
    RoomLimit& operator=(const RoomLimit&) = delete;

  private:
    rlimit before_{};
    void (*handler_)(int);
};

TEST(FullDisk, LeavesTheOldFileAndNothingElse) {
    TempFolder folder;
    folder.write("f", "old");
    {
        const RoomLimit room(1000);
        EXPECT_THROW(writeFile(folder / "f", std::string(100'000, 'x')), std::runtime_error);
    }
    EXPECT_EQ(folder.read("f"), "old");
    EXPECT_EQ(folder.size(), 1);
}

TEST(FullDisk, IsNoMatterOnceThereIsRoomAgain) {
    TempFolder folder;
    {
        const RoomLimit room(1000);
        EXPECT_THROW(writeFile(folder / "f", std::string(100'000, 'x')), std::runtime_error);
    }
    writeFile(folder / "f", "new");
    EXPECT_EQ(folder.read("f"), "new");
}

// Root may write everywhere, so what root runs is run as another user meanwhile.
class ReadOnlyFolder : public ::testing::Test {
  protected:
    void SetUp() override {
        folder.write("f", "old");
        std::filesystem::permissions(folder.path(), kReadOnly);
        if (before_ == 0 && seteuid(kNobody) != 0)
            GTEST_SKIP() << "root cannot be another user here";
    }
    void TearDown() override {
        ASSERT_EQ(seteuid(before_), 0);
        std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
    }
    TempFolder folder;

  private:
    static constexpr uid_t kNobody = 65534;
    static constexpr std::filesystem::perms kReadOnly{0555};
    const uid_t before_ = geteuid();
};

TEST_F(ReadOnlyFolder, KeepsItsFileAndTakesNoOther) {
    EXPECT_THROW(writeFile(folder / "f", "new"), std::runtime_error);
    EXPECT_THROW(writeFile(folder / "g", "new"), std::runtime_error);
    EXPECT_EQ(folder.read("f"), "old");
    EXPECT_EQ(folder.size(), 1);
}

TEST_F(ReadOnlyFolder, IsNoMatterForAFileThatHoldsTheBytesAlready) {
    EXPECT_NO_THROW(writeFile(folder / "f", "old"));
}

TEST(Links, AreFollowedWhenTheirFileIsWritten) {
    TempFolder folder;
    folder.write("real/f", "old");
    std::filesystem::create_symlink(folder / "real" / "f", folder / "link");
    writeFile(folder / "link", "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(folder.read("real/f"), "new");
}

TEST(Links, ToNothingAreNotWrittenThroughByANewFile) {
    TempFolder folder;
    std::filesystem::create_symlink("elsewhere", folder / "f");
    writeNewLines(folder / "f", {u"new"});
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "f"));
    EXPECT_EQ(folder.size(), 1);
}

TEST(Links, ToNothingDoNotExist) {
    TempFolder folder;
    std::filesystem::create_symlink("nowhere", folder / "dangling");
    EXPECT_FALSE(eFileExists(folder / "dangling"));
}

TEST(FileNames, OfBytesThatAreNoTextStillRead) {
    EXPECT_EQ(fromPath(std::filesystem::path("a\xFF.txt")), u"a\uFFFD.txt");
}

TEST(LibraryLinks, AreListedWhenTheyLeadToAFile) {
    const quillor::testing::TempFolder folder;
    folder.write("a.txt", "A");
    std::filesystem::create_symlink("a.txt", folder / "b.txt");
    std::filesystem::create_symlink("nowhere", folder / "c.txt");
    std::filesystem::create_directory_symlink(".", folder / "d.txt");
    const auto files = topicFiles(folder.path());
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(fromPath(files[0].path().filename()), u"a.txt");
    EXPECT_EQ(fromPath(files[1].path().filename()), u"b.txt");
}

// Root may list everything, so what root runs is run as another user meanwhile.
TEST(LibraryPermissions, KeepAFolderThatCannotBeListedFromPassingForAnEmptyOne) {
    const quillor::testing::TempFolder folder;
    folder.write("Temas/DEMO.txt", "mine");
    std::filesystem::permissions(folder / "Temas", std::filesystem::perms{0333});
    const uid_t before = geteuid();
    if (before == 0 && seteuid(65534) != 0)
        GTEST_SKIP() << "root cannot be another user here";
    EXPECT_THROW(topicFiles(folder / "Temas"), std::runtime_error);
    ASSERT_EQ(seteuid(before), 0);
    std::filesystem::permissions(folder / "Temas", std::filesystem::perms::owner_all);
}

}  // namespace

}  // namespace quillor
