// Topic files: the folder they live in, the sample topic, and loading them all.
#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "core/game_settings.h"

namespace quillor {

/// The topic folder of the record's language inside the program folder.
std::filesystem::path topicFolder(const GameSettings& settings,
                                  const std::filesystem::path& programFolder);

/// The files of a folder whose names end in ".txt" (in any case), sorted by
/// name without regard to case. Empty when the folder cannot be listed.
std::vector<std::filesystem::path> topicFiles(const std::filesystem::path& folder);

/// Writes the sample topic of the record's language, replacing it. Fails silently.
void eWriteDemoTopic(const GameSettings& settings, const std::filesystem::path& programFolder);

/// What a topic file's bytes hold.
struct ParsedTopic {
    Topic topic;           // in capitals
    int lines = 0;         // how many of its lines the file has, 0..51
    bool tooLong = false;  // there is a 52nd line, which does not fit
};
ParsedTopic parseTopic(std::string_view bytes);

/// Loads every topic file into the record. Loading ends quietly at the first
/// file that cannot be read or has a 52nd line; topics loaded before it, and
/// that file's first 51 lines, stay.
void eLoadWords(GameSettings& settings, const std::filesystem::path& programFolder);

/// The title as the player reads it: without the tag of Spanish topics.
Text topicTitle(const Topic& topic);

}  // namespace quillor
