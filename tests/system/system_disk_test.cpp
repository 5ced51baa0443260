// The system's own disk: files that are new, saved, in use or abandoned.
#include "qt/system/system_disk.h"

#include <gtest/gtest.h>

#include "core/files.h"
#include "tests/support/temp_folder.h"

namespace quillor::platform {
namespace {

class SystemDisk : public ::testing::Test {
  protected:
    Place at(const std::filesystem::path& name) const { return here / name; }

    testing::TempFolder folder;
    Place here{folder.path(), systemDisk()};
};

TEST_F(SystemDisk, ReadsWhatItHasSaved) {
    const std::string bytes(3'000'000, 'x');
    writeFile(at("f"), bytes);
    EXPECT_EQ(folder.read("f"), bytes);
    EXPECT_EQ(readFile(at("f"), bytes.size()), bytes);
    writeFile(at("f"), "new");
    EXPECT_EQ(folder.read("f"), "new");
    EXPECT_EQ(folder.size(), 1);
}

TEST_F(SystemDisk, SavesUnderAnyName) {
    const std::filesystem::path name(u8"\u00F1and\u00FA \u043C\u0438\u0440.txt");
    writeFile(at(name), "x");
    EXPECT_EQ(folder.read(name), "x");
}

TEST_F(SystemDisk, MakesOnlyFilesThatWereNotThere) {
    folder.write("f", "kept");
    EXPECT_EQ(systemDisk().create(folder / "f"), nullptr);
    EXPECT_EQ(folder.read("f"), "kept");
    EXPECT_THROW(systemDisk().create(folder / "none" / "f"), std::runtime_error);
}

TEST_F(SystemDisk, GivesANewNameOnlyWhereNothingHasIt) {
    folder.write("from", "new");
    folder.write("to", "kept");
    EXPECT_FALSE(systemDisk().moveToNew(folder / "from", folder / "to"));
    EXPECT_EQ(folder.read("to"), "kept");
    EXPECT_TRUE(systemDisk().moveToNew(folder / "from", folder / "other"));
    EXPECT_EQ(folder.read("other"), "new");
    EXPECT_FALSE(folder.has("from"));
}

TEST_F(SystemDisk, LeavesADraftThatIsBeingWritten) {
    Draft draft(here);
    removeLeftovers(here);
    draft.fill("whole");
    removeLeftovers(here);
    draft.become(folder / "f");
    EXPECT_EQ(folder.read("f"), "whole");
}

TEST_F(SystemDisk, RemovesADraftThatNobodyWrites) {
    folder.write("Quillor-Saving-0123456789abcdef.tmp", "half");
    removeLeftovers(here);
    EXPECT_EQ(folder.size(), 0);
}

TEST_F(SystemDisk, LeavesAReadOnlyFileAsItWas) {
    folder.write("f", "old");
    std::filesystem::permissions(folder / "f", std::filesystem::perms::owner_read);
    EXPECT_THROW(writeFile(at("f"), "new"), std::runtime_error);
    EXPECT_EQ(folder.read("f"), "old");
    std::filesystem::permissions(folder / "f", std::filesystem::perms::owner_all);
}

TEST_F(SystemDisk, OpensNoFolder) {
    EXPECT_THROW(systemDisk().open(folder.path()), std::runtime_error);
    EXPECT_THROW(systemDisk().open(folder / "none"), std::runtime_error);
}

TEST_F(SystemDisk, LeavesNothingOfASaveThatFailed) {
    folder.write("f/inside", "in the way");
    Draft draft(here);
    draft.fill("new");
    EXPECT_THROW(draft.become(folder / "f"), std::runtime_error);
    EXPECT_EQ(folder.read("f/inside"), "in the way");
}

}  // namespace
}  // namespace quillor::platform
