// Reading and writing of whole files; every failure is an exception.
#include "core/files.h"

#include <algorithm>
#include <random>
#include <stdexcept>
#include <utility>

#include "core/guard.h"
#include "core/text_codec.h"

namespace quillor {

namespace fs = std::filesystem;

namespace {

// Short, because the name of the file itself may be as long as the system allows.
constexpr TextView kStart = u"Quillor-Saving-";
constexpr TextView kEnd = u".tmp";
constexpr TextView kDigits = u"0123456789abcdef";
constexpr std::size_t kNumberLength = 16;
constexpr int kTries = 16;

// The system is asked once: that takes longer than a small file takes to write.
Text nameOfChance() {
    thread_local std::mt19937_64 chance{std::random_device{}()};
    std::uniform_int_distribution<std::size_t> digit(0, kDigits.size() - 1);
    Text name(kStart);
    for (std::size_t i = 0; i < kNumberLength; ++i)
        name += kDigits[digit(chance)];
    return name.append(kEnd);
}

}  // namespace

Draft::Draft(Place folder) : folder_(std::move(folder)) {
    for (int i = 0; i < kTries && !writer_; ++i) {
        path_ = folder_.path() / toPath(nameOfChance());
        writer_ = folder_.disk().create(path_);
    }
    if (!writer_)
        throw std::runtime_error("no temporary file in " + toUtf8(fromPath(folder_.path())));
}

Draft::~Draft() {
    if (settled_)
        return;
    quietly("remove a draft", [this] {
        writer_.reset();
        folder_.disk().remove(path_);
    });
}

void Draft::fill(std::string_view bytes) {
    writer_->write(bytes);
    writer_->flush();
    writer_->close();
}

void Draft::become(const fs::path& file) {
    folder_.disk().replace(path_, file);
    settle();
}

void Draft::becomeNew(const fs::path& file) {
    if (folder_.disk().moveToNew(path_, file))
        settle();
}

// The file is in its place: that its folder cannot be flushed does not undo it.
void Draft::settle() {
    settled_ = true;
    quietly("flush a folder", [this] { folder_.disk().flushFolder(folder_.path()); });
}

bool Draft::isItsName(const fs::path& name) {
    const Text text = fromPath(name);
    if (text.size() != kStart.size() + kNumberLength + kEnd.size())
        return false;
    const TextView number = TextView(text).substr(kStart.size(), kNumberLength);
    return text.starts_with(kStart) && text.ends_with(kEnd) &&
           number.find_first_not_of(kDigits) == TextView::npos;
}

namespace {

// Most files are small; a large one is read in larger and larger pieces.
constexpr std::size_t kFirstChunk = 4 * 1024;
constexpr std::size_t kLargestChunk = 256 * 1024;
constexpr std::size_t kMostBytes = 16 * 1024 * 1024;

[[noreturn]] void fail(const char* what, const fs::path& path) {
    throw std::runtime_error(what + toUtf8(fromPath(path)));
}

// Appends the next bytes of the file; false at its end.
bool readChunk(FileReader& file, std::string& bytes) {
    const std::size_t size = bytes.size();
    bytes.resize(size + std::clamp(size, kFirstChunk, kLargestChunk));
    bytes.resize(size + file.read(std::span(bytes).subspan(size)));
    return bytes.size() > size;
}

// Of a text's first line, in bytes or in characters. The library's search for one of several
// signs takes many times as long.
template <typename View>
std::size_t lineLength(View text) {
    const auto end = std::find_if(text.begin(), text.end(),
                                  [](auto sign) { return sign == '\r' || sign == '\n'; });
    return static_cast<std::size_t>(end - text.begin());
}

// Where the line that starts at `at` ends, and where the next one starts.
struct LineEnd {
    std::size_t end;
    std::size_t next;
};
LineEnd findLineEnd(std::string_view bytes, std::size_t at) {
    const std::size_t end = lineLength(bytes.substr(at)) + at;
    if (end == bytes.size())
        return {end, end};
    return {end, end + (bytes.substr(end, 2) == "\r\n" ? 2 : 1)};
}

// Whether the file holds exactly these bytes already.
bool holds(const Place& file, std::string_view bytes) {
    try {
        return readFile(file, bytes.size()) == bytes;
    } catch (const std::runtime_error&) {
        return false;
    }
}

// A new name would pay no heed to a file's own protection.
void checkReplaceable(const Disk::Found& found, const fs::path& path) {
    if (found.kind != Disk::Kind::Nothing && found.kind != Disk::Kind::File)
        fail("no file: ", path);
    if (found.readOnly)
        fail("read-only: ", path);
}

Place folderOf(const Place& file) {
    const fs::path folder = file.path().parent_path();
    return {folder.empty() ? fs::path(".") : folder, file.disk()};
}

std::string joined(const std::vector<Text>& lines) {
    Text text;
    for (const Text& line : lines)
        text.append(line).append(u"\r\n");
    return encodeText(text);
}

}  // namespace

bool eFileExists(const Place& place) {
    try {
        return place.disk().look(place).kind != Disk::Kind::Nothing;
    } catch (const std::runtime_error&) {
        return false;
    }
}

bool isFile(const Place& place) {
    try {
        return place.disk().look(place).kind == Disk::Kind::File;
    } catch (const std::runtime_error&) {
        return false;
    }
}

std::optional<std::string> readFile(const Place& file, std::size_t most) {
    const auto reader = file.disk().open(file);
    std::string bytes;
    while (readChunk(*reader, bytes)) {
        if (bytes.size() > most)
            return std::nullopt;
    }
    return bytes;
}

std::string readFileStart(const Place& file, std::size_t lines) {
    const auto reader = file.disk().open(file);
    std::string bytes;
    // A line end has two bytes at most, so this many surely end the lines and one more.
    const std::size_t enough = 2 * (lines + 1);
    for (std::size_t found = 0, from = 0; found < enough; from = bytes.size()) {
        if (!readChunk(*reader, bytes))
            break;
        if (bytes.size() > kMostBytes)
            fail("too large: ", file);
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
        const std::size_t length = lineLength(TextView(text).substr(from));
        split.lines.push_back(text.substr(from, length));
        from += length + (line.next - line.end);
    }
    return split;
}

std::vector<Text> readLines(const Place& file, std::size_t most) {
    return splitLines(readFileStart(file, most), most).lines;
}

void writeFile(const Place& file, std::string_view bytes) {
    // Each new game saves the settings, most often as they are.
    if (holds(file, bytes))
        return;
    Disk& disk = file.disk();
    const Disk::Found found = disk.look(file);
    checkReplaceable(found, file);
    const Place target(disk.behindLinks(file), disk);
    Draft draft(folderOf(target));
    if (found.kind == Disk::Kind::File)
        disk.copyPermissions(target, draft.path());
    draft.fill(bytes);
    draft.become(target);
}

void removeLeftovers(const Place& folder) {
    quietly("look for leftovers", [&] {
        if (folder.disk().look(folder).kind == Disk::Kind::Nothing)
            return;
        for (const Disk::Entry& entry : folder.disk().list(folder)) {
            if (entry.kind == Disk::Kind::File && Draft::isItsName(entry.name))
                quietly("remove a leftover",
                        [&] { folder.disk().removeAbandoned(folder / entry.name); });
        }
    });
}

void writeLines(const Place& file, const std::vector<Text>& lines) {
    writeFile(file, joined(lines));
}

void writeNewFile(const Place& file, std::string_view bytes) {
    Draft draft(folderOf(file));
    draft.fill(bytes);
    draft.becomeNew(file);
}

void writeNewLines(const Place& file, const std::vector<Text>& lines) {
    writeNewFile(file, joined(lines));
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
