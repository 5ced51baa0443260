// The settings file: eleven lines by place, two writers and two readers; and files that
// no writer of ours has left: cut, grown, edited by hand.
#include "core/settings_file.h"

#include <gtest/gtest.h>

#include "core/random.h"
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
    EXPECT_FALSE(eSaveSettings(settings, folder.path()));
    EXPECT_FALSE(saveFromSettingsScreen(settings, folder.path()));
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

class DamagedSettings : public ::testing::Test {
  protected:
    DamagedSettings() {
        settings.giTopicMax = 4;
        settings.gbOptionsOpened = true;
    }

    void load(std::string_view bytes) {
        folder.write("Quillor-Config.ini", bytes);
        loadForGameScreen(settings, folder.path());
    }

    quillor::testing::TempFolder folder;
    GameSettings settings;
};

TEST_F(DamagedSettings, MissingFileLeavesEverything) {
    settings.giDesign = 2;
    settings.gbUseSounds = true;
    loadForGameScreen(settings, folder.path());
    loadForSettingsScreen(settings, folder.path());
    EXPECT_EQ(settings.giDesign, 2);
    EXPECT_TRUE(settings.gbUseSounds);
    EXPECT_FALSE(settings.gbSettingsLoaded);
}

TEST_F(DamagedSettings, FolderOfThatNameLeavesEverything) {
    std::filesystem::create_directory(folder / "Quillor-Config.ini");
    settings.giDesign = 2;
    loadForGameScreen(settings, folder.path());
    EXPECT_EQ(settings.giDesign, 2);
}

TEST_F(DamagedSettings, EmptyFileReadsAsZeros) {
    settings.giDesign = 2;
    settings.gbUseSounds = true;
    settings.giTopicIndex = 3;
    load("");
    EXPECT_EQ(settings.giDesign, 0);
    EXPECT_FALSE(settings.gbUseSounds);
    EXPECT_EQ(settings.giTopicIndex, 0);
    EXPECT_TRUE(settings.gbSettingsLoaded);
}

TEST_F(DamagedSettings, MissingLinesReadAsZeros) {
    settings.gbHardScore = true;
    settings.giSavedTopic = 3;
    load("3\r\n1\r\n1");
    EXPECT_EQ(settings.giDesign, 3);
    EXPECT_TRUE(settings.gbUseWikipedia);
    EXPECT_FALSE(settings.gbHardScore);
    EXPECT_EQ(settings.giSavedTopic, 0);
}

TEST_F(DamagedSettings, MissingLinesSwitchNothingOffOnTheSettingsScreen) {
    settings.gbHardScore = true;
    folder.write("Quillor-Config.ini", "3\r\n1\r\n1");
    loadForSettingsScreen(settings, folder.path());
    EXPECT_TRUE(settings.gbHardScore);
    EXPECT_TRUE(settings.gbUseSounds);
}

TEST_F(DamagedSettings, FurtherLinesAreIgnored) {
    std::string bytes = "1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n2\r\n";
    for (int line = 11; line < 500; ++line)
        bytes += "99999\r\n";
    load(bytes);
    EXPECT_EQ(settings.giTopicIndex, 2);
    EXPECT_EQ(settings.giWay, kRepeat);
    EXPECT_TRUE(settings.gbSettingsLoaded);
}

TEST_F(DamagedSettings, WordsReadAsZeros) {
    settings.gbUseSounds = true;
    load("design=3\r\nyes\r\n[x]\r\n\r\n \r\n-\r\n.\r\n?\r\nTour\r\non\r\nlast\r\n");
    EXPECT_EQ(settings.giDesign, 0);
    EXPECT_FALSE(settings.gbUseSounds);
    EXPECT_EQ(settings.giWay, kManual);
    EXPECT_TRUE(settings.gbSettingsLoaded);
}

TEST_F(DamagedSettings, LinesMayEndInAnyWay) {
    load("2\r1\n1\r\n0\r0\n0\r\n1\r0\n3\r\n1\r4");
    EXPECT_EQ(settings.giDesign, 2);
    EXPECT_TRUE(settings.gbAgainstClock);
    EXPECT_EQ(settings.giWay, kAnyTopic);
    EXPECT_EQ(settings.giTopicIndex, 4);
}

TEST_F(DamagedSettings, DesignBeyondSixteenBitsEndsTheReading) {
    settings.giDesign = 2;
    load("99999\r\n1\r\n");
    EXPECT_EQ(settings.giDesign, 2);
    EXPECT_FALSE(settings.gbUseSounds);
    EXPECT_FALSE(settings.gbSettingsLoaded);
}

TEST_F(DamagedSettings, TopicBeyondSixteenBitsKeepsWhatWasReadBefore) {
    settings.giTopicIndex = settings.giSavedTopic = 1;
    load("3\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n2\r\n1\r\n40000\r\n");
    EXPECT_EQ(settings.giDesign, 3);
    EXPECT_EQ(settings.giWay, kTour);
    EXPECT_TRUE(settings.gbColorTransition);
    EXPECT_EQ(settings.giTopicIndex, 1);
    EXPECT_EQ(settings.giSavedTopic, 1);
}

TEST_F(DamagedSettings, TopicBeyondTheLibraryIsLoweredToTheLast) {
    load("\n\n\n\n\n\n\n\n\n\n12\n");
    EXPECT_EQ(settings.giTopicIndex, 4);
    EXPECT_EQ(settings.giSavedTopic, 12);
}

TEST_F(DamagedSettings, TopicBelowZeroIsTheFirst) {
    load("\n\n\n\n\n\n\n\n\n\n-5\n");
    EXPECT_EQ(settings.giTopicIndex, 0);
    EXPECT_EQ(settings.giSavedTopic, -5);
}

TEST_F(DamagedSettings, TopicOfAnEmptyLibraryIsNone) {
    settings.giTopicMax = -1;
    load("\n\n\n\n\n\n\n\n\n\n3\n");
    EXPECT_EQ(settings.giTopicIndex, -1);
}

TEST_F(DamagedSettings, AnyBytesLeaveAUsableRecord) {
    Random random(31);
    const std::string_view pieces = "0123456789-. \r\n\n\xFF\xEF\xBB\xBFx";
    for (int round = 0; round < 500; ++round) {
        std::string bytes;
        for (int i = 0; i < 60; ++i)
            bytes.push_back(pieces[static_cast<std::size_t>(random.next() * 24) % pieces.size()]);
        load(bytes);
        ASSERT_GE(settings.giTopicIndex, 0) << bytes;
        ASSERT_LE(settings.giTopicIndex, 4) << bytes;
        ASSERT_GE(settings.giWay, kManual) << bytes;
        ASSERT_LE(settings.giWay, kHiddenTopic) << bytes;
    }
}

TEST(Language, IsChosenByTheMarkerFile) {
    const testing::TempFolder folder;
    chooseLanguage(folder.path(), true);
    EXPECT_TRUE(speaksEnglish(folder.path()));
    folder.write("English.txt", "mine");
    chooseLanguage(folder.path(), true);
    EXPECT_EQ(folder.read("English.txt"), "mine");
    chooseLanguage(folder.path(), false);
    EXPECT_FALSE(folder.has("English.txt"));
    chooseLanguage(folder.path(), false);
    EXPECT_FALSE(speaksEnglish(folder.path()));
}

}  // namespace

}  // namespace quillor
