// Saving while the disk fails, while other copies run, and after they were killed.
#include <algorithm>
#include <chrono>
#include <tuple>

#include <gtest/gtest.h>

#include "core/files.h"
#include "tests/support/environment.h"
#include "tests/support/faulty_disk.h"
#include "tests/support/temp_folder.h"

namespace quillor::testing {
namespace {

using Operation = FaultyDisk::Operation;

constexpr const char* kLeftover = "Quillor-Saving-0123456789abcdef.tmp";

class Saving : public ::testing::Test {
  protected:
    void save(std::string_view bytes) { writeFile({folder / "f", disk}, bytes); }
    void age(const char* name) const {
        std::filesystem::last_write_time(
            folder / name, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    }
    TempFolder folder;
    FaultyDisk disk;
};

TEST_F(Saving, FlushesTheFileBeforeItsNewNameAndTheFolderAfterIt) {
    save("new");
    const std::vector<Operation> asked = disk.asked();
    const std::vector<Operation> order{Operation::Create,  Operation::Write,
                                       Operation::Flush,   Operation::Close,
                                       Operation::Replace, Operation::FlushFolder};
    ASSERT_GE(asked.size(), order.size());
    EXPECT_TRUE(std::equal(order.rbegin(), order.rend(), asked.rbegin()));
}

TEST_F(Saving, GivesEveryDraftAnotherName) {
    const Draft one(folder.path());
    const Draft two(folder.path());
    EXPECT_NE(one.path(), two.path());
    EXPECT_TRUE(Draft::isItsName(one.path().filename()));
    EXPECT_EQ(folder.size(), 2);
}

TEST_F(Saving, IsNotDisturbedByAnotherSaveOfTheSameFile) {
    Draft slow(folder.path());
    slow.fill("slow");
    save("quick");
    EXPECT_EQ(folder.read("f"), "quick");
    slow.become(folder / "f");
    EXPECT_EQ(folder.read("f"), "slow");
    EXPECT_EQ(folder.size(), 1);
}

TEST_F(Saving, KeepsThePermissionsOfTheFile) {
    folder.write("f", "old");
    const auto own = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
    std::filesystem::permissions(folder / "f", own);
    const auto before = std::filesystem::status(folder / "f").permissions();
    save("new");
    EXPECT_EQ(folder.read("f"), "new");
    EXPECT_EQ(std::filesystem::status(folder / "f").permissions(), before);
}

TEST_F(Saving, IsDoneEvenWhereTheFolderCannotBeFlushed) {
    disk.breakDown(Operation::FlushFolder);
    EXPECT_NO_THROW(save("new"));
    EXPECT_EQ(folder.read("f"), "new");
}

TEST_F(Saving, LeavesAFileThatCannotBeLookedAt) {
    folder.write("f", "old");
    disk.breakDown(Operation::Look);
    EXPECT_THROW(save("new"), std::runtime_error);
    EXPECT_EQ(folder.read("f"), "old");
}

TEST_F(Saving, ToANewNameLeavesWhatHasItAlready) {
    folder.write("f", "the player's own");
    writeNewLines({folder / "f", disk}, {u"new"});
    EXPECT_EQ(folder.read("f"), "the player's own");
    EXPECT_EQ(folder.size(), 1);
    writeNewLines({folder / "g", disk}, {u"new"});
    EXPECT_EQ(folder.read("g"), "new\r\n");
}

TEST_F(Saving, LeavesNoDraftWhereSomethingFailsTwice) {
    disk.breakDown(Operation::Replace);
    disk.breakDown(Operation::Remove);
    EXPECT_THROW(save("new"), std::runtime_error);
    EXPECT_FALSE(folder.has("f"));
}

// Whatever single operation fails, and however often it has worked before.
class BrokenSaving : public Saving, public ::testing::WithParamInterface<std::tuple<int, int>> {};

TEST_P(BrokenSaving, LeavesTheOldFileOrTheNewOneWholeAndNothingElse) {
    const auto [operation, from] = GetParam();
    folder.write("f", "old");
    disk.breakDown(static_cast<Operation>(operation), from);
    try {
        save("new");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(folder.read("f"), "old");
    }
    EXPECT_TRUE(folder.read("f") == "old" || folder.read("f") == "new") << folder.read("f");
    EXPECT_EQ(folder.size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Operations, BrokenSaving,
                         ::testing::Combine(::testing::Range(0, int{FaultyDisk::kOperations}),
                                            ::testing::Values(1, 2)));

TEST_F(Saving, LeftoversOfKilledRunsAreRemoved) {
    folder.write(kLeftover, "half of someth");
    age(kLeftover);
    removeLeftovers({folder.path(), disk});
    EXPECT_EQ(folder.size(), 0);
}

TEST_F(Saving, LeftoversThatMayBeInUseStay) {
    folder.write(kLeftover, "half of someth");
    removeLeftovers({folder.path(), disk});
    EXPECT_TRUE(folder.has(kLeftover));
}

TEST_F(Saving, LeftoversAreNoFilesOfOthers) {
    const std::vector<const char*> others{
        "Quillor-Saving.tmp",
        "Quillor-Saving-0123456789abcdef.txt",
        "Quillor-Saving-0123456789abcde.tmp",
        "Quillor-Saving-0123456789ABCDEF.tmp",
        "Mine-Saving---0123456789abcdef.tmp",
        "Quillor-Saving-0123456789abcdeg.tmp",
    };
    for (const char* name : others) {
        folder.write(name, "");
        age(name);
    }
    removeLeftovers({folder.path(), disk});
    EXPECT_EQ(folder.size(), static_cast<std::ptrdiff_t>(others.size()));
}

TEST_F(Saving, LeftoversThatCannotBeRemovedAreNoMatter) {
    folder.write(kLeftover, "");
    age(kLeftover);
    disk.breakDown(Operation::Remove);
    removeLeftovers({folder.path(), disk});
    EXPECT_TRUE(folder.has(kLeftover));
}

TEST_F(Saving, NobodyIsToldThatAFolderWithoutLeftoversIsMissing) {
    ::testing::internal::CaptureStderr();
    setVariable("QUILLOR_LOG", "1");
    removeLeftovers({folder / "none", disk});
    clearVariable("QUILLOR_LOG");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    EXPECT_FALSE(folder.has("none"));
}

}  // namespace
}  // namespace quillor::testing
