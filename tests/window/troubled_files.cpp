// Makes a disk that gives trouble for the program that this is loaded into (LD_PRELOAD).
// Operations on what is below the folder QUILLOR_TROUBLED are counted; from QUILLOR_TROUBLE
// comes what happens to the one with the number QUILLOR_TROUBLE_AT, from 1 on:
//   kill  the program is killed before it
//   fail  it fails
//   dead  it fails, and all that follow
//   full  no operation: the disk takes so many bytes in all and no more
// QUILLOR_TROUBLE_MET names a file that is made when it has happened.
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <string_view>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::string_view asked(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string_view() : value;
}

const std::string_view kFolder = asked("QUILLOR_TROUBLED");
const std::string_view kTrouble = asked("QUILLOR_TROUBLE");
const long kAt =
    std::atol(asked("QUILLOR_TROUBLE_AT").empty() ? "0" : std::getenv("QUILLOR_TROUBLE_AT"));

std::atomic<long> operations{0};
std::atomic<long> written{0};
std::array<std::atomic<bool>, 4096> watched{};  // by descriptor

void meet() {
    if (const char* const file = std::getenv("QUILLOR_TROUBLE_MET"))
        syscall(SYS_close,
                syscall(SYS_openat, AT_FDCWD, file, O_WRONLY | O_CREAT | O_CLOEXEC, 0666));
    if (kTrouble == "kill")
        syscall(SYS_kill, getpid(), SIGKILL);
}

bool isBelow(const char* path) {
    return !kFolder.empty() && path != nullptr && std::string_view(path).starts_with(kFolder);
}

bool isWatched(int number) {
    return number >= 0 && static_cast<std::size_t>(number) < watched.size() &&
           watched[static_cast<std::size_t>(number)];
}

void watch(long number, bool on) {
    if (number >= 0 && static_cast<std::size_t>(number) < watched.size())
        watched[static_cast<std::size_t>(number)] = on;
}

// Counts one of those operations; true when it is to fail.
bool fails(bool counts) {
    if (!counts || kTrouble == "full" || kTrouble.empty())
        return false;
    const long number = ++operations;
    if (number == kAt)
        meet();
    errno = EIO;
    return number == kAt || (number > kAt && kTrouble == "dead");
}

template <typename... Arguments>
int called(bool counts, long number, Arguments... arguments) {
    return fails(counts) ? -1 : static_cast<int>(syscall(number, arguments...));
}

int opened(const char* path, int flags, mode_t mode) {
    const bool below = isBelow(path);
    const int number = called(below, SYS_openat, AT_FDCWD, path, flags, mode);
    watch(number, below);
    return number;
}

// What the C library, or another one that is loaded in its place, has under that name.
template <typename Function>
Function* original(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// The names under which the C library offers it; libraries loaded later find ours first.
// The names of its parameters are not for programs to use.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return opened(path, flags, mode);
}

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return opened(path, flags, mode);
}

ssize_t read(int number, void* bytes, size_t size) {
    return fails(isWatched(number)) ? -1 : syscall(SYS_read, number, bytes, size);
}

ssize_t write(int number, const void* bytes, size_t size) {
    if (fails(isWatched(number)))
        return -1;
    if (isWatched(number) && kTrouble == "full") {
        const long room = kAt - written;
        if (room <= 0) {
            meet();
            errno = ENOSPC;
            return -1;
        }
        size = std::min(size, static_cast<size_t>(room));
    }
    const long count = syscall(SYS_write, number, bytes, size);
    if (isWatched(number) && count > 0)
        written += count;
    return count;
}

int close(int number) {
    const bool failed = fails(isWatched(number));
    watch(number, false);
    // A close that fails has closed the file all the same.
    const long closed = syscall(SYS_close, number);
    if (failed)
        errno = EIO;
    return failed ? -1 : static_cast<int>(closed);
}

int fsync(int number) {
    return called(isWatched(number), SYS_fsync, number);
}
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"  // there is a struct of that name
int flock(int number, int operation) noexcept {
    return called(isWatched(number), SYS_flock, number, operation);
}
#pragma GCC diagnostic pop
int fstat(int number, struct stat* found) noexcept {
    return called(isWatched(number), SYS_newfstatat, number, "", found, AT_EMPTY_PATH);
}
int stat(const char* path, struct stat* found) noexcept {
    return called(isBelow(path), SYS_newfstatat, AT_FDCWD, path, found, 0);
}
int lstat(const char* path, struct stat* found) noexcept {
    return called(isBelow(path), SYS_newfstatat, AT_FDCWD, path, found, AT_SYMLINK_NOFOLLOW);
}
int rename(const char* from, const char* to) noexcept {
    return called(isBelow(from), SYS_renameat, AT_FDCWD, from, AT_FDCWD, to);
}
int link(const char* from, const char* to) noexcept {
    return called(isBelow(from), SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0);
}
int unlink(const char* path) noexcept {
    return called(isBelow(path), SYS_unlinkat, AT_FDCWD, path, 0);
}
int remove(const char* path) noexcept {
    return unlink(path);
}
int mkdir(const char* path, mode_t mode) noexcept {
    return called(isBelow(path), SYS_mkdirat, AT_FDCWD, path, mode);
}
int chmod(const char* path, mode_t mode) noexcept {
    return called(isBelow(path), SYS_fchmodat, AT_FDCWD, path, mode);
}
int chown(const char* path, uid_t owner, gid_t group) noexcept {
    return called(isBelow(path), SYS_fchownat, AT_FDCWD, path, owner, group, 0);
}

DIR* opendir(const char* path) {
    if (fails(isBelow(path)))
        return nullptr;
    DIR* const folder = original<DIR*(const char*)>("opendir")(path);
    if (folder != nullptr)
        watch(dirfd(folder), isBelow(path));
    return folder;
}

dirent* readdir(DIR* folder) {
    return fails(isWatched(dirfd(folder))) ? nullptr : original<dirent*(DIR*)>("readdir")(folder);
}
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
