// Windows.
#include <windows.h>
// After windows.h, which they build on.
#include <QDesktopServices>
#include <QIcon>
#include <QPixmap>
#include <QUrl>
#include <QWidget>

#include <shellapi.h>

#include "core/files.h"
#include "qt/platform.h"
#include "qt/qt_values.h"

namespace quillor::platform {

QStringList arguments(int, char**) {
    QStringList result;
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; words && i < count; ++i)
        result << QString::fromWCharArray(words[i]);
    LocalFree(words);
    return result;
}

bool altTypesCharacters() {
    return false;
}

void openFile(const std::filesystem::path& file) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(toQt(fromPath(std::filesystem::absolute(file)))));
}

void openEncodedAddress(const QString& address) {
    QDesktopServices::openUrl(QUrl::fromEncoded(address.toLatin1()));
}

std::filesystem::path userDataFolder() {
    return toPath(fromQt(qEnvironmentVariable("APPDATA"))) / "Quillor";
}

bool showSystemAbout(QWidget* parent, const QString& title, const QString& text) {
    const HWND owner = parent ? reinterpret_cast<HWND>(parent->winId()) : nullptr;
    const HICON icon = parent ? parent->windowIcon().pixmap(32, 32).toImage().toHICON() : nullptr;
    ShellAboutW(owner, reinterpret_cast<LPCWSTR>(title.utf16()),
                reinterpret_cast<LPCWSTR>(text.utf16()), icon);
    if (icon)
        DestroyIcon(icon);
    return true;
}

}  // namespace quillor::platform
