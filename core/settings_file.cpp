// One table says what each line of the settings file means; both writers and
// both readers walk it.
#include "core/settings_file.h"

#include <algorithm>
#include <array>
#include <variant>
#include <vector>

#include "core/files.h"
#include "core/guard.h"
#include "core/numbers.h"

namespace quillor {

namespace {

using NumberField = std::int16_t GameSettings::*;
using FlagField = bool GameSettings::*;

constexpr std::array<std::variant<NumberField, FlagField>, 11> kLines{
    &GameSettings::giDesign,          &GameSettings::gbUseSounds,   &GameSettings::gbUseWikipedia,
    &GameSettings::gbHiddenLetters,   &GameSettings::gbHardScore,   &GameSettings::gbInfiniteScore,
    &GameSettings::gbAgainstClock,    &GameSettings::gbFirstLetter, &GameSettings::giWay,
    &GameSettings::gbColorTransition, &GameSettings::giSavedTopic,
};
constexpr std::size_t kSavedTopicLine = 10;
constexpr const char* kLanguageMarker = "English.txt";

Text written(const GameSettings& settings, std::size_t line) {
    if (const auto* flag = std::get_if<FlagField>(&kLines[line]))
        return settings.*(*flag) ? u"1" : u"0";
    return inDigits(settings.*std::get<NumberField>(kLines[line]));
}

std::vector<Text> writtenLines(const GameSettings& settings) {
    std::vector<Text> lines;
    for (std::size_t line = 0; line < kLines.size(); ++line)
        lines.push_back(written(settings, line));
    return lines;
}

enum class FlagReading { AsWritten, OnlySwitchOn };

// A line that the file does not have counts as empty.
void readInto(GameSettings& settings, const std::vector<Text>& lines, std::size_t line,
              FlagReading reading) {
    const double value = line < lines.size() ? leadingNumber(lines[line]) : 0;
    if (const auto* flag = std::get_if<FlagField>(&kLines[line])) {
        if (value > 0 || reading == FlagReading::AsWritten)
            settings.*(*flag) = value > 0;
        return;
    }
    settings.*std::get<NumberField>(kLines[line]) = toInteger(value);
    if (settings.giWay < kManual || settings.giWay > kHiddenTopic)
        settings.giWay = kManual;
}

}  // namespace

Place settingsFile(const Place& programFolder) {
    return programFolder / "Quillor-Config.ini";
}

bool eSaveSettings(const GameSettings& settings, const Place& programFolder) {
    return quietly("eSaveSettings",
                   [&] { writeLines(settingsFile(programFolder), writtenLines(settings)); });
}

bool saveFromSettingsScreen(const GameSettings& settings, const Place& programFolder) {
    return quietly("eSaveData", [&] {
        std::vector<Text> lines = writtenLines(settings);
        lines[kSavedTopicLine].clear();
        writeLines(settingsFile(programFolder), lines);
    });
}

void loadForSettingsScreen(GameSettings& settings, const Place& programFolder) {
    quietly("eLoadData", [&] {
        const std::vector<Text> lines = readLines(settingsFile(programFolder), kLines.size());
        for (std::size_t line = 0; line < kSavedTopicLine; ++line)
            readInto(settings, lines, line, FlagReading::OnlySwitchOn);
    });
}

void loadForGameScreen(GameSettings& settings, const Place& programFolder) {
    quietly("eLoadData", [&] {
        const std::vector<Text> lines = readLines(settingsFile(programFolder), kLines.size());
        for (std::size_t line = 0; line < kSavedTopicLine; ++line)
            readInto(settings, lines, line, FlagReading::AsWritten);
        if (!settings.gbOptionsOpened)
            settings.giWay = kManual;
        readInto(settings, lines, kSavedTopicLine, FlagReading::AsWritten);
        const int last = settings.giTopicMax;
        settings.giTopicIndex = static_cast<std::int16_t>(
            std::clamp<int>(settings.giSavedTopic, std::min(0, last), last));
        settings.gbSettingsLoaded = true;
    });
}

bool speaksEnglish(const Place& folder) {
    return eFileExists(folder / kLanguageMarker);
}

void chooseLanguage(const Place& folder, bool english) {
    if (english == speaksEnglish(folder))
        return;
    if (english)
        writeFile(folder / kLanguageMarker, {});
    else
        folder.disk().remove(folder / kLanguageMarker);
}

}  // namespace quillor
