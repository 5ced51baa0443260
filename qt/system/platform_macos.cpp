// macOS.
#include <QDesktopServices>
#include <QResource>
#include <QStandardPaths>
#include <QString>
#include <QUrl>
#include <algorithm>
#include <cstdio>
#include <iterator>

#include <sys/stat.h>
#include <unistd.h>

#include "core/files.h"
#include "qt/system/platform.h"
#include "qt/windows/qt_values.h"

namespace quillor::platform {

QStringList arguments(int argc, char** argv) {
    QStringList result;
    for (int i = 1; i < argc; ++i)
        result << QString::fromUtf8(argv[i]);
    return result;
}

void print(const QString& text, bool isError) {
    std::fputs(text.toLocal8Bit().constData(), isError ? stderr : stdout);
}

void giveLargeMemoryBack() {}

// A desktop gives a socket, a file or nothing.
bool isHeard() {
    struct stat found {};
    return isatty(STDERR_FILENO) == 1 ||
           (fstat(STDERR_FILENO, &found) == 0 && S_ISFIFO(found.st_mode));
}

bool altTypesCharacters() {
    return true;
}

bool tellsWhenKeysMove() {
    return true;
}

int digitOfKey(unsigned, unsigned virtualKey) {
    constexpr unsigned kDigitKeys[] = {29, 18, 19, 20, 21, 23, 22, 26, 28, 25};
    const auto* found = std::find(std::begin(kDigitKeys), std::end(kDigitKeys), virtualKey);
    return found == std::end(kDigitKeys) ? -1 : static_cast<int>(found - kDigitKeys);
}

void openFile(const std::filesystem::path& file) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(toQt(fromPath(std::filesystem::absolute(file)))));
}

void openEncodedAddress(const QString& address) {
    QDesktopServices::openUrl(QUrl::fromEncoded(address.toLatin1()));
}

std::filesystem::path userDataFolder() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return toPath(fromQt(data)) / "Quillor";
}

bool showSystemAbout(QWidget*, const QString&, const QString&) {
    return false;
}

std::span<const std::byte> carriedSound(int id) {
    const QResource carried(QStringLiteral(":/sounds/%1.wav").arg(id));
    return {reinterpret_cast<const std::byte*>(carried.data()),
            static_cast<std::size_t>(carried.size())};
}

}  // namespace quillor::platform
