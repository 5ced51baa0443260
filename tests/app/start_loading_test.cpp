// What the start screen prepares while it loads: the sample topic, the colour file, the
// palette.
#include <algorithm>
#include <chrono>

#include "core/settings_file.h"
#include "tests/app/app_fixture.h"

namespace quillor::testing {
namespace {

class StartLoading : public AppTest {};

constexpr const char* kFirstRun = "0\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n";

TEST_F(StartLoading, OfAFirstRunLeavesSettingsAndASampleTopic) {
    start();
    EXPECT_EQ(folder.read("Quillor-Config.ini"), kFirstRun);
    EXPECT_TRUE(folder.read("Temas/DEMO.txt").starts_with("FRASES DE MUESTRA [espa\361ol]\r\n"));
    EXPECT_FALSE(folder.has("Topics"));
}

TEST_F(StartLoading, OfAFirstRunSwitchesSoundsAndFirstLetterOn) {
    start();
    EXPECT_TRUE(settings().gbUseSounds);
    EXPECT_TRUE(settings().gbFirstLetter);
    EXPECT_TRUE(settings().gbSettingsLoaded);
    EXPECT_FALSE(settings().gbHardScore);
}

TEST_F(StartLoading, LeavesSettingsThatAreThereAndUnread) {
    folder.write("Quillor-Config.ini", "3\r\n1\r\n");
    start();
    EXPECT_EQ(folder.read("Quillor-Config.ini"), "3\r\n1\r\n");
    EXPECT_EQ(settings().giDesign, 0);
    EXPECT_FALSE(settings().gbUseSounds);
    EXPECT_FALSE(settings().gbSettingsLoaded);
}

TEST_F(StartLoading, ChoosesEnglishByTheMarker) {
    folder.write("English.txt", "");
    start();
    EXPECT_TRUE(settings().gbEnglish);
    EXPECT_TRUE(folder.read("Topics/DEMO.txt").starts_with("SAMPLE PHRASES\r\n"));
    EXPECT_FALSE(folder.has("Temas"));
}

TEST_F(StartLoading, ChoosesEnglishByAMarkerFolderToo) {
    std::filesystem::create_directory(folder / "English.txt");
    start();
    EXPECT_TRUE(settings().gbEnglish);
}

TEST_F(StartLoading, KeepsTheLanguageWhenTheMarkerGoesDuringTheRun) {
    folder.write("English.txt", "");
    start();
    std::filesystem::remove(folder / "English.txt");
    desktop.advance(kWholeLine);
    EXPECT_EQ(as<frmMenu>(ScreenId::Menu).lblWelcome.caption, u"START");
}

TEST_F(StartLoading, LoadsTheSampleTopic) {
    start();
    EXPECT_EQ(settings().giTopicMax, 0);
    EXPECT_EQ(settings().gaTopicLines.at(0)[50], u"BERRO");
}

TEST_F(StartLoading, WritesTheSampleIntoAnEmptyTopicFolder) {
    std::filesystem::create_directory(folder / "Temas");
    start();
    EXPECT_TRUE(folder.has("Temas/DEMO.txt"));
    EXPECT_EQ(settings().giTopicMax, 0);
}

TEST_F(StartLoading, WritesNoSampleBesideOtherTopics) {
    folder.write("Temas/mine.TXT", "Mine\r\none\r\ntwo\r\n");
    start();
    EXPECT_FALSE(folder.has("Temas/DEMO.txt"));
    EXPECT_EQ(settings().gaTopicLines.at(0)[0], u"MINE");
}

TEST_F(StartLoading, WritesNoSampleWhereTheFolderCannotBeListed) {
    std::filesystem::create_directory(folder / "Temas");
    disk.breakDown(FaultyDisk::Operation::List);
    start();
    EXPECT_TRUE(std::filesystem::is_empty(folder / "Temas"));
    EXPECT_EQ(settings().giTopicMax, -1);
    EXPECT_EQ(folder.read("Quillor-Config.ini"), kFirstRun);
}

TEST_F(StartLoading, KeepsThePlayersDemoWhereTheFolderCannotBeListed) {
    folder.write("Temas/DEMO.txt", "MINE\r\none\r\ntwo\r\n");
    disk.breakDown(FaultyDisk::Operation::List);
    start();
    EXPECT_EQ(folder.read("Temas/DEMO.txt"), "MINE\r\none\r\ntwo\r\n");
}

TEST_F(StartLoading, WritesTheSampleOverNothingThatIsNoTopic) {
    folder.write("Temas/DEMO.txt/inside", "kept");
    start();
    EXPECT_EQ(folder.read("Temas/DEMO.txt/inside"), "kept");
    EXPECT_EQ(settings().giTopicMax, -1);
}

TEST_F(StartLoading, KeepsSettingsThatItCannotLookFor) {
    folder.write("Temas/a.txt", "A\r\n");
    folder.write("Quillor-Config.ini", "3\r\n1\r\n");
    start();
    const auto looks = std::ranges::count(disk.asked(), FaultyDisk::Operation::Look);
    disk.breakDown(FaultyDisk::Operation::Look, static_cast<int>(looks));
    start();
    EXPECT_EQ(folder.read("Quillor-Config.ini"), "3\r\n1\r\n");
}

TEST_F(StartLoading, RemovesWhatKilledRunsHaveLeft) {
    for (const char* name :
         {"Quillor-Saving-0123456789abcdef.tmp", "Temas/Quillor-Saving-0123456789abcdef.tmp",
          "Topics/Quillor-Saving-0123456789abcdef.tmp"}) {
        folder.write(name, "half");
        std::filesystem::last_write_time(
            folder / name, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    }
    start();
    EXPECT_EQ(folder.size(), 3);  // the settings and the two topic folders
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder / "Temas"), {}), 1);
    EXPECT_TRUE(std::filesystem::is_empty(folder / "Topics"));
}

