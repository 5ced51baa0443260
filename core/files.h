// Whole files in and out of the program.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/types.h"

namespace quillor {

/// Whether the path names a file or a folder. Never fails; any error counts as no.
bool eFileExists(const std::filesystem::path& path);

/// The file's bytes. Throws std::runtime_error when it is no readable file.
std::string readFile(const std::filesystem::path& path);

/// Replaces the file whole or leaves it as it was: temporary file beside it,
/// flush to the disk, rename. Throws std::runtime_error.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

/// The lines of a text file, without their ends: CR LF, lone LF or lone CR. A
/// line end at the very end of the file starts no further line.
/// At most `most` lines are split off; the rest of the file is ignored.
std::vector<Text> readLines(const std::filesystem::path& path, std::size_t most);

/// The lines with CR LF after each, the last one included.
void writeLines(const std::filesystem::path& path, const std::vector<Text>& lines);

/// A path from text, and back.
std::filesystem::path toPath(TextView text);
Text fromPath(const std::filesystem::path& path);

}  // namespace quillor
