// Linux, macOS and their like: a lock on the folder itself, which leaves nothing behind,
// and a socket of the player's by which its holder is called.
#include <QSocketNotifier>
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "qt/system/running_copy.h"

namespace quillor::platform {

namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 3000;    // milliseconds, for an answer
constexpr int kStartingUp = 1000;  // until a copy that has the lock has its socket
constexpr int kPause = 50;
constexpr int kMostWaiting = 8;  // calls
constexpr std::size_t kMostMessageBytes = 16384;
constexpr char kAnswer = '!';

class Descriptor {
  public:
    explicit Descriptor(int number = -1) : number_(number) {}
    ~Descriptor() { reset(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }
    void reset(int number = -1) {
        if (number_ >= 0)
            ::close(number_);
        number_ = number;
    }

  private:
    int number_;
};

// Nobody else's folder: the system's for this login, or one of the user's own.
fs::path runtimeFolder() {
    if (const char* given = std::getenv("XDG_RUNTIME_DIR"); given && *given)
        return given;
    std::error_code none;
    fs::path folder = fs::temp_directory_path(none) / ("quillor-" + std::to_string(::getuid()));
    ::mkdir(folder.c_str(), S_IRWXU);
    struct stat found {};
    const bool own = ::lstat(folder.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
                     found.st_uid == ::getuid();
    return own ? folder : fs::path();
}

// A window on another display would come to a front that the player does not see.
std::string desktopName() {
    std::string name;
    for (const char* variable : {"WAYLAND_DISPLAY", "DISPLAY"})
        if (const char* value = std::getenv(variable); value && *value)
            name += std::string(value) + ' ';
    return name;
}

// By device and number, so that one folder has one name however it is written.
std::string addressFor(int folder) {
    struct stat found {};
    const fs::path home = runtimeFolder();
    if (home.empty() || ::fstat(folder, &found) != 0)
        return {};
    const std::size_t desktop = std::hash<std::string>{}(desktopName());
    return (home / ("quillor-" + std::to_string(found.st_dev) + "-" + std::to_string(found.st_ino) +
                    "-" + std::to_string(desktop)))
        .string();
}

bool fillAddress(sockaddr_un& address, const std::string& path) {
    address.sun_family = AF_UNIX;
    if (path.empty() || path.size() >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return true;
}

int newSocket() {
    const int number = ::socket(AF_UNIX, SOCK_STREAM, 0);
    if (number >= 0)
        ::fcntl(number, F_SETFD, FD_CLOEXEC);
    return number;
}

bool connectTo(Descriptor& line, const std::string& path) {
    sockaddr_un address{};
    if (!fillAddress(address, path))
        return false;
    line.reset(newSocket());
    return line && ::connect(line.number(), reinterpret_cast<const sockaddr*>(&address),
                             sizeof address) == 0;
}

bool listenAt(Descriptor& door, const std::string& path) {
    sockaddr_un address{};
    if (!fillAddress(address, path))
        return false;
    ::unlink(path.c_str());  // a killed copy's; only the holder of the lock comes here
    door.reset(newSocket());
    return door &&
           ::bind(door.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) ==
               0 &&
           ::listen(door.number(), kMostWaiting) == 0;
}

// Who listens may have gone meanwhile, which must not end the program.
void say(const Descriptor& line, const char* bytes, std::size_t size) {
#ifdef MSG_NOSIGNAL
    (void)::send(line.number(), bytes, size, MSG_NOSIGNAL);
#else
    const int on = 1;
    ::setsockopt(line.number(), SOL_SOCKET, SO_NOSIGPIPE, &on, sizeof on);
    (void)::send(line.number(), bytes, size, 0);
#endif
}

bool becomesReadable(const Descriptor& line, int patience) {
    pollfd waiting{line.number(), POLLIN, 0};
    return ::poll(&waiting, 1, patience) == 1;
}

}  // namespace

struct RunningCopy::Impl {
    Other other = Other::None;
    Descriptor lock;
    Descriptor line;  // to the other copy
    Descriptor door;  // at which this one is called
    std::string path;
    std::unique_ptr<QSocketNotifier> bell;

    void look(const fs::path& folder);
    void lookForHolder();
    void answer(const std::function<void(const std::string&)>& handler) const;
};

void RunningCopy::Impl::look(const fs::path& folder) {
    lock.reset(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!lock)
        return;
    path = addressFor(lock.number());
    if (::flock(lock.number(), LOCK_EX | LOCK_NB) == 0)
        listenAt(door, path);
    else if (errno == EWOULDBLOCK)
        lookForHolder();
}

void RunningCopy::Impl::lookForHolder() {
    other = Other::Somebody;
    for (int waited = 0; waited < kStartingUp; waited += kPause) {
        if (connectTo(line, path)) {
            other = Other::Own;
            return;
        }
        ::poll(nullptr, 0, kPause);
    }
}

void RunningCopy::Impl::answer(const std::function<void(const std::string&)>& handler) const {
    const Descriptor caller(::accept(door.number(), nullptr, nullptr));
    if (!caller)
        return;
    std::string message(kMostMessageBytes, '\0');
    const bool said = becomesReadable(caller, kPause);
    const ssize_t size = said ? ::recv(caller.number(), message.data(), message.size(), 0) : 0;
    message.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
    handler(message);
    say(caller, &kAnswer, 1);
}

RunningCopy::RunningCopy(const fs::path& folder) : impl_(std::make_unique<Impl>()) {
    impl_->look(folder);
}

RunningCopy::~RunningCopy() {
    letGo();
}

RunningCopy::Other RunningCopy::other() const {
    return impl_->other;
}

bool RunningCopy::call(const std::string& message) {
    if (!impl_->line)
        return false;
    say(impl_->line, message.data(), message.size());
    char answer = 0;
    return becomesReadable(impl_->line, kPatience) &&
           ::read(impl_->line.number(), &answer, 1) == 1 && answer == kAnswer;
}

void RunningCopy::onCall(std::function<void(const std::string&)> handler) {
    if (!impl_->door)
        return;
    impl_->bell = std::make_unique<QSocketNotifier>(impl_->door.number(), QSocketNotifier::Read);
    QObject::connect(impl_->bell.get(), &QSocketNotifier::activated,
                     [this, handler = std::move(handler)] { impl_->answer(handler); });
}

void RunningCopy::letGo() {
    impl_->bell.reset();
    if (impl_->door)
        ::unlink(impl_->path.c_str());
    impl_->door.reset();
    impl_->lock.reset();
}

}  // namespace quillor::platform
