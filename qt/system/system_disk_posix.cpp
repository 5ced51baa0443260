// Linux, macOS and their like. Who makes a file holds a lock on it, which the
// system lets go of when its program dies, however it dies.
#include <cerrno>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "qt/system/system_disk.h"

namespace quillor::platform {

namespace fs = std::filesystem;

namespace {

constexpr mode_t kForEverybody = 0666;  // less what the user's mask takes away
constexpr mode_t kPermissions = 07777;

[[noreturn]] void fail(const char* what, const fs::path& path, int error = errno) {
    throw fs::filesystem_error(what, path, std::error_code(error, std::generic_category()));
}

// A call that a signal has interrupted is made anew.
template <typename Call>
auto again(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

class Descriptor {
  public:
    explicit Descriptor(int number = -1) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0)
            ::close(number_);
    }
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;

    int number() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }
    /// False when the system reports that what was written is lost.
    bool close() { return ::close(std::exchange(number_, -1)) == 0 || errno == EINTR; }

  private:
    int number_;
};

Descriptor opened(const fs::path& path, int flags, mode_t mode = 0) {
    return Descriptor(again([&] { return ::open(path.c_str(), flags | O_CLOEXEC, mode); }));
}

bool lock(const Descriptor& file) {
    return again([&] { return ::flock(file.number(), LOCK_EX | LOCK_NB); }) == 0;
}

bool flushed(const Descriptor& file) {
#ifdef F_FULLFSYNC  // where fsync alone does not reach the medium
    if (::fcntl(file.number(), F_FULLFSYNC) == 0)
        return true;
#endif
    return again([&] { return ::fsync(file.number()); }) == 0;
}

class PosixReader : public FileReader {
  public:
    PosixReader(fs::path path, Descriptor file) : path_(std::move(path)), file_(std::move(file)) {}

    std::size_t read(std::span<char> bytes) override {
        const ssize_t count =
            again([&] { return ::read(file_.number(), bytes.data(), bytes.size()); });
        if (count < 0)
            fail("cannot read", path_);
        return static_cast<std::size_t>(count);
    }

  private:
    fs::path path_;
    Descriptor file_;
};

class PosixWriter : public FileWriter {
  public:
    PosixWriter(fs::path path, Descriptor file)
        : path_(std::move(path)),
          keeper_(::fcntl(file.number(), F_DUPFD_CLOEXEC, 0)),
          file_(std::move(file)) {}

    void write(std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t count =
                again([&] { return ::write(file_.number(), bytes.data(), bytes.size()); });
            if (count < 0)
                fail("cannot write", path_);
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }
    void flush() override {
        if (!flushed(file_))
            fail("cannot flush", path_);
    }
    void close() override {
        if (!file_.close())
            fail("cannot close", path_);
    }

  private:
    fs::path path_;
    Descriptor keeper_;  // holds the lock on when the file has been closed
    Descriptor file_;
};

class PosixDisk : public Disk {
  public:
    std::unique_ptr<FileReader> open(const fs::path& path) const override {
        // To look first spares a device from being opened. What has come in its
        // place since then is seen once it is open, which waits for nobody.
        checkRegular(look(path).kind == Kind::File, path);
        Descriptor file = opened(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
        struct stat found {};
        if (!file || ::fstat(file.number(), &found) != 0)
            fail("cannot open", path);
        checkRegular(S_ISREG(found.st_mode), path);
        return std::make_unique<PosixReader>(path, std::move(file));
    }

    std::unique_ptr<FileWriter> create(const fs::path& path) override {
        Descriptor file = opened(path, O_WRONLY | O_CREAT | O_EXCL, kForEverybody);
        if (!file && errno == EEXIST)
            return nullptr;
        if (!file)
            fail("cannot make", path);
        // Another copy may have taken it for abandoned before it was locked.
        const bool lockedByAnother = !lock(file) && errno == EWOULDBLOCK;
        struct stat found {};
        if (lockedByAnother || (::fstat(file.number(), &found) == 0 && found.st_nlink == 0))
            return nullptr;
        return std::make_unique<PosixWriter>(path, std::move(file));
    }

    void copyPermissions(const fs::path& from, const fs::path& to) override {
        struct stat found {};
        if (::stat(from.c_str(), &found) != 0)
            fail("cannot look at", from);
        // Only root may give files away; the group may be one of the user's others.
        if (::chown(to.c_str(), found.st_uid, found.st_gid) != 0 &&
            ::chown(to.c_str(), static_cast<uid_t>(-1), found.st_gid) != 0)
            found.st_mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
        if (::chmod(to.c_str(), found.st_mode & kPermissions) != 0)
            fail("cannot change", to);
    }

    bool moveToNew(const fs::path& from, const fs::path& to) override {
        if (::link(from.c_str(), to.c_str()) == 0) {
            remove(from);
            return true;
        }
        if (errno == EEXIST)
            return false;
        return Disk::moveToNew(from, to);  // file systems without links
    }

    void removeAbandoned(const fs::path& path) override {
        const Descriptor file = opened(path, O_RDONLY | O_NONBLOCK | O_NOFOLLOW);
        if (file && lock(file))
            remove(path);
    }

    void flushFolder(const fs::path& folder) override {
        const Descriptor file = opened(folder, O_RDONLY | O_DIRECTORY);
        if (!file || !flushed(file))
            fail("cannot flush", folder);
    }

  private:
    static void checkRegular(bool regular, const fs::path& path) {
        if (!regular)
            fail("no file", path, EINVAL);
    }
};

}  // namespace

Disk& systemDisk() {
    static PosixDisk disk;
    return disk;
}

}  // namespace quillor::platform
