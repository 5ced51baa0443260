// What other running copies do, killed ones, and things that are no files.
#include <array>
#include <csignal>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/files.h"
#include "qt/system/system_disk.h"
#include "tests/support/temp_folder.h"

namespace quillor::platform {
namespace {

// Another running copy, which does this and no more.
template <typename Work>
pid_t otherCopy(Work work) {
    const pid_t copy = fork();
    if (copy == 0) {
        work();
        _exit(0);
    }
    return copy;
}

int endOf(pid_t copy) {
    int status = -1;
    waitpid(copy, &status, 0);
    return status;
}

class SystemCopies : public ::testing::Test {
  protected:
    testing::TempFolder folder;
    Place here{folder.path(), systemDisk()};
};

TEST_F(SystemCopies, LeaveTheDraftOfALivingOneAndRemoveThatOfAKilledOne) {
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t copy = otherCopy([&] {
        Draft draft(here);
        draft.fill("half");
        [[maybe_unused]] const auto told = write(ready[1], "!", 1);
        pause();
    });
    char told = 0;
    ASSERT_EQ(read(ready[0], &told, 1), 1);
    removeLeftovers(here);
    EXPECT_EQ(folder.size(), 1);
    kill(copy, SIGKILL);
    EXPECT_TRUE(WIFSIGNALED(endOf(copy)));
    EXPECT_EQ(folder.size(), 1);
    removeLeftovers(here);
    EXPECT_EQ(folder.size(), 0);
    close(ready[0]);
    close(ready[1]);
}

TEST_F(SystemCopies, NeverTearAFileThatSeveralSave) {
    constexpr int kSaves = 60;
    constexpr std::size_t kSize = 100'000;
    const auto saveOften = [&](char sign) {
        return otherCopy([&] {
            for (int i = 0; i < kSaves; ++i) {
                writeFile(here / "f", std::string(kSize, sign));
                writeFile(here / "f", std::string(kSize, '-'));
                removeLeftovers(here);
            }
        });
    };
    folder.write("f", std::string(kSize, '-'));
    const std::array copies{saveOften('a'), saveOften('b')};
    for (int i = 0; i < kSaves; ++i) {
        const std::string bytes = folder.read("f");
        ASSERT_EQ(bytes, std::string(kSize, bytes.empty() ? '?' : bytes[0]));
    }
    for (const pid_t copy : copies)
        EXPECT_EQ(endOf(copy), 0);
    EXPECT_EQ(folder.size(), 1);
}

TEST_F(SystemCopies, MayNotBothWriteTheSample) {
    const auto sample = [&](char sign) {
        return otherCopy([&] { writeNewLines(here / "DEMO.txt", {Text(50'000, sign)}); });
    };
    const std::array copies{sample('a'), sample('b')};
    for (const pid_t copy : copies)
        EXPECT_EQ(endOf(copy), 0);
    const std::string bytes = folder.read("DEMO.txt");
    EXPECT_EQ(bytes.size(), 50'002U);
    EXPECT_EQ(bytes.find_first_not_of(bytes[0]), 50'000U);
    EXPECT_EQ(folder.size(), 1);
}

TEST_F(SystemCopies, OpenNoPipeAndNoDevice) {
    ASSERT_EQ(mkfifo((folder / "Pic.jpg").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", folder / "Color.txt");
    EXPECT_THROW(systemDisk().open(folder / "Pic.jpg"), std::runtime_error);
    EXPECT_THROW(systemDisk().open(folder / "Color.txt"), std::runtime_error);
    EXPECT_THROW(writeFile(here / "Pic.jpg", "new"), std::runtime_error);
}

TEST_F(SystemCopies, KeepAllPermissionsOfAFile) {
    folder.write("f", "old");
    ASSERT_EQ(chmod((folder / "f").c_str(), 0604), 0);
    writeFile(here / "f", "new");
    struct stat found {};
    ASSERT_EQ(stat((folder / "f").c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 07777U, 0604U);
}

TEST_F(SystemCopies, KeepAFileThatIsSomebodyElses) {
    folder.write("f", "old");
    if (chown((folder / "f").c_str(), 65534, 65534) != 0)
        GTEST_SKIP() << "only root may give files away";
    writeFile(here / "f", "new");
    struct stat found {};
    ASSERT_EQ(stat((folder / "f").c_str(), &found), 0);
    EXPECT_EQ(found.st_uid, 65534U);
}

TEST_F(SystemCopies, GiveANewFileWhatTheUsersMaskLeaves) {
    const mode_t before = umask(027);
    writeFile(here / "f", "new");
    umask(before);
    struct stat found {};
    ASSERT_EQ(stat((folder / "f").c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 07777U, 0640U);
}

TEST_F(SystemCopies, MakeNoFileThroughALinkToNothing) {
    std::filesystem::create_symlink("nowhere", folder / "f");
    EXPECT_EQ(systemDisk().create(folder / "f"), nullptr);
    EXPECT_EQ(folder.size(), 1);
}

}  // namespace
}  // namespace quillor::platform
