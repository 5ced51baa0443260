// Windows: named objects of the system, which go with the programs that hold them. One is
// known to the whole machine, the other ones to the player's session alone.
#include <windows.h>
// The others build on it.
#include <QWinEventNotifier>
#include <cstdint>
#include <string>
#include <system_error>

#include "qt/system/running_copy.h"

namespace quillor::platform {

namespace {

namespace fs = std::filesystem;

constexpr DWORD kMostMessageBytes = 16384;
constexpr DWORD kPatience = 3000;  // milliseconds, for an answer

class Handle {
  public:
    explicit Handle(HANDLE handle = nullptr) : handle_(handle) {}
    ~Handle() { reset(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    HANDLE get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }
    void reset(HANDLE handle = nullptr) {
        if (handle_)
            CloseHandle(handle_);
        handle_ = handle;
    }

  private:
    HANDLE handle_;
};

// One folder has one name however it is written; FNV-1a, for a name of fixed length.
std::wstring nameFor(const fs::path& folder) {
    std::error_code error;
    fs::path path = fs::canonical(folder, error);
    if (error)
        path = folder;
    std::wstring text = path.native();
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const wchar_t unit : text)
        hash = (hash ^ unit) * 0x100000001b3;
    return L"Quillor-" + std::to_wstring(hash);
}

}  // namespace

// What is said, in memory that both copies see; it ends with a zero.
class Words {
  public:
    explicit Words(const std::wstring& name)
        : memory_(CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                     kMostMessageBytes, name.c_str())),
          text_(static_cast<char*>(memory_ ? MapViewOfFile(memory_.get(), FILE_MAP_WRITE, 0, 0, 0)
                                           : nullptr)) {}
    ~Words() {
        if (text_)
            UnmapViewOfFile(text_);
    }
    Words(const Words&) = delete;
    Words& operator=(const Words&) = delete;

    void write(const std::string& message) {
        if (text_ && message.size() < kMostMessageBytes)
            CopyMemory(text_, message.c_str(), message.size() + 1);
    }
    std::string read() const { return text_ ? std::string(text_) : std::string(); }

  private:
    Handle memory_;
    char* text_;
};

struct RunningCopy::Impl {
    Other other = Other::None;
    Handle everywhere;
    Handle here;
    Handle call;    // set by who calls
    Handle answer;  // set by who was called
    std::unique_ptr<Words> words;
    std::unique_ptr<QWinEventNotifier> bell;
};

RunningCopy::RunningCopy(const fs::path& folder) : impl_(std::make_unique<Impl>()) {
    const std::wstring name = nameFor(folder);
    const std::wstring own = L"Local\\" + name;
    impl_->everywhere.reset(CreateMutexW(nullptr, FALSE, (L"Global\\" + name).c_str()));
    // Another user's is not to be opened.
    const DWORD global = GetLastError();
    impl_->here.reset(CreateMutexW(nullptr, FALSE, own.c_str()));
    const DWORD local = GetLastError();
    impl_->call.reset(CreateEventW(nullptr, FALSE, FALSE, (own + L"-call").c_str()));
    impl_->answer.reset(CreateEventW(nullptr, FALSE, FALSE, (own + L"-answer").c_str()));
    impl_->words = std::make_unique<Words>(own + L"-words");
    if (local == ERROR_ALREADY_EXISTS)
        impl_->other = Other::Own;
    else if (global == ERROR_ALREADY_EXISTS || global == ERROR_ACCESS_DENIED)
        impl_->other = Other::Somebody;
}

RunningCopy::~RunningCopy() = default;

RunningCopy::Other RunningCopy::other() const {
    return impl_->other;
}

bool RunningCopy::call(const std::string& message) {
    impl_->words->write(message);
    AllowSetForegroundWindow(ASFW_ANY);
    return impl_->call && SetEvent(impl_->call.get()) &&
           WaitForSingleObject(impl_->answer.get(), kPatience) == WAIT_OBJECT_0;
}

void RunningCopy::onCall(std::function<void(const std::string&)> handler) {
    if (!impl_->call)
        return;
    impl_->bell = std::make_unique<QWinEventNotifier>(impl_->call.get());
    QObject::connect(impl_->bell.get(), &QWinEventNotifier::activated,
                     [this, handler = std::move(handler)] {
                         handler(impl_->words->read());
                         SetEvent(impl_->answer.get());
                     });
}

void RunningCopy::letGo() {
    impl_->bell.reset();
    impl_->call.reset();
    impl_->words.reset();
    impl_->answer.reset();
    impl_->here.reset();
    impl_->everywhere.reset();
}

}  // namespace quillor::platform
