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

/// The start of a text file, however large it is: all bytes of its first `lines`
/// lines and at least one more where there are more. Throws std::runtime_error
/// when it is no readable file or those lines take more than 16 MiB.
std::string readFileStart(const std::filesystem::path& path, std::size_t lines);

/// Replaces the file whole or leaves it as it was: temporary file beside it,
/// flush, rename. A file that holds these bytes already is left alone. Throws
/// std::runtime_error; a folder or a read-only file is not replaced.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

/// The lines of a text, without their ends: CR LF, lone LF or lone CR. A line
/// end at the very end starts no further line.
struct SplitLines {
    std::vector<Text> lines;  // at most as many as asked for
    bool more = false;        // there was a further line
};
/// Splits bytes and decodes what is kept; the rest is not looked at.
SplitLines splitLines(std::string_view bytes, std::size_t most);

/// The first lines of a text file, at most `most`. Throws as readFileStart does.
std::vector<Text> readLines(const std::filesystem::path& path, std::size_t most);

/// The lines with CR LF after each, the last one included. Throws as writeFile does.
void writeLines(const std::filesystem::path& path, const std::vector<Text>& lines);

/// A path from text, and back. Bytes of a path that are no text become U+FFFD.
std::filesystem::path toPath(TextView text);
Text fromPath(const std::filesystem::path& path);

}  // namespace quillor
