// A program folder with settings, and no topic to be had.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class NoTopics : public GameTest {
  protected:
    NoTopics() {
        english = false;
        run.disk.breakDown(FaultyDisk::Operation::List);
    }
};

TEST_F(NoTopics, KeepTheSavedSettings) {
    saved.giDesign = 3;
    saved.gbUseSounds = saved.gbHardScore = true;
    openArcade();
    EXPECT_EQ(settings.giDesign, 3);
    EXPECT_TRUE(settings.gbHardScore);
    EXPECT_EQ(settings.giTopicMax, -1);
}

class NoTopicsSaved : public NoTopics, public ::testing::WithParamInterface<int> {};

TEST_P(NoTopicsSaved, LeaveNoTopicChosen) {
    saved.giSavedTopic = static_cast<std::int16_t>(GetParam());
    openArcade();
    EXPECT_EQ(settings.giTopicIndex, -1);
    EXPECT_EQ(settings.giSavedTopic, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Topics, NoTopicsSaved, ::testing::Values(-5, 0, 5));

TEST_F(NoTopics, AreSaidWhenPlayIsPressed) {
    openArcade();
    desktop.expectMessage(lang(texts::kNoTopics));
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kIdle);
}

}  // namespace
}  // namespace quillor::testing
