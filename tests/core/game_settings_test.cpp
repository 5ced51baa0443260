// The record: what a reset clears, what survives it, and the palette.
#include "core/game_settings.h"

#include <gtest/gtest.h>

namespace quillor {
namespace {

GameSettings usedRecord() {
    GameSettings s;
    setPalette(s);
    s.gsPhrase = s.gsShownPhrase = s.gsCutPhrase = s.gsLastPhrase = s.gsTopicName = u"X";
    s.gsClassicTopic = s.gsTextResult = u"X";
    s.gbUseSounds = s.gbUseWikipedia = s.gbHiddenLetters = s.gbHardScore = true;
    s.gbInfiniteScore = s.gbAgainstClock = s.gbFirstLetter = s.gbColorTransition = true;
    s.gbEnglish = s.gbClassicMode = s.gbAnswerWritten = s.gbHintUsed = true;
    s.gbTourStarted = s.gbAutoChoice = s.gbSettingsLoaded = s.gbOptionsOpened = true;
    s.giDesign = s.giWay = s.giSavedTopic = s.giTopicMax = s.giGameState = s.giStrikes = 2;
    s.giTopicIndex = s.giTourStart = s.giLettersFound = s.giGamesPlayed = 2;
    s.giScore = s.giScoreKept = s.giScoreShown = s.giScoreStep = 2;
    s.glDesignColor = 7;
    s.gaTopicLines.resize(3);
    return s;
}

TEST(Reset, EmptiesAllTexts) {
    GameSettings s = usedRecord();
    eResetGlobalVariables(s);
    for (const Text* text : {&s.gsPhrase, &s.gsShownPhrase, &s.gsCutPhrase, &s.gsLastPhrase,
                             &s.gsTopicName, &s.gsClassicTopic, &s.gsTextResult})
        EXPECT_TRUE(text->empty());
}

TEST(Reset, SwitchesPreferencesOff) {
    GameSettings s = usedRecord();
    eResetGlobalVariables(s);
    for (const bool flag :
         {s.gbUseSounds, s.gbUseWikipedia, s.gbHiddenLetters, s.gbHardScore, s.gbInfiniteScore,
          s.gbAgainstClock, s.gbFirstLetter, s.gbColorTransition})
        EXPECT_FALSE(flag);
    EXPECT_EQ(s.giDesign, 0);
    EXPECT_EQ(s.giWay, kManual);
    EXPECT_EQ(s.giSavedTopic, 0);
}

TEST(Reset, ClearsTheGameInPlay) {
    GameSettings s = usedRecord();
    eResetGlobalVariables(s);
    for (const bool flag :
         {s.gbEnglish, s.gbClassicMode, s.gbAnswerWritten, s.gbHintUsed, s.gbTourStarted})
        EXPECT_FALSE(flag);
    for (const int number :
         {s.giGameState, s.giStrikes, s.giTopicIndex, s.giTourStart, s.giLettersFound,
          s.giGamesPlayed, s.giScore, s.giScoreKept, s.giScoreShown, s.giScoreStep})
        EXPECT_EQ(number, 0);
    EXPECT_FALSE(s.gbSettingsLoaded);
}

TEST(Reset, EmptiesTheLibrary) {
    GameSettings s = usedRecord();
    eResetGlobalVariables(s);
    EXPECT_TRUE(s.gaTopicLines.empty());
    EXPECT_EQ(s.giTopicMax, 0);
}

TEST(Reset, LeavesTheThemeBlackUntilThePaletteIsSet) {
    GameSettings s = usedRecord();
    eResetGlobalVariables(s);
    EXPECT_EQ(s.glTheme, 0);
    EXPECT_EQ(s.glDesignColor, 0);
    EXPECT_EQ(s.glThemeNow, rgb(20, 140, 220));
}

TEST(Reset, LeavesTheOtherColoursAsTheyAre) {
    GameSettings s = usedRecord();
    eResetGlobalVariables(s);
    EXPECT_EQ(s.glRed, rgb(250, 30, 30));
    EXPECT_EQ(s.glWhite, rgb(250, 250, 250));
}

TEST(Reset, LeavesAutomaticChoiceAndOpenedOptionsAsTheyAre) {
    GameSettings s = usedRecord();
    eResetGlobalVariables(s);
    EXPECT_TRUE(s.gbAutoChoice);
    EXPECT_TRUE(s.gbOptionsOpened);
}

TEST(Palette, HasItsColours) {
    GameSettings s;
    setPalette(s);
    EXPECT_EQ(s.glTheme, 14453780);
    EXPECT_EQ(s.glThemeNow, s.glTheme);
    EXPECT_EQ(s.glRed, 250 + 256 * 30 + 65536 * 30);
    EXPECT_EQ(s.glGreen, 30 + 256 * 180 + 65536 * 30);
    EXPECT_EQ(s.glYellow, 240 + 256 * 210 + 65536 * 30);
    EXPECT_EQ(s.glWhite, 250 + 256 * 250 + 65536 * 250);
    EXPECT_EQ(s.glGrey, 200 + 256 * 200 + 65536 * 200);
    EXPECT_EQ(s.glBlack, 0);
}

TEST(Colours, ComeApartIntoTheirComponents) {
    const Color color = rgb(20, 140, 220);
    EXPECT_EQ(redOf(color), 20);
    EXPECT_EQ(greenOf(color), 140);
    EXPECT_EQ(blueOf(color), 220);
}

}  // namespace
}  // namespace quillor
