// Where the player has left the window.
#include "qt/windows/window_memory.h"

#include <gtest/gtest.h>

#include "tests/support/faulty_disk.h"
#include "tests/support/temp_folder.h"

namespace quillor {

namespace {

constexpr const char* kName = "Quillor-Window.ini";
const QList<QRect> kTwoDisplays{{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};

class KeptWindow : public ::testing::Test {
  protected:
    testing::TempFolder folder;
    WindowMemory memory{folder / kName};
};

TEST_F(KeptWindow, ComesBackAsItWas) {
    for (const auto shown : {WindowState::Shown::Normal, WindowState::Shown::Maximised,
                             WindowState::Shown::FullScreen}) {
        const WindowState left{QRect(-40, 30, 1000, 700), shown};
        memory.keep(left);
        EXPECT_EQ(memory.kept(), left);
    }
}

TEST_F(KeptWindow, IsForgottenWhereItsFileIsDamaged) {
    EXPECT_EQ(memory.kept(), std::nullopt);
    for (const char* damaged :
         {"", "1\r\n2\r\n3\r\n", "0\r\n0\r\n-5\r\n700\r\n0\r\n", "0\r\n0\r\n900\r\n700\r\n9\r\n",
          "a\r\nb\r\nc\r\nd\r\ne\r\n", "0\r\n0\r\n99999999999\r\n700\r\n0\r\n"}) {
        folder.write(kName, damaged);
        EXPECT_EQ(memory.kept(), std::nullopt) << damaged;
    }
}

TEST_F(KeptWindow, IsLeftAloneWhereNothingCanBeRead) {
    std::filesystem::create_directory(folder / kName);
    memory.keep({QRect(0, 0, 900, 600), WindowState::Shown::Normal});
    EXPECT_EQ(memory.kept(), std::nullopt);
}

TEST(PlaceOnDisplays, StaysWhereItCanBeSeen) {
    const QRect onSecond(2000, 100, 1000, 700);
    EXPECT_EQ(placeOnDisplays(onSecond, kTwoDisplays), onSecond);
    const QRect overTheEdge(-300, 100, 1000, 700);
    EXPECT_EQ(placeOnDisplays(overTheEdge, kTwoDisplays), overTheEdge);
}

TEST(PlaceOnDisplays, ComesBackFromADisplayThatIsGone) {
    const QRect found = placeOnDisplays({2000, 100, 1000, 700}, {kTwoDisplays.front()});
    EXPECT_EQ(found.size(), QSize(1000, 700));
    EXPECT_EQ(found.center(), kTwoDisplays.front().center());
}

TEST(PlaceOnDisplays, IsNoLargerThanItsDisplayAndCanBeMoved) {
    const QRect found = placeOnDisplays({0, -50, 3000, 900}, {kTwoDisplays.front()});
    EXPECT_EQ(found.width(), 1920);
    EXPECT_EQ(found.top(), 0);
}

}  // namespace

}  // namespace quillor
