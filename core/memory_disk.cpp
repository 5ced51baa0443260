// Two containers: what files hold, and which folders there are.
#include "core/memory_disk.h"

#include <stdexcept>
#include <utility>

namespace quillor {

namespace {

// What it reads is what stood there when it was opened.
class Reader : public FileReader {
  public:
    explicit Reader(std::string bytes) : bytes_(std::move(bytes)) {}
    std::size_t read(std::span<char> bytes) override {
        const std::size_t length =
            std::string_view(bytes_).substr(at_).copy(bytes.data(), bytes.size());
        at_ += length;
        return length;
    }

  private:
    const std::string bytes_;
    std::size_t at_ = 0;
};

class Writer : public FileWriter {
  public:
    explicit Writer(std::string& file) : file_(file) {}
    void write(std::string_view bytes) override { file_.append(bytes); }
    void flush() override {}
    void close() override {}

  private:
    std::string& file_;
};

}  // namespace

void MemoryDisk::put(const Path& file, std::string_view bytes) {
    for (Path folder = file.parent_path(); folders_.insert(folder).second;)
        folder = folder.parent_path();
    files_[file] = bytes;
}

Disk::Kind MemoryDisk::kindOf(const Path& path) const {
    if (files_.contains(path))
        return Kind::File;
    return folders_.contains(path) ? Kind::Folder : Kind::Nothing;
}

std::vector<Disk::Entry> MemoryDisk::list(const Path& folder) const {
    if (!folders_.contains(folder))
        throw std::runtime_error("no folder");
    std::vector<Entry> entries;
    const auto add = [&](const Path& path) {
        if (path.parent_path() == folder && path != folder)
            entries.push_back({path.filename(), kindOf(path)});
    };
    for (const auto& [path, bytes] : files_)
        add(path);
    for (const Path& path : folders_)
        add(path);
    return entries;
}

std::unique_ptr<FileReader> MemoryDisk::open(const Path& file) const {
    const auto found = files_.find(file);
    if (found == files_.end())
        throw std::runtime_error("no file");
    return std::make_unique<Reader>(found->second);
}

std::unique_ptr<FileWriter> MemoryDisk::create(const Path& file) {
    if (kindOf(file) != Kind::Nothing)
        return nullptr;
    return std::make_unique<Writer>(files_[file]);
}

void MemoryDisk::replace(const Path& from, const Path& to) {
    auto file = files_.extract(from);
    if (file.empty())
        throw std::runtime_error("no file");
    files_.erase(to);
    file.key() = to;
    files_.insert(std::move(file));
}

bool MemoryDisk::moveToNew(const Path& from, const Path& to) {
    if (kindOf(to) != Kind::Nothing)
        return false;
    replace(from, to);
    return true;
}

}  // namespace quillor
