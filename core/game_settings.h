// The one record of preferences, language, topics, game state, score and
// palette that all screens share.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/types.h"

namespace quillor {

/// Line 0 is a topic's title, lines 1..50 its phrases; all in capitals, a line
/// that the topic file does not have is empty.
inline constexpr int kTopicLines = 51;
inline constexpr int kTopicPhrases = kTopicLines - 1;
using Topic = std::array<Text, kTopicLines>;
using TopicLibrary = std::vector<Topic>;

/// Values of `giWay`: where the next phrase of an arcade game comes from.
enum SelectionWay : std::int16_t { kManual, kRepeat, kTour, kAnyTopic, kHiddenTopic };

/// Values of `giGameState`.
enum GameState : std::int16_t { kIdle, kPlaying, kDead, kWon };

inline constexpr std::int16_t kFirstScore = 1000;

/// Prefixes: gb true/false, gi 16-bit signed, gs text, gl colour, ga table.
/// There is one instance for the whole run; it is cleared by
/// `eResetGlobalVariables` each time the start screen loads.
struct GameSettings {
    // Preferences, in the order of the settings file.
    std::int16_t giDesign = 0;  // of the player's letters, 0..3
    bool gbUseSounds = false;
    bool gbUseWikipedia = false;
    bool gbHiddenLetters = false;
    bool gbHardScore = false;
    bool gbInfiniteScore = false;
    bool gbAgainstClock = false;
    bool gbFirstLetter = false;
    std::int16_t giWay = kManual;
    bool gbColorTransition = false;
    std::int16_t giSavedTopic = 0;  // the topic last dealt from, for the next run

    // Language and library.
    bool gbEnglish = false;
    TopicLibrary gaTopicLines;
    std::int16_t giTopicMax = 0;  // topic files minus one; -1 when none is loaded

    // The game in play.
    Text gsPhrase;        // the answer, folded once it has been cut for the board
    Text gsShownPhrase;   // the answer laid out in rows of 14
    Text gsTopicName;     // as shown above the board
    Text gsLastPhrase;    // never dealt twice in a row
    Text gsClassicTopic;  // offered again by the classic entry screen
    bool gbClassicMode = false;
    std::int16_t giGameState = kIdle;
    std::int16_t giStrikes = 0;    // mistakes, 0..6
    bool gbAnswerWritten = false;  // won by a typed answer with under half the letters found
    bool gbHintUsed = false;
    bool gbTourStarted = false;
    bool gbAutoChoice = false;        // the game itself picks the topic; survives the reset
    std::int16_t giTopicIndex = 0;    // the current topic, by its place in gaTopicLines
    std::int16_t giTourStart = 0;     // the topic that the tour comes back to
    std::int16_t giLettersFound = 0;  // as of the last good guess or hint, also of an earlier game
    std::int16_t giGamesPlayed = 0;   // arcade games ended since the start
    std::int16_t giScore = 0;         // as shown, 0..32767
    std::int16_t giScoreKept = 0;     // while the game screen is closed
    std::int16_t giScoreShown = 0;    // where the counting score is heading
    std::int16_t giScoreStep = 0;     // won or lost by the last game
    bool gbSettingsLoaded = false;
    bool gbOptionsOpened = false;  // survives the reset

    // Palette.
    Color glTheme = 0;
    Color glThemeNow = 0;  // as drifted by the colour transition
    Color glRed = 0;
    Color glGreen = 0;
    Color glYellow = 0;
    Color glWhite = 0;
    Color glGrey = 0;
    Color glBlack = 0;
    Color glDesignColor = 0;

    // Results of text operations.
    Text gsCutPhrase;
    Text gsTextResult;
};

/// Clears the record for a new start. The palette (but `glTheme` and
/// `glDesignColor`), `gbAutoChoice` and `gbOptionsOpened` stay as they are, so
/// palette and language are to be set after it.
void eResetGlobalVariables(GameSettings& settings);

/// Sets the palette's fixed colours and the default theme.
void setPalette(GameSettings& settings);

}  // namespace quillor
