// Where the program keeps its files, and where it cannot.
#include "qt/system/program_folder.h"

#include <stdexcept>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/temp_folder.h"

namespace quillor {

namespace {

using testing::TempFolder;

TEST(ProgramFolder, IsTheExecutablesFolderWhenItCanBeWrittenTo) {
    const TempFolder here;
    const TempFolder user;
    EXPECT_EQ(findProgramFolder(here.path(), user / "quillor"), here.path());
    EXPECT_FALSE(user.has("quillor"));
    EXPECT_TRUE(std::filesystem::is_empty(here.path()));
}

TEST(ProgramFolder, IsTheUsersOwnOtherwise) {
    const TempFolder here;
    const TempFolder user;
    const auto found = findProgramFolder(here / "is not there", user / "data/quillor");
    EXPECT_EQ(found, user / "data/quillor");
    EXPECT_TRUE(user.has("data/quillor"));
}

// Root may write everywhere, so what root runs is run as another user meanwhile.
class UsersFolder : public ::testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::permissions(here.path(), std::filesystem::perms{0555});
        std::filesystem::permissions(user.path(), std::filesystem::perms{0777});
        if (before_ == 0 && seteuid(65534) != 0)
            GTEST_SKIP() << "root cannot be another user here";
    }
    void TearDown() override {
        ASSERT_EQ(seteuid(before_), 0);
        std::filesystem::permissions(here.path(), std::filesystem::perms::owner_all);
    }
    TempFolder here;
    TempFolder user;

  private:
    const uid_t before_ = geteuid();
};

class UsersFolderWithManual : public UsersFolder {
  protected:
    UsersFolderWithManual() { here.write("Quillor-Manual.txt", "help"); }
};

TEST_F(UsersFolderWithManual, GetsTheManual) {
    EXPECT_EQ(findProgramFolder(here.path(), user / "quillor"), user / "quillor");
    EXPECT_EQ(user.read("quillor/Quillor-Manual.txt"), "help");
}

class UsersFolderWithPipe : public UsersFolder {
  protected:
    UsersFolderWithPipe() { mkfifo((here / "Quillor-Manual.txt").c_str(), 0666); }
};

TEST_F(UsersFolderWithPipe, WaitsForNobodyWhoWouldFillIt) {
    EXPECT_EQ(findProgramFolder(here.path(), user / "quillor"), user / "quillor");
    EXPECT_FALSE(user.has("quillor/Quillor-Manual.txt"));
}

TEST(ProgramFolder, MakesTheGivenFolder) {
    const TempFolder folder;
    EXPECT_EQ(useFolder(folder / "a/b"), folder / "a/b");
    EXPECT_TRUE(folder.has("a/b"));
}

TEST(ProgramFolder, RefusesAFile) {
    const TempFolder folder;
    folder.write("file", "x");
    EXPECT_THROW(useFolder(folder / "file"), std::runtime_error);
    EXPECT_THROW(useFolder(folder / "file/below"), std::runtime_error);
}

}  // namespace

}  // namespace quillor
