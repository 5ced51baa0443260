// Where the program keeps its files, and where it cannot.
#include "qt/system/program_folder.h"

#include <stdexcept>

#include <gtest/gtest.h>

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
