// What is wrong with a topic, for those who write one: by the game's own reading,
// folding and cutting, so that it finds what the game will do.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "core/disk.h"
#include "core/game_settings.h"

namespace quillor {

/// A title as long as this is still shown in its full size.
inline constexpr int kTitleLength = 35;

/// The text says what was found and what the game will do about it.
struct Finding {
    int line = 1;  // of the file, from 1 on
    Text text;
    bool harmful = false;  // the game cannot play this topic, or loses others by it
};

/// What is wrong with a phrase by itself; in the order of its importance.
std::vector<Text> phraseFlaws(TextView phrase, bool english);

/// What is wrong with a topic file by itself, in the order of its lines. A topic that is
/// known to be `spanish` has to bear the mark in its title; one of which nothing is known
/// has to when it has Spanish letters.
std::vector<Finding> checkTopic(std::string_view bytes, std::optional<bool> spanish, bool english);

struct TopicReport {
    std::vector<Text> found;   // "FILE:LINE: what", files in the order given
    std::vector<Text> unread;  // what could not be read, and so was not checked

    /// 0: nothing was found, 1: something was, 2: something could not be read.
    int exitCode() const { return !unread.empty() ? 2 : found.empty() ? 0 : 1; }
};
/// Checks topic files, and those of folders, also against the others of their folder that
/// are checked with them. A folder without a topic counts as one that cannot be read.
TopicReport checkTopics(const std::vector<Place>& filesAndFolders, bool english);

}  // namespace quillor
