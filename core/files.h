// Whole files in and out of the program, and what their names and lines are as text.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/disk.h"
#include "core/types.h"

namespace quillor {

/// Whether the path names a file or a folder. Never fails; any error counts as no.
bool eFileExists(const Place& place);
/// Whether it names a regular file; the same of errors.
bool isFile(const Place& place);

/// A file's bytes; nothing when it has more than `most`. Throws
/// std::runtime_error when it is no readable file.
std::optional<std::string> readFile(const Place& file, std::size_t most);

/// The start of a text file, however large it is: all bytes of its first `lines`
/// lines and at least one more where there are more. Throws std::runtime_error
/// when it is no readable file or those lines take more than 16 MiB.
std::string readFileStart(const Place& file, std::size_t lines);

/// Replaces the file whole or leaves it as it was, whatever happens meanwhile: a
/// temporary file beside it is written, flushed and given its name. It keeps
/// its permissions; a file that holds these bytes already is left alone. Throws
/// std::runtime_error; a folder or a read-only file is not replaced.
void writeFile(const Place& file, std::string_view bytes);

/// Writes a file that is not there yet. When there is anything of that name, be it a
/// folder or a link to nothing, that stays as it is. Throws as writeFile does.
void writeNewFile(const Place& file, std::string_view bytes);

/// Removes the temporary files in a folder that killed runs have left there.
/// Says nothing of those that it cannot remove.
void removeLeftovers(const Place& folder);

/// The lines of a text, without their ends: CR LF, lone LF or lone CR. A line
/// end at the very end starts no further line.
struct SplitLines {
    std::vector<Text> lines;  // at most as many as asked for
    bool more = false;        // there was a further line
};
/// Splits bytes and decodes what is kept; the rest is not looked at.
SplitLines splitLines(std::string_view bytes, std::size_t most);

/// The first lines of a text file, at most `most`. Throws as readFileStart does.
std::vector<Text> readLines(const Place& file, std::size_t most);

/// The lines with CR LF after each, the last one included. Throws as writeFile does.
void writeLines(const Place& file, const std::vector<Text>& lines);
/// The same into a new file, as writeNewFile does.
void writeNewLines(const Place& file, const std::vector<Text>& lines);

/// A path from text, and back. Bytes of a path that are no text become U+FFFD.
std::filesystem::path toPath(TextView text);
Text fromPath(const std::filesystem::path& path);

/// A temporary file that becomes a saved one, or goes. It stands in the folder of the
/// file that it is to become, so that its new name is given on one disk, in one step.
class Draft {
  public:
    /// An empty file, which is no other running copy's. Throws
    /// std::runtime_error when none can be made in that folder.
    explicit Draft(Place folder);
    /// Removes the file unless it was given its name.
    ~Draft();
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    const std::filesystem::path& path() const { return path_; }

    /// Writes, flushes and closes the file. Throws std::runtime_error.
    void fill(std::string_view bytes);
    /// Gives it its name, in place of the file that bears it. Throws std::runtime_error.
    void become(const std::filesystem::path& file);
    /// The same, unless something has that name already.
    void becomeNew(const std::filesystem::path& file);

    /// Whether a file's name is one that a draft bears.
    static bool isItsName(const std::filesystem::path& name);

  private:
    void settle();  // it is a draft no more

    Place folder_;
    std::filesystem::path path_;
    std::unique_ptr<FileWriter> writer_;
    bool settled_ = false;
};

}  // namespace quillor
