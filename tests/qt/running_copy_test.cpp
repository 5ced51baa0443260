// Copies of the program in one folder: who is there, and how it is called.
#include "qt/system/running_copy.h"

#include <QCoreApplication>
#include <cstdlib>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "qt/system/watched_disk.h"
#include "tests/support/environment.h"
#include "tests/support/faulty_disk.h"
#include "tests/support/temp_folder.h"

namespace quillor::platform {

namespace {

using Other = RunningCopy::Other;
using testing::TempFolder;

TEST(RunningCopy, IsAloneInAFolderOfItsOwn) {
    const TempFolder one;
    const TempFolder two;
    const RunningCopy here(one.path());
    EXPECT_EQ(here.other(), Other::None);
    EXPECT_EQ(RunningCopy(two.path()).other(), Other::None);
    EXPECT_EQ(one.size(), 0);
}

TEST(RunningCopy, FindsTheOneThatIsThereHoweverTheFolderIsWritten) {
    const TempFolder folder;
    const RunningCopy first(folder.path());
    EXPECT_EQ(RunningCopy(folder / "." / "").other(), Other::Own);
}

TEST(RunningCopy, IsForgottenWhenItHasEndedOrLetGo) {
    const TempFolder folder;
    { const RunningCopy ended(folder.path()); }
    RunningCopy first(folder.path());
    EXPECT_EQ(first.other(), Other::None);
    first.letGo();
    EXPECT_EQ(RunningCopy(folder.path()).other(), Other::None);
}

TEST(RunningCopy, IsCalledByALaterOne) {
    const TempFolder folder;
    RunningCopy first(folder.path());
    std::string heard;
    first.onCall([&](const std::string& message) { heard = message; });
    bool answered = false;
    std::thread later([&] { answered = RunningCopy(folder.path()).call("hello"); });
    while (heard.empty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    later.join();
    EXPECT_TRUE(answered);
    EXPECT_EQ(heard, "hello");
}

// It hangs, as it were: nothing turns its events.
TEST(RunningCopy, IsNotWaitedForForEver) {
    const TempFolder folder;
    const RunningCopy first(folder.path());
    EXPECT_FALSE(RunningCopy(folder.path()).call("hello"));
}

#ifndef _WIN32
TEST(RunningCopy, OnAnotherDesktopIsSomebodyElses) {
    const TempFolder folder;
    const char* display = std::getenv("DISPLAY");
    const std::string before = display ? display : "";
    const RunningCopy first(folder.path());
    setVariable("DISPLAY", ":4711");
    EXPECT_EQ(RunningCopy(folder.path()).other(), Other::Somebody);
    setVariable("DISPLAY", before.c_str());
}
#endif

TEST(RunningCopy, NeedsNoFolder) {
    const TempFolder folder;
    EXPECT_EQ(RunningCopy(folder / "gone").other(), Other::None);
}

class Watched : public ::testing::Test {
  protected:
    Watched() {
        watched.onLoss = [this] { ++losses; };
    }
    void save(const char* name) {
        try {
            (void)watched.create(folder / name);
        } catch (const std::exception&) {
        }
    }
    TempFolder folder;
    testing::FaultyDisk disk;
    WatchedDisk watched{disk, folder.path()};
    int losses = 0;
};

TEST_F(Watched, DiskTellsOnceThatNothingIsSaved) {
    disk.breakDown(testing::FaultyDisk::Operation::Create);
    save("a");
    save("b");
    EXPECT_EQ(losses, 1);
}

TEST_F(Watched, DiskTellsAnewWhenItHadBeenWell) {
    disk.breakDown(testing::FaultyDisk::Operation::Create);
    save("a");
    disk.mend();
    save("a");
    disk.breakDown(testing::FaultyDisk::Operation::Create);
    save("b");
    EXPECT_EQ(losses, 2);
}

TEST_F(Watched, DiskSaysNothingOfOtherFolders) {
    save("not/there/a");
    EXPECT_EQ(losses, 0);
}

}  // namespace

}  // namespace quillor::platform
