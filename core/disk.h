// The disk as the program uses it: few operations, each of which may fail.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace quillor {

/// A regular file that is read from its start to its end.
class FileReader {
  public:
    virtual ~FileReader() = default;
    /// Fills the front of `bytes` with what comes next and returns how many
    /// bytes that are: 0 at the end of the file. Throws std::runtime_error.
    virtual std::size_t read(std::span<char> bytes) = 0;
};

/// A file in the making. Nobody takes it for abandoned before it is destroyed,
/// not even when it has been closed and has another name already.
class FileWriter {
  public:
    virtual ~FileWriter() = default;
    // Each throws std::runtime_error.
    virtual void write(std::string_view bytes) = 0;
    virtual void flush() = 0;  // returns when what was written outlives a power cut
    virtual void close() = 0;
};

/// What is here is the standard library's and works on every system: it flushes
/// no further than to the system, and knows nothing of other running copies. A
/// system's own disk overrides what it can do better, a test what is to fail.
///
/// Unless it says otherwise, an operation throws std::runtime_error when it
/// fails, and follows links.
class Disk {
  public:
    virtual ~Disk() = default;

    enum class Kind { Nothing, File, Folder, Other };  // File: a regular one
    struct Found {
        Kind kind = Kind::Nothing;
        bool readOnly = false;
    };
    /// What stands at a path. Throws when that cannot be found out.
    virtual Found look(const std::filesystem::path& path) const;

    struct Entry {
        std::filesystem::path name;  // without its folder
        Kind kind = Kind::Other;     // Other also where it cannot be found out
    };
    /// All that a folder holds, in no order. Throws when not all can be listed.
    virtual std::vector<Entry> list(const std::filesystem::path& folder) const;

    /// Opens a regular file and nothing else; never waits for another program.
    virtual std::unique_ptr<FileReader> open(const std::filesystem::path& file) const;

    /// Makes a file that was not there; null when something stands there, be it
    /// a link to nothing.
    virtual std::unique_ptr<FileWriter> create(const std::filesystem::path& file);

    /// Gives one file what another one permits, as far as this user may.
    virtual void copyPermissions(const std::filesystem::path& from,
                                 const std::filesystem::path& to);

    /// The path behind all links; the path itself where it leads to nothing.
    virtual std::filesystem::path behindLinks(const std::filesystem::path& path) const;

    /// Gives a file a new name in one step, in place of a file that bears it.
    virtual void replace(const std::filesystem::path& from, const std::filesystem::path& to);
    /// The same, but false, and nothing done, when something bears that name.
    virtual bool moveToNew(const std::filesystem::path& from, const std::filesystem::path& to);

    /// Nothing to remove is no error.
    virtual void remove(const std::filesystem::path& file);
    /// Removes a file, or a link, that no living FileWriter of any running copy
    /// has made; in doubt it stays.
    virtual void removeAbandoned(const std::filesystem::path& file);

    virtual void makeFolder(const std::filesystem::path& folder);
    /// Returns when the names in a folder outlive a power cut.
    virtual void flushFolder(const std::filesystem::path& folder);
};

/// The disk by the standard library alone.
Disk& standardDisk();

/// A file or a folder: a path, and the disk that it is on. A path alone is on
/// the standard disk.
class Place {
  public:
    Place(std::filesystem::path where, Disk& disk = standardDisk())
        : path_(std::move(where)), disk_(&disk) {}

    const std::filesystem::path& path() const { return path_; }
    Disk& disk() const { return *disk_; }
    operator const std::filesystem::path&() const { return path_; }
    Place operator/(const std::filesystem::path& name) const { return {path_ / name, *disk_}; }

  private:
    std::filesystem::path path_;
    Disk* disk_;
};

}  // namespace quillor
