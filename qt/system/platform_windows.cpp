// Windows.
#include <windows.h>
// The others build on it.
#include <QWidget>
#include <memory>
#include <optional>
#include <string>

#include <shellapi.h>
#include <shlobj.h>

#include "qt/system/platform.h"

namespace quillor::platform {

namespace {

constexpr char kProgramIcon[] = "IDI_ICON1";  // its name in quillor.rc

// The text in the code page of the narrow calls; nothing when a character would
// be lost. The manifest makes that page UTF-8, but not before Windows 10, 1903.
std::optional<std::string> narrowed(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    const int size =
        WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), length, narrow.data(), size, nullptr, nullptr);
    std::wstring back(text.size(), L'\0');
    const int got = MultiByteToWideChar(CP_ACP, 0, narrow.data(), size, back.data(), length);
    if (got != length || back != text)
        return std::nullopt;
    return narrow;
}

// No verb, no parameters, no folder. What comes of it is the handler's affair.
void execute(const std::wstring& target) {
    HWND window = GetActiveWindow();
    if (const std::optional<std::string> narrow = narrowed(target))
        ShellExecuteA(window, nullptr, narrow->c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    else
        ShellExecuteW(window, nullptr, target.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

}  // namespace

QStringList arguments(int, char**) {
    QStringList result;
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; words && i < count; ++i)
        result << QString::fromWCharArray(words[i]);
    LocalFree(words);
    return result;
}

// Redirected: UTF-8 bytes. A console takes text, whatever its code page.
void print(const QString& text, bool isError) {
    HANDLE given = GetStdHandle(isError ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE);
    const DWORD kind = given ? GetFileType(given) : FILE_TYPE_UNKNOWN;
    DWORD written = 0;
    if (kind == FILE_TYPE_DISK || kind == FILE_TYPE_PIPE) {
        const QByteArray bytes = text.toUtf8();
        WriteFile(given, bytes.constData(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        return;
    }
    AttachConsole(ATTACH_PARENT_PROCESS);  // fails where it is attached already
    HANDLE console = CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_WRITE | FILE_SHARE_READ,
                                 nullptr, OPEN_EXISTING, 0, nullptr);
    if (console == INVALID_HANDLE_VALUE)
        return;
    const std::wstring wide = QString(text).replace("\n", "\r\n").toStdWString();
    WriteConsoleW(console, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
    CloseHandle(console);
}

void giveLargeMemoryBack() {}

// A console that it was started from counts: what is printed goes there.
bool isHeard() {
    const bool console = AttachConsole(ATTACH_PARENT_PROCESS) || GetConsoleWindow() != nullptr;
    if (console)
        return true;
    const DWORD kind = GetFileType(GetStdHandle(STD_ERROR_HANDLE));
    return kind == FILE_TYPE_CHAR || kind == FILE_TYPE_PIPE;
}

bool altTypesCharacters() {
    return false;
}

bool tellsWhenKeysMove() {
    return false;
}

int digitOfKey(unsigned, unsigned virtualKey) {
    return virtualKey >= '0' && virtualKey <= '9' ? static_cast<int>(virtualKey - '0') : -1;
}

void openFile(const std::filesystem::path& file) {
    execute(std::filesystem::absolute(file).make_preferred().native());
}

void openEncodedAddress(const QString& address) {
    execute(address.toStdWString());
}

std::filesystem::path userDataFolder() {
    PWSTR folder = nullptr;
    SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &folder);
    const std::unique_ptr<wchar_t, decltype(&CoTaskMemFree)> owner(folder, &CoTaskMemFree);
    return std::filesystem::path(folder ? folder : L"") / "Quillor";
}

bool showSystemAbout(QWidget* parent, const QString& title, const QString& text) {
    HWND window = parent ? reinterpret_cast<HWND>(parent->window()->winId()) : nullptr;
    HICON icon = LoadIconA(GetModuleHandleA(nullptr), kProgramIcon);
    const std::wstring wideTitle = title.toStdWString();
    const std::wstring wideText = text.toStdWString();
    const std::optional<std::string> narrowTitle = narrowed(wideTitle);
    const std::optional<std::string> narrowText = narrowed(wideText);
    if (narrowTitle && narrowText)
        ShellAboutA(window, narrowTitle->c_str(), narrowText->c_str(), icon);
    else
        ShellAboutW(window, wideTitle.c_str(), wideText.c_str(), icon);
    return true;
}

// Neither handle has to be given back: the data are part of the loaded program.
std::span<const std::byte> carriedSound(int id) {
    HRSRC place = FindResourceA(nullptr, MAKEINTRESOURCEA(id), "CUSTOM");
    HGLOBAL loaded = place ? LoadResource(nullptr, place) : nullptr;
    const void* data = loaded ? LockResource(loaded) : nullptr;
    if (!data)
        return {};
    return {static_cast<const std::byte*>(data), SizeofResource(nullptr, place)};
}

}  // namespace quillor::platform
