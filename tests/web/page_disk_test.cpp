// The page's disk: what is kept, when, and what is not.
#include "web/page_disk.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/files.h"

namespace quillor {
namespace {

class PageFiles : public ::testing::Test {
  protected:
    PageFiles() {
        disk.keep = [this](const std::string& path, const std::string& bytes, bool isNew) {
            log.push_back((isNew ? "new " : "keep ") + path + "=" + bytes);
        };
        disk.drop = [this](const std::string& path) { log.push_back("drop " + path); };
    }
    Place in(const char* name) { return Place(PageDisk::kFolder, disk) / name; }

    PageDisk disk;
    std::vector<std::string> log;
};

TEST_F(PageFiles, KeepAFileWholeOnceItHasItsName) {
    writeFile(in("a.txt"), "one");
    EXPECT_EQ(log, std::vector<std::string>{"keep a.txt=one"});
    EXPECT_EQ(readFile(in("a.txt"), 10), "one");
}

TEST_F(PageFiles, DoNotKeepWhatIsThereAlready) {
    disk.put("/files/a.txt", "one");
    writeFile(in("a.txt"), "one");
    EXPECT_TRUE(log.empty());
}

TEST_F(PageFiles, LeaveWhatAnotherTabMayHaveMadeMeanwhile) {
    writeNewFile(in("a.txt"), "one");
    EXPECT_EQ(log, std::vector<std::string>{"new a.txt=one"});
    writeNewFile(in("a.txt"), "two");
    EXPECT_EQ(readFile(in("a.txt"), 10), "one");
}

TEST_F(PageFiles, KeepFoldersByASlash) {
    disk.makeFolder("/files/Temas");
    disk.makeFolder("/files/Temas");
    EXPECT_EQ(log, std::vector<std::string>{"keep Temas/="});
    disk.put("/files/Topics/", {});
    EXPECT_EQ(disk.look("/files/Topics").kind, Disk::Kind::Folder);
}

TEST_F(PageFiles, ForgetARemovedFile) {
    disk.put("/files/a.txt", "one");
    disk.remove("/files/a.txt");
    disk.remove("/files/a.txt");
    EXPECT_EQ(log, std::vector<std::string>{"drop a.txt"});
}

TEST_F(PageFiles, KeepNothingThatThePageHasBroughtAlong) {
    disk.put("/brought/topic.txt", "one");
    disk.remove("/brought/topic.txt");
    EXPECT_TRUE(log.empty());
}

TEST_F(PageFiles, ListWhatAFolderHoldsAndNothingBelow) {
    disk.put("/files/Temas/a.txt", "one");
    disk.put("/files/b.txt", "two");
    EXPECT_EQ(disk.list("/files").size(), 2);
    EXPECT_EQ(disk.list("/files/Temas").size(), 1);
    EXPECT_THROW(disk.list("/nowhere"), std::runtime_error);
}

TEST_F(PageFiles, RemoveADraftThatCameToNothing) {
    { const Draft draft(Place(PageDisk::kFolder, disk)); }
    EXPECT_TRUE(disk.list("/files").empty());
    EXPECT_TRUE(log.empty());
}

}  // namespace
}  // namespace quillor
