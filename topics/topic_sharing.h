// Topics that others have written: dropped on a screen, or named on the command line.
#pragma once

#include <filesystem>
#include <vector>

#include "app/program.h"

namespace quillor {

/// Checks topic files and copies them into the topic folder of the interface's language.
/// Boxes say what is wrong with them, and ask before one that the game has is replaced.
/// Returns whether there is something new and the player wants the game restarted for it.
bool takeTopics(Program& program, const std::vector<std::filesystem::path>& files);

}  // namespace quillor
