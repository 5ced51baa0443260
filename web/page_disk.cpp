// A file is kept when it gets its name; until then it exists in memory alone.
#include "web/page_disk.h"

namespace quillor {

namespace {

// Below the program's folder; empty for what nobody keeps.
std::string keptName(const std::filesystem::path& path) {
    const std::string name = path.generic_string();
    const std::string start = std::string(PageDisk::kFolder) + "/";
    return name.starts_with(start) ? name.substr(start.size()) : std::string();
}

}  // namespace

PageDisk::PageDisk() {
    for (const char* folder : {"/", kFolder, kBrought})
        MemoryDisk::makeFolder(folder);
}

void PageDisk::put(const Path& path, std::string_view bytes) {
    if (path.has_filename())
        MemoryDisk::put(path, bytes);
    else
        MemoryDisk::makeFolder(path.parent_path());
}

std::unique_ptr<FileWriter> PageDisk::create(const Path& file) {
    auto writer = MemoryDisk::create(file);
    if (writer)
        drafts_.insert(file);
    return writer;
}

void PageDisk::replace(const Path& from, const Path& to) {
    MemoryDisk::replace(from, to);
    tellMoved(from, to, false);
}

bool PageDisk::moveToNew(const Path& from, const Path& to) {
    if (look(to).kind != Kind::Nothing)
        return false;
    MemoryDisk::replace(from, to);
    tellMoved(from, to, true);
    return true;
}

void PageDisk::tellMoved(const Path& from, const Path& to, bool isNew) {
    const bool draft = drafts_.erase(from) > 0;
    if (!keptName(to).empty() && keep)
        keep(keptName(to), content(to), isNew);
    if (!draft && !keptName(from).empty() && drop)
        drop(keptName(from));
}

void PageDisk::remove(const Path& file) {
    const bool kept = look(file).kind == Kind::File && !drafts_.contains(file);
    drafts_.erase(file);
    MemoryDisk::remove(file);
    if (kept && !keptName(file).empty() && drop)
        drop(keptName(file));
}

void PageDisk::makeFolder(const Path& folder) {
    const bool isNew = look(folder).kind != Kind::Folder;
    MemoryDisk::makeFolder(folder);
    if (isNew && !keptName(folder).empty() && keep)
        keep(keptName(folder) + "/", {}, false);
}

}  // namespace quillor
