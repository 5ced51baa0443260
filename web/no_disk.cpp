// A page has no disk of the system's: what is asked of one fails. It stands in the place of
// the standard library's, which is a quarter of the program there.
#include <stdexcept>

#include "core/disk.h"

namespace quillor {

namespace {

using Path = std::filesystem::path;

[[noreturn]] void fail() {
    throw std::runtime_error("a page has no disk");
}

}  // namespace

Disk::Found Disk::look(const Path&) const {
    fail();
}
std::vector<Disk::Entry> Disk::list(const Path&) const {
    fail();
}
std::unique_ptr<FileReader> Disk::open(const Path&) const {
    fail();
}
std::unique_ptr<FileWriter> Disk::create(const Path&) {
    fail();
}
void Disk::copyPermissions(const Path&, const Path&) {}
Path Disk::behindLinks(const Path& path) const {
    return path;
}
void Disk::replace(const Path&, const Path&) {
    fail();
}
bool Disk::moveToNew(const Path&, const Path&) {
    fail();
}
void Disk::remove(const Path&) {
    fail();
}
void Disk::removeAbandoned(const Path&) {
    fail();
}
void Disk::makeFolder(const Path&) {
    fail();
}
void Disk::flushFolder(const Path&) {}

Disk& standardDisk() {
    static Disk disk;
    return disk;
}

}  // namespace quillor
