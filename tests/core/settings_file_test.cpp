// The settings file: eleven lines by place, two writers and two readers.
#include "core/settings_file.h"

#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace quillor {
namespace {

class SettingsFile : public ::testing::Test {
  protected:
    static constexpr const char* kName = "Quillor-Config.ini";

    SettingsFile() { settings.giTopicMax = 4; }

    void file(std::string_view bytes) const { folder.write(kName, bytes); }
    std::string file() const { return folder.read(kName); }
    void loadGame() { loadForGameScreen(settings, folder.path()); }
    void loadOptions() { loadForSettingsScreen(settings, folder.path()); }

    quillor::testing::TempFolder folder;
    GameSettings settings;
};

TEST_F(SettingsFile, StandsInTheProgramFolder) {
    EXPECT_EQ(settingsFile(folder.path()), folder / "Quillor-Config.ini");
}

TEST_F(SettingsFile, OfAFirstRunHasElevenLinesEndedByCrLf) {
    settings.gbUseSounds = settings.gbFirstLetter = true;
    eSaveSettings(settings, folder.path());
    EXPECT_EQ(file(), "0\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n");
}

TEST_F(SettingsFile, HasEachFieldOnItsOwnLine) {
    settings.giDesign = 3;
    settings.gbUseWikipedia = settings.gbHardScore = settings.gbAgainstClock = true;
    settings.giWay = kTour;
    settings.gbColorTransition = true;
    settings.giSavedTopic = 12;
    eSaveSettings(settings, folder.path());
    EXPECT_EQ(file(), "3\r\n0\r\n1\r\n0\r\n1\r\n0\r\n1\r\n0\r\n2\r\n1\r\n12\r\n");
}

TEST_F(SettingsFile, IsReplacedWhole) {
    file("a much longer file than the one that takes its place, by far");
    eSaveSettings(settings, folder.path());
    EXPECT_EQ(file(), "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n");
}

TEST_F(SettingsFile, ThatCannotBeWrittenIsNoMatter) {
    std::filesystem::create_directory(folder / kName);
    settings.giDesign = 2;
    eSaveSettings(settings, folder.path());
    saveFromSettingsScreen(settings, folder.path());
    EXPECT_EQ(settings.giDesign, 2);
    EXPECT_TRUE(std::filesystem::is_directory(folder / kName));
}

TEST_F(SettingsFile, FromTheSettingsScreenLeavesTheTopicLineEmpty) {
    settings.giDesign = 1;
    settings.giSavedTopic = 3;
    saveFromSettingsScreen(settings, folder.path());
    EXPECT_EQ(file(), "1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n\r\n");
}

TEST_F(SettingsFile, FromTheSettingsScreenForgetsTheSavedTopic) {
    settings.giSavedTopic = settings.giTopicIndex = 3;
    saveFromSettingsScreen(settings, folder.path());
    loadGame();
    EXPECT_EQ(settings.giSavedTopic, 0);
    EXPECT_EQ(settings.giTopicIndex, 0);
}

TEST_F(SettingsFile, ReadsBackAllThatWasWritten) {
    settings.giDesign = 2;
    settings.gbUseSounds = settings.gbHiddenLetters = settings.gbInfiniteScore = true;
    settings.gbFirstLetter = settings.gbColorTransition = true;
    settings.giWay = kHiddenTopic;
    settings.giSavedTopic = 4;
    settings.gbOptionsOpened = true;
    eSaveSettings(settings, folder.path());
    const std::string written = file();
    GameSettings read;
    read.giTopicMax = 4;
    read.gbOptionsOpened = true;
    loadForGameScreen(read, folder.path());
    eSaveSettings(read, folder.path());
    EXPECT_EQ(file(), written);
    EXPECT_EQ(read.giTopicIndex, 4);
}

TEST_F(SettingsFile, TakesEveryNumberAboveZeroAsTrue) {
    file("0\r\n2\r\n0.4\r\n99999\r\n1\r\n");
    loadGame();
    EXPECT_TRUE(settings.gbUseSounds);
    EXPECT_TRUE(settings.gbUseWikipedia);
    EXPECT_TRUE(settings.gbHiddenLetters);
    EXPECT_TRUE(settings.gbHardScore);
    EXPECT_FALSE(settings.gbInfiniteScore);
}

TEST_F(SettingsFile, ClearsFlagsOnTheGameScreen) {
    settings.gbUseSounds = settings.gbHardScore = true;
    file("0\r\n-1\r\n0\r\n0\r\nno\r\n");
    loadGame();
    EXPECT_FALSE(settings.gbUseSounds);
    EXPECT_FALSE(settings.gbHardScore);
}

TEST_F(SettingsFile, NeverClearsFlagsOnTheSettingsScreen) {
    settings.gbUseSounds = settings.gbHardScore = true;
    file("0\r\n-1\r\n1\r\n0\r\nno\r\n");
    loadOptions();
    EXPECT_TRUE(settings.gbUseSounds);
    EXPECT_TRUE(settings.gbUseWikipedia);
    EXPECT_TRUE(settings.gbHardScore);
}

TEST_F(SettingsFile, DoesNotMoveTheTopicOnTheSettingsScreen) {
    settings.giSavedTopic = settings.giTopicIndex = 2;
    file("3\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n1\r\n4\r\n");
    loadOptions();
    EXPECT_EQ(settings.giDesign, 3);
    EXPECT_EQ(settings.giWay, kRepeat);
    EXPECT_TRUE(settings.gbColorTransition);
    EXPECT_EQ(settings.giSavedTopic, 2);
    EXPECT_EQ(settings.giTopicIndex, 2);
    EXPECT_FALSE(settings.gbSettingsLoaded);
}

TEST_F(SettingsFile, GivesTheWayOnlyOnceTheSettingsScreenWasOpened) {
    file("0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n3\r\n");
    loadGame();
    EXPECT_EQ(settings.giWay, kManual);
    settings.gbOptionsOpened = true;
    loadGame();
    EXPECT_EQ(settings.giWay, kAnyTopic);
}

TEST_F(SettingsFile, TakesAWayThatThereIsNotAsManual) {
    settings.gbOptionsOpened = true;
    for (const char* way : {"7", "-1", "5", "4.6"}) {
        file("0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n" + std::string(way) + "\r\n");
        loadGame();
        EXPECT_EQ(settings.giWay, kManual) << way;
    }
}

}  // namespace
}  // namespace quillor