TEST_F(StartLoading, SurvivesATopicFolderThatIsAFile) {
    folder.write("Temas", "no folder");
    start();
    EXPECT_EQ(settings().giTopicMax, -1);
    EXPECT_EQ(folder.read("Quillor-Config.ini"), kFirstRun);
    desktop.advance(kWholeLine);
    EXPECT_NE(program.find(ScreenId::Menu), nullptr);
}

TEST_F(StartLoading, ClearsWhatAnEarlierGameLeft) {
    settings().giScore = 5;
    settings().gsPhrase = u"OLD";
    settings().gbAutoChoice = true;
    settings().gaTopicLines.resize(9);
    start();
    EXPECT_EQ(settings().giScore, 0);
    EXPECT_EQ(settings().gsPhrase, u"");
    EXPECT_TRUE(settings().gbAutoChoice);
    EXPECT_EQ(settings().gaTopicLines.size(), 1U);
}

TEST_F(StartLoading, ShowsThePictureOnScreenAndTitleFrame) {
    folder.write("Pic.jpg", kJpeg);
    frmStart& screen = start();
    ASSERT_NE(screen.imgBack(0).image, nullptr);
    EXPECT_EQ(screen.imgBack(1).image, screen.imgBack(0).image);
    EXPECT_EQ(screen.imgBack(1).top, -screen.frmeTitle.top);
    EXPECT_EQ(screen.imgBack(1).left, -screen.frmeTitle.left);
}

TEST_F(StartLoading, EndsAtAPictureThatIsNoneButTheScreenStillWorks) {
    folder.write("Pic.jpg", "no picture");
    frmStart& screen = start();
    EXPECT_EQ(screen.imgBack(0).image, nullptr);
    EXPECT_FALSE(folder.has("Quillor-Config.ini"));
    desktop.advance(kWholeLine);
    EXPECT_NE(program.find(ScreenId::Menu), nullptr);
}

