// Windows. Who makes a file keeps it open, and nobody can open it for himself
// alone meanwhile; the system closes it when its program dies.
#include <windows.h>
// The others build on it.
#include <algorithm>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "qt/system/system_disk.h"

namespace quillor::platform {

namespace fs = std::filesystem;

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::size_t kMostAtOnce = 1 << 20;
constexpr int kTries = 10;
constexpr DWORD kPause = 10;  // ms

[[noreturn]] void fail(const char* what, const fs::path& path, DWORD error = GetLastError()) {
    throw fs::filesystem_error(what, path,
                               std::error_code(static_cast<int>(error), std::system_category()));
}

class Handle {
  public:
    explicit Handle(HANDLE value) : value_(value) {}
    ~Handle() {
        if (*this)
            CloseHandle(value_);
    }
    Handle(Handle&& other) noexcept : value_(std::exchange(other.value_, INVALID_HANDLE_VALUE)) {}
    Handle& operator=(Handle&&) = delete;

    HANDLE value() const { return value_; }
    explicit operator bool() const { return value_ != INVALID_HANDLE_VALUE; }
    bool close() { return CloseHandle(std::exchange(value_, INVALID_HANDLE_VALUE)) != 0; }

  private:
    HANDLE value_;
};

Handle opened(const fs::path& path, DWORD access, DWORD share, DWORD how, DWORD flags) {
    return Handle(CreateFileW(path.c_str(), access, share, nullptr, how, flags, nullptr));
}

HANDLE secondHandle(HANDLE file) {
    HANDLE second = INVALID_HANDLE_VALUE;
    DuplicateHandle(GetCurrentProcess(), file, GetCurrentProcess(), &second, 0, FALSE,
                    DUPLICATE_SAME_ACCESS);
    return second;
}

class WindowsReader : public FileReader {
  public:
    WindowsReader(fs::path path, Handle file) : path_(std::move(path)), file_(std::move(file)) {}

    std::size_t read(std::span<char> bytes) override {
        DWORD count = 0;
        const auto most = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
        if (!ReadFile(file_.value(), bytes.data(), most, &count, nullptr))
            fail("cannot read", path_);
        return count;
    }

  private:
    fs::path path_;
    Handle file_;
};

class WindowsWriter : public FileWriter {
  public:
    WindowsWriter(fs::path path, Handle file)
        : path_(std::move(path)), keeper_(secondHandle(file.value())), file_(std::move(file)) {}

    void write(std::string_view bytes) override {
        while (!bytes.empty()) {
            DWORD count = 0;
            const auto most = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
            if (!WriteFile(file_.value(), bytes.data(), most, &count, nullptr))
                fail("cannot write", path_);
            bytes.remove_prefix(count);
        }
    }
    void flush() override {
        if (!FlushFileBuffers(file_.value()))
            fail("cannot flush", path_);
    }
    void close() override {
        if (!file_.close())
            fail("cannot close", path_);
    }

  private:
    fs::path path_;
    Handle keeper_;  // keeps the file in use when it has been closed
    Handle file_;
};

// The list of who may do what with a file; empty where the file system has none.
std::vector<std::byte> accessListOf(const fs::path& path) {
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<std::byte> list(size);
    if (list.empty() ||
        !GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, list.data(), size, &size))
        return {};
    return list;
}

class WindowsDisk : public Disk {
  public:
    std::unique_ptr<FileReader> open(const fs::path& path) const override {
        if (look(path).kind != Kind::File)
            fail("no file", path, ERROR_INVALID_NAME);
        Handle file = opened(path, GENERIC_READ, kShareAll, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
        if (!file)
            fail("cannot open", path);
        // The names of devices look like files.
        if (GetFileType(file.value()) != FILE_TYPE_DISK)
            fail("no file", path, ERROR_INVALID_NAME);
        return std::make_unique<WindowsReader>(path, std::move(file));
    }

    std::unique_ptr<FileWriter> create(const fs::path& path) override {
        Handle file = opened(path, GENERIC_WRITE, kShareAll, CREATE_NEW, FILE_ATTRIBUTE_NORMAL);
        if (!file && GetLastError() == ERROR_FILE_EXISTS)
            return nullptr;
        if (!file)
            fail("cannot make", path);
        return std::make_unique<WindowsWriter>(path, std::move(file));
    }

    void copyPermissions(const fs::path& from, const fs::path& to) override {
        std::vector<std::byte> list = accessListOf(from);
        if (!list.empty())
            SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, list.data());
        const DWORD attributes = GetFileAttributesW(from.c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES || !SetFileAttributesW(to.c_str(), attributes))
            fail("cannot change", to);
    }

    // While another copy, or a virus scanner, reads the file, it cannot be replaced.
    void replace(const fs::path& from, const fs::path& to) override {
        constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        for (int left = kTries; !MoveFileExW(from.c_str(), to.c_str(), kFlags); --left) {
            const DWORD error = GetLastError();
            if (left == 0 || (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION))
                fail("cannot replace", to, error);
            Sleep(kPause);
        }
    }

    bool moveToNew(const fs::path& from, const fs::path& to) override {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH))
            return true;
        const DWORD error = GetLastError();
        if (error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS)
            return false;
        fail("cannot make", to, error);
    }

    // For itself alone: that fails while anyone has it open.
    void removeAbandoned(const fs::path& path) override {
        opened(path, DELETE, 0, OPEN_EXISTING,
               FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT);
    }
};

}  // namespace

Disk& systemDisk() {
    static WindowsDisk disk;
    return disk;
}

}  // namespace quillor::platform
