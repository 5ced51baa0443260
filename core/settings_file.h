// The settings file: eleven numbers, one a line, whose place gives their meaning; and the
// marker of the language.
#pragma once

#include "core/disk.h"
#include "core/game_settings.h"

namespace quillor {

/// Where the settings file is, whether there is one or not.
Place settingsFile(const Place& programFolder);

/// Rewrites the whole file from the record. Returns whether it is saved; fails silently.
bool eSaveSettings(const GameSettings& settings, const Place& programFolder);

/// The settings screen's writer, the same: but line 10, the saved topic, is left empty.
bool saveFromSettingsScreen(const GameSettings& settings, const Place& programFolder);

/// The settings screen's reader: flags are only ever switched on, line 10 is
/// not used. Ends quietly on an error; what was read before it stays.
void loadForSettingsScreen(GameSettings& settings, const Place& programFolder);

/// The game screen's reader (`eLoadData`): every line counts. The way falls
/// back to Manual unless the settings screen has been opened in this run, and
/// the topic is held within the library. Ends quietly on an error.
void loadForGameScreen(GameSettings& settings, const Place& programFolder);

/// Whether the marker file lies in the program folder that makes the game speak English.
bool speaksEnglish(const Place& folder);
/// Puts the marker there, or takes it away. Throws std::runtime_error.
void chooseLanguage(const Place& folder, bool english);

}  // namespace quillor
