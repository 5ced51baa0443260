// The standard library's disk.
#include "core/disk.h"

#include <chrono>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include "core/files.h"
#include "core/text_codec.h"

namespace quillor {

namespace fs = std::filesystem;

namespace {

// Who has made a temporary file cannot be asked here. A save takes far less.
constexpr std::chrono::minutes kAbandonedAfter{1};

[[noreturn]] void fail(const char* what, const fs::path& path) {
    throw std::runtime_error(what + toUtf8(fromPath(path)));
}

Disk::Kind kindOf(const fs::file_status& status) {
    if (fs::is_regular_file(status))
        return Disk::Kind::File;
    if (fs::is_directory(status))
        return Disk::Kind::Folder;
    return fs::exists(status) ? Disk::Kind::Other : Disk::Kind::Nothing;
}

class StandardReader : public FileReader {
  public:
    explicit StandardReader(fs::path path)
        : path_(std::move(path)), file_(path_, std::ios::binary) {
        if (!file_)
            fail("cannot open: ", path_);
    }
    std::size_t read(std::span<char> bytes) override {
        file_.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (file_.bad())
            fail("cannot read: ", path_);
        return static_cast<std::size_t>(file_.gcount());
    }

  private:
    fs::path path_;
    std::ifstream file_;
};

class StandardWriter : public FileWriter {
  public:
    explicit StandardWriter(fs::path path)
        : path_(std::move(path)), file_(path_, std::ios::binary) {
        check();
    }
    void write(std::string_view bytes) override {
        file_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        check();
    }
    void flush() override {
        file_.flush();
        check();
    }
    void close() override {
        file_.close();
        check();
    }

  private:
    void check() const {
        if (!file_)
            fail("cannot write: ", path_);
    }
    fs::path path_;
    std::ofstream file_;
};

}  // namespace

Disk::Found Disk::look(const fs::path& path) const {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::status_known(status))
        throw fs::filesystem_error("cannot look at", path, error);
    const bool writable = (status.permissions() & fs::perms::owner_write) != fs::perms::none;
    return {kindOf(status), fs::exists(status) && !writable};
}

std::vector<Disk::Entry> Disk::list(const fs::path& folder) const {
    std::vector<Entry> entries;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        // Most systems tell it with the name, so that nobody has to look again.
        std::error_code unknown;
        const Kind kind = entry.is_regular_file(unknown) ? Kind::File
                          : entry.is_directory(unknown)  ? Kind::Folder
                                                         : Kind::Other;
        entries.push_back({entry.path().filename(), kind});
    }
    return entries;
}

std::unique_ptr<FileReader> Disk::open(const fs::path& file) const {
    if (look(file).kind != Kind::File)
        fail("no file: ", file);
    return std::make_unique<StandardReader>(file);
}

std::unique_ptr<FileWriter> Disk::create(const fs::path& file) {
    if (fs::exists(fs::symlink_status(file)))
        return nullptr;
    return std::make_unique<StandardWriter>(file);
}

void Disk::copyPermissions(const fs::path& from, const fs::path& to) {
    fs::permissions(to, fs::status(from).permissions());
}

fs::path Disk::behindLinks(const fs::path& path) const {
    std::error_code error;
    fs::path behind = fs::canonical(path, error);
    return error ? path : behind;
}

void Disk::replace(const fs::path& from, const fs::path& to) {
    fs::rename(from, to);
}

bool Disk::moveToNew(const fs::path& from, const fs::path& to) {
    if (fs::exists(fs::symlink_status(to)))
        return false;
    fs::rename(from, to);
    return true;
}

void Disk::remove(const fs::path& file) {
    fs::remove(file);
}

void Disk::removeAbandoned(const fs::path& file) {
    if (fs::file_time_type::clock::now() - fs::last_write_time(file) > kAbandonedAfter)
        fs::remove(file);
}

void Disk::makeFolder(const fs::path& folder) {
    fs::create_directory(folder);
}

void Disk::flushFolder(const fs::path&) {}

Disk& standardDisk() {
    static Disk disk;
    return disk;
}

}  // namespace quillor
