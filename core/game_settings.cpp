// The reset of the one record, and its palette.
#include "core/game_settings.h"

namespace quillor {

void eResetGlobalVariables(GameSettings& settings) {
    GameSettings& s = settings;
    s.gsPhrase = s.gsShownPhrase = s.gsCutPhrase = Text();
    s.gsLastPhrase = s.gsTopicName = Text();
    s.gsClassicTopic = s.gsTextResult = Text();
    s.gbUseSounds = s.gbUseWikipedia = s.gbHardScore = s.gbAgainstClock = false;
    s.gbFirstLetter = s.gbHiddenLetters = s.gbInfiniteScore = false;
    s.gbColorTransition = false;
    s.gbClassicMode = s.gbAnswerWritten = s.gbHintUsed = s.gbSettingsLoaded = false;
    s.gbEnglish = s.gbTourStarted = false;
    s.giDesign = 0;
    s.giWay = kManual;
    s.giGameState = kIdle;
    s.giStrikes = s.giTopicMax = 0;
    s.giLettersFound = s.giTopicIndex = 0;
    s.giSavedTopic = s.giTourStart = 0;
    s.giGamesPlayed = 0;
    s.giScore = s.giScoreKept = s.giScoreShown = s.giScoreStep = 0;
    s.glTheme = 0;
    s.glDesignColor = 0;
    s.gaTopicLines.clear();
}

void setPalette(GameSettings& settings) {
    settings.glTheme = rgb(20, 140, 220);
    settings.glThemeNow = settings.glTheme;
    settings.glRed = rgb(250, 30, 30);
    settings.glGreen = rgb(30, 180, 30);
    settings.glYellow = rgb(240, 210, 30);
    settings.glWhite = rgb(250, 250, 250);
    settings.glGrey = rgb(200, 200, 200);
    settings.glBlack = rgb(0, 0, 0);
}

}  // namespace quillor
