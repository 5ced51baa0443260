// Writing where there is no room left: all stays as it was. Not on Windows, which
// has no limit to set.
#include <csignal>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "core/files.h"
#include "tests/support/temp_folder.h"

namespace quillor {
namespace {

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
    quillor::testing::TempFolder folder;
    folder.write("f", "old");
    {
        const RoomLimit room(1000);
        EXPECT_THROW(writeFile(folder / "f", std::string(100'000, 'x')), std::runtime_error);
    }
    EXPECT_EQ(folder.read("f"), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST(FullDisk, IsNoMatterOnceThereIsRoomAgain) {
    quillor::testing::TempFolder folder;
    {
        const RoomLimit room(1000);
        EXPECT_THROW(writeFile(folder / "f", std::string(100'000, 'x')), std::runtime_error);
    }
    writeFile(folder / "f", "new");
    EXPECT_EQ(folder.read("f"), "new");
}

}  // namespace
}  // namespace quillor
