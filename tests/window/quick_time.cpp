// Makes time run faster for the program that this is loaded into (LD_PRELOAD): its
// clocks show QUILLOR_TIMES_AS_FAST times what has passed, and its waits are as many
// times shorter. The program itself is the one that players get.
#include <algorithm>
#include <cstdlib>
#include <ctime>

#include <poll.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr long long kNanoseconds = 1'000'000'000;

/// Read once, at the first call.
long long timesAsFast() {
    static const char* const asked = std::getenv("QUILLOR_TIMES_AS_FAST");
    static const long long times = asked == nullptr ? 1 : std::max(1, std::atoi(asked));
    return times;
}

long long inNanoseconds(const timespec& time) {
    return time.tv_sec * kNanoseconds + time.tv_nsec;
}

timespec fromNanoseconds(long long time) {
    return {static_cast<time_t>(time / kNanoseconds), static_cast<long>(time % kNanoseconds)};
}

timespec read(clockid_t clock) {
    timespec now{};
    syscall(SYS_clock_gettime, clock, &now);
    return now;
}

/// A reading of a clock that was right when it was asked for the first time, in nanoseconds.
template <clockid_t clock>
long long quickReading() {
    static const long long start = inNanoseconds(read(clock));
    return start + (inNanoseconds(read(clock)) - start) * timesAsFast();
}

}  // namespace

// The names under which the C library offers these; libraries loaded later find ours first.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): its headers' own
// parameters have reserved names.
extern "C" {

int clock_gettime(clockid_t clock, timespec* now) noexcept {
    if (clock == CLOCK_MONOTONIC)
        *now = fromNanoseconds(quickReading<CLOCK_MONOTONIC>());
    else if (clock == CLOCK_REALTIME)
        *now = fromNanoseconds(quickReading<CLOCK_REALTIME>());
    else
        return static_cast<int>(syscall(SYS_clock_gettime, clock, now));
    return 0;
}

int gettimeofday(timeval* now, void* /*zone*/) noexcept {
    const long long reading = quickReading<CLOCK_REALTIME>();
    *now = {static_cast<time_t>(reading / kNanoseconds),
            static_cast<suseconds_t>(reading % kNanoseconds / 1000)};
    return 0;
}

int ppoll(pollfd* files, nfds_t count, const timespec* longest, const sigset_t* signals) {
    constexpr std::size_t kKernelSignalBytes = 8;
    timespec shorter{};
    if (longest != nullptr)
        shorter = fromNanoseconds(inNanoseconds(*longest) / timesAsFast());
    return static_cast<int>(syscall(SYS_ppoll, files, count,
                                    longest == nullptr ? nullptr : &shorter, signals,
                                    kKernelSignalBytes));
}

int poll(pollfd* files, nfds_t count, int milliseconds) {
    const timespec longest = fromNanoseconds(milliseconds * (kNanoseconds / 1000));
    return ppoll(files, count, milliseconds < 0 ? nullptr : &longest, nullptr);
}
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
