// Makes a disk that does not answer for the program that this is loaded into (LD_PRELOAD):
// whoever opens a file or folder whose name ends with QUILLOR_HELD waits for as long as
// there is a file QUILLOR_HOLD.
#include <cstdarg>
#include <cstdlib>
#include <string_view>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

void waitWhileHeld(std::string_view path) {
    constexpr useconds_t kPause = 10'000;  // microseconds
    static const char* const held = std::getenv("QUILLOR_HELD");
    static const char* const hold = std::getenv("QUILLOR_HOLD");
    if (held == nullptr || hold == nullptr || !path.ends_with(held))
        return;
    while (::access(hold, F_OK) == 0)
        ::usleep(kPause);
}

}  // namespace

// The names under which the C library offers it; libraries loaded later find ours first.
// The names of its parameters are not for programs to use.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

int open64(const char* path, int flags, ...) {
    waitWhileHeld(path);
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return open64(path, flags, mode);
}
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