TEST_F(StartLoading, TakesAPictureThatIsTooLargeForNone) {
    folder.write("Pic.jpg", kJpeg);
    desktop.picturesFit = false;
    frmStart& screen = start();
    EXPECT_EQ(screen.imgBack(0).image, nullptr);
    EXPECT_EQ(settings().giTopicMax, 0);
    EXPECT_EQ(folder.read("Quillor-Config.ini"), kFirstRun);
}

TEST_F(StartLoading, NamesEveryTextInTheLanguage) {
    folder.write("English.txt", "");
    frmStart& screen = start();
    EXPECT_EQ(screen.lblManual.caption,
              u"The 'Arial Rounded MT Bold' font is not installed on this PC.");
    EXPECT_EQ(screen.lblAction.caption, u"SEARCH &FONT");
    EXPECT_EQ(screen.lblEsc.toolTip, u" Close ");
}

TEST_F(StartLoading, IsInSpanishWithoutTheMarker) {
    frmStart& screen = start();
    EXPECT_EQ(screen.lblManual.caption,
              u"La fuente 'Arial Rounded MT Bold' no está instalada en la PC.");
    EXPECT_EQ(screen.lblAction.caption, u"BUSCAR &FUENTE");
    EXPECT_EQ(screen.lblEsc.toolTip, u" Cerrar ");
}

constexpr Color kDefault = rgb(20, 140, 220);

class ColorFile : public AppTest {
  protected:
    Color themeOf(std::string_view bytes) {
        folder.write("Color.txt", bytes);
        start();
        EXPECT_EQ(settings().glThemeNow, settings().glTheme);
        return settings().glTheme;
    }
};

TEST_F(ColorFile, MayBeMissing) {
    frmStart& screen = start();
    EXPECT_EQ(settings().glTheme, kDefault);
    EXPECT_EQ(screen.lnGo.color, kDefault);
    EXPECT_EQ(screen.lblSub.textColor, kDefault);
    EXPECT_EQ(screen.lblName.backColor, rgb(250, 250, 250));
}

TEST_F(ColorFile, GivesTheTheme) {
    EXPECT_EQ(themeOf("255"), rgb(255, 0, 0));
}

TEST_F(ColorFile, ColoursTheProgressLine) {
    folder.write("Color.txt", "16711680");
    EXPECT_EQ(start().lnGo.color, rgb(0, 0, 255));
}

TEST_F(ColorFile, OfWordsKeepsTheDefault) {
    EXPECT_EQ(themeOf("abc"), kDefault);
}

TEST_F(ColorFile, ThatIsEmptyKeepsTheDefault) {
    EXPECT_EQ(themeOf(""), kDefault);
}

TEST_F(ColorFile, CountsByItsLastLine) {
    EXPECT_EQ(themeOf("1\r\n2\r\n300\r\n"), 300);
}

TEST_F(ColorFile, WithALastLineOfZeroKeepsTheDefault) {
    EXPECT_EQ(themeOf("255\r\n0\r\n"), kDefault);
}

TEST_F(ColorFile, WithAnEmptyLastLineKeepsTheDefault) {
    EXPECT_EQ(themeOf("255\r\n\r\n"), kDefault);
}

TEST_F(ColorFile, IsRoundedToAWholeNumber) {
    EXPECT_EQ(themeOf("255.5"), 256);
}

TEST_F(ColorFile, BeyondALongEndsTheLoadingThere) {
    folder.write("Color.txt", "255\r\n99999999999\r\n");
    start();
    EXPECT_EQ(settings().glTheme, 255);
    EXPECT_FALSE(folder.has("Quillor-Config.ini"));
    desktop.advance(kWholeLine);
    EXPECT_NE(program.find(ScreenId::Menu), nullptr);
}

TEST_F(ColorFile, ThatIsAFolderEndsTheLoadingThere) {
    std::filesystem::create_directory(folder / "Color.txt");
    start();
    EXPECT_EQ(settings().glTheme, kDefault);
    EXPECT_FALSE(folder.has("Temas"));
}

}  // namespace

}  // namespace quillor::testing
