// A file is kept when it gets its name; until then it exists in memory alone.
#include "web/page_disk.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace quillor {

namespace {

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
    std::string bytes_;
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

// Below the program's folder; empty for what nobody keeps.
std::string keptName(const std::filesystem::path& path) {
    const std::string name = path.generic_string();
    const std::string start = std::string(PageDisk::kFolder) + "/";
    return name.starts_with(start) ? name.substr(start.size()) : std::string();
}

}  // namespace

PageDisk::PageDisk() : folders_{"/", kFolder, kBrought} {}

void PageDisk::put(const Path& file, std::string bytes) {
    if (!file.has_filename()) {
        folders_.insert(file.parent_path());
        return;
    }
    for (Path folder = file.parent_path(); folders_.insert(folder).second;)
        folder = folder.parent_path();
    files_[file] = std::move(bytes);
}

Disk::Kind PageDisk::kindOf(const Path& path) const {
    if (files_.contains(path))
        return Kind::File;
    return folders_.contains(path) ? Kind::Folder : Kind::Nothing;
}

std::vector<Disk::Entry> PageDisk::list(const Path& folder) const {
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

std::unique_ptr<FileReader> PageDisk::open(const Path& file) const {
    const auto found = files_.find(file);
    if (found == files_.end())
        throw std::runtime_error("no file");
    return std::make_unique<Reader>(found->second);
}

std::unique_ptr<FileWriter> PageDisk::create(const Path& file) {
    if (kindOf(file) != Kind::Nothing)
        return nullptr;
    drafts_.insert(file);
    return std::make_unique<Writer>(files_[file]);
}

bool PageDisk::moveToNew(const Path& from, const Path& to) {
    if (kindOf(to) != Kind::Nothing)
        return false;
    move(from, to, true);
    return true;
}

void PageDisk::move(const Path& from, const Path& to, bool isNew) {
    auto file = files_.extract(from);
    if (file.empty())
        throw std::runtime_error("no file");
    const bool draft = drafts_.erase(from) > 0;
    files_.erase(to);
    file.key() = to;
    const std::string& bytes = files_.insert(std::move(file)).position->second;
    if (!keptName(to).empty() && keep)
        keep(keptName(to), bytes, isNew);
    if (!draft && !keptName(from).empty() && drop)
        drop(keptName(from));
}

void PageDisk::remove(const Path& file) {
    const bool draft = drafts_.erase(file) > 0;
    if (files_.erase(file) > 0 && !draft && !keptName(file).empty() && drop)
        drop(keptName(file));
}

void PageDisk::makeFolder(const Path& folder) {
    if (folders_.insert(folder).second && !keptName(folder).empty() && keep)
        keep(keptName(folder) + "/", {}, false);
}

}  // namespace quillor
