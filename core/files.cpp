// Reading and writing of whole files; every failure is an exception.
#include "core/files.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include "core/text_codec.h"

namespace quillor {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kChunk = 64 * 1024;
constexpr std::size_t kMostBytes = 16 * 1024 * 1024;

// Beside the file that is replaced, so that the rename stays on one disk. The
// name is short because the file's own may be as long as the system allows.
constexpr const char* kTemporaryName = "Quillor-Saving.tmp";

[[noreturn]] void fail(const char* what, const fs::path& path) {
    throw std::runtime_error(what + toUtf8(fromPath(path)));
}

std::ifstream openForReading(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error))
        fail("no file: ", path);
    std::ifstream file(path, std::ios::binary);
    if (!file)
        fail("cannot open: ", path);
    return file;
}

// Appends the next bytes of the file; false at its end.
bool readChunk(std::ifstream& file, const fs::path& path, std::string& bytes) {
    const std::size_t size = bytes.size();
    bytes.resize(size + kChunk);
    file.read(bytes.data() + size, kChunk);
    bytes.resize(size + static_cast<std::size_t>(file.gcount()));
    if (file.bad())
        fail("cannot read: ", path);
    return bytes.size() > size;
}

// Where the line that starts at `at` ends, and where the next one starts.
struct LineEnd {
    std::size_t end;
    std::size_t next;
};
LineEnd findLineEnd(std::string_view bytes, std::size_t at) {
    const std::size_t end = bytes.find_first_of("\r\n", at);
    if (end == std::string_view::npos)
        return {bytes.size(), bytes.size()};
    return {end, end + (bytes.substr(end, 2) == "\r\n" ? 2 : 1)};
}

// Whether the file holds exactly these bytes already.
bool holds(const fs::path& path, std::string_view bytes) {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(path, error);
    if (error || size != bytes.size())
        return false;
    std::ifstream file(path, std::ios::binary);
    std::string held(bytes.size(), '\0');
    file.read(held.data(), static_cast<std::streamsize>(held.size()));
    return file && held == bytes;
}

void writeAll(const fs::path& path, std::string_view bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.flush();
    if (!file)
        fail("cannot write: ", path);
    file.close();
    if (!file)
        fail("cannot write: ", path);
}

// A rename would pay no heed to a file's own protection.
void checkReplaceable(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status))
        return;
    if (!fs::is_regular_file(status))
        fail("no file: ", path);
    if ((status.permissions() & fs::perms::owner_write) == fs::perms::none)
        fail("read-only: ", path);
}

}  // namespace

bool eFileExists(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

std::string readFile(const fs::path& path) {
    std::ifstream file = openForReading(path);
    std::string bytes;
    while (readChunk(file, path, bytes)) {
    }
    return bytes;
}

std::string readFileStart(const fs::path& path, std::size_t lines) {
    std::ifstream file = openForReading(path);
    std::string bytes;
    // A line end has two bytes at most, so this many surely end the lines and one more.
    const std::size_t enough = 2 * (lines + 1);
    for (std::size_t found = 0, from = 0; found < enough; from = bytes.size()) {
        if (!readChunk(file, path, bytes))
            break;
        if (bytes.size() > kMostBytes)
            fail("too large: ", path);
        found += static_cast<std::size_t>(
            std::count_if(bytes.begin() + static_cast<std::ptrdiff_t>(from), bytes.end(),
                          [](char byte) { return byte == '\r' || byte == '\n'; }));
    }
    return bytes;
}

SplitLines splitLines(std::string_view bytes, std::size_t most) {
    std::vector<LineEnd> ends;
    std::size_t next = 0;
    while (next < bytes.size() && ends.size() < most) {
        ends.push_back(findLineEnd(bytes, next));
        next = ends.back().next;
    }
    // One decoding for all, for the encoding shows in the text as a whole.
    SplitLines split;
    split.more = next < bytes.size();
    const Text text = decodeText(bytes.substr(0, next));
    std::size_t from = 0;
    for (const LineEnd& line : ends) {
        const std::size_t end = std::min(text.find_first_of(u"\r\n", from), text.size());
        split.lines.push_back(text.substr(from, end - from));
        from = end + (line.next - line.end);
    }
    return split;
}

std::vector<Text> readLines(const fs::path& path, std::size_t most) {
    return splitLines(readFileStart(path, most), most).lines;
}

void writeFile(const fs::path& path, std::string_view bytes) {
    // Each new game saves the settings, most often as they are.
    if (holds(path, bytes))
        return;
    checkReplaceable(path);
    std::error_code error;
    const fs::path behindLink = fs::canonical(path, error);
    const fs::path target = error ? path : behindLink;
    const fs::path temporary = target.parent_path() / kTemporaryName;
    // What a write that was broken off left is not written into: it may be a link.
    fs::remove(temporary, error);
    try {
        writeAll(temporary, bytes);
        fs::rename(temporary, target);
    } catch (const std::exception&) {
        fs::remove(temporary, error);
        throw;
    }
}

void writeLines(const fs::path& path, const std::vector<Text>& lines) {
    Text text;
    for (const Text& line : lines)
        text.append(line).append(u"\r\n");
    writeFile(path, encodeText(text));
}

fs::path toPath(TextView text) {
    const std::string bytes = toUtf8(text);
    return fs::path(std::u8string(bytes.begin(), bytes.end()));
}

Text fromPath(const fs::path& path) {
    const std::u8string bytes = path.u8string();
    return fromUtf8(std::string(bytes.begin(), bytes.end()));
}

}  // namespace quillor
