// Topic files: the folder they live in, what they may be called, the sample topic, and
// loading them all.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "core/disk.h"
#include "core/game_settings.h"
#include "core/types.h"

namespace quillor {

/// More bytes than any topic file has that the program takes in or lays out.
inline constexpr std::size_t kMostTopicBytes = 1'000'000;

/// The topic folder of the record's language inside the program folder.
Place topicFolder(const GameSettings& settings, const Place& programFolder);

/// The files of a folder whose names end in ".txt" (in any case), sorted by
/// name without regard to case. Throws std::runtime_error when the folder
/// cannot be listed: that says nothing of what it holds.
std::vector<Place> topicFiles(const Place& folder);

/// Writes the sample topic of the record's language, over no file that is there.
/// Returns whether it, or that file, is there; fails silently.
bool eWriteDemoTopic(const GameSettings& settings, const Place& programFolder);

/// Copies the topics that come with the program, `packs`/Temas and `packs`/Topics, into
/// the folders of those names in the program folder. Each is laid out once: what the
/// player has made of it, or that it was removed, stays so, and a topic of that name that
/// was there before. Which were laid out stands in a file of the program folder. Returns
/// whether all are there that should be; what fails does so silently.
bool layOutTopics(const Place& packs, const Place& programFolder);

/// What a topic file's bytes hold.
struct ParsedTopic {
    Topic topic;           // in capitals
    int lines = 0;         // how many of its lines the file has, 0..51
    bool tooLong = false;  // there is a 52nd line, which does not fit
};
/// Never fails; what follows the 51st line is not looked at.
ParsedTopic parseTopic(std::string_view bytes);

/// Loads every topic file into the record, of more than 32,768 files the first.
/// Loading ends quietly at the first file that cannot be read or has a 52nd
/// line; topics loaded before it, and that file's first 51 lines, stay. There
/// are no topics when the folder cannot be listed.
void eLoadWords(GameSettings& settings, const Place& programFolder);

/// The title as the player reads it: without the tag of Spanish topics.
Text topicTitle(const Topic& topic);

/// With fewer phrases than these no topic can be played.
inline constexpr int kFewestPhrases = 2;

/// How many phrases can be dealt: those from the first slot on, up to the first gap.
int countPhrases(const Topic& topic);

/// Whether a sign can be in no file's name on one system or another.
bool isForbiddenInNames(char16_t sign);

/// The name without those signs. With ".txt" behind it every system takes it,
/// unless it is empty or a reserved one.
Text withoutForbidden(TextView name);

/// The name with "_" behind the word that Windows reserves for a device, if it
/// is one: "CON" and "CON.1" become "CON_" and "CON_.1". Any other is unchanged.
Text besideDevices(TextView name);

}  // namespace quillor
