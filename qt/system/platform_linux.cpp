// Linux and the other systems of the free desktops.
#include <QDesktopServices>
#include <QProcess>
#include <QResource>
#include <QStandardPaths>
#include <QString>
#include <QUrl>
#include <cstdio>

#include <malloc.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/files.h"
#include "qt/system/platform.h"
#include "qt/windows/qt_values.h"

namespace quillor::platform {

namespace {

void handOver(const QString& target, const QUrl& url) {
    if (!QProcess::startDetached("xdg-open", {target}))
        QDesktopServices::openUrl(url);
}

}  // namespace

QStringList arguments(int argc, char** argv) {
    QStringList result;
    for (int i = 1; i < argc; ++i)
        result << QString::fromLocal8Bit(argv[i]);
    return result;
}

void print(const QString& text, bool isError) {
    std::fputs(text.toLocal8Bit().constData(), isError ? stderr : stdout);
}

// Left to itself the C library counts as large what is larger than all that was ever freed:
// after the first drawing, which is decoded to ten megabytes, no picture would be.
void giveLargeMemoryBack() {
#ifdef __GLIBC__
    mallopt(M_MMAP_THRESHOLD, 256 * 1024);
#endif
}

// A desktop gives a socket, a file or nothing.
bool isHeard() {
    struct stat found {};
    return isatty(STDERR_FILENO) == 1 ||
           (fstat(STDERR_FILENO, &found) == 0 && S_ISFIFO(found.st_mode));
}

bool altTypesCharacters() {
    return false;
}

bool tellsWhenKeysMove() {
    return true;
}

// The same on X11 and Wayland: the kernel's code and 8.
int digitOfKey(unsigned scanCode, unsigned) {
    constexpr unsigned kFirst = 10;  // of 1; 0 is the tenth
    return scanCode >= kFirst && scanCode < kFirst + 10
               ? static_cast<int>((scanCode - kFirst + 1) % 10)
               : -1;
}

void openFile(const std::filesystem::path& file) {
    const QString name = toQt(fromPath(std::filesystem::absolute(file)));
    handOver(name, QUrl::fromLocalFile(name));
}

void openEncodedAddress(const QString& address) {
    handOver(address, QUrl::fromEncoded(address.toLatin1()));
}

std::filesystem::path userDataFolder() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return toPath(fromQt(data)) / "quillor";
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
