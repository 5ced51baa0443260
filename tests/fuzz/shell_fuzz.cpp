// What reaches the shell from outside: the command line and picture files.
#include <QGuiApplication>
#include <QUrl>

#include "core/memory_disk.h"
#include "qt/command_line.h"
#include "qt/paint/picture_loader.h"
#include "qt/qt_desktop.h"
#include "qt/windows/qt_values.h"
#include "tests/fuzz/bytes.h"

namespace quillor::testing {

namespace {

void parseArguments(std::string_view line) {
    const QStringList arguments =
        QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size())).split('\n');
    for (const bool english : {false, true}) {
        const CommandLine parsed = parseCommandLine(arguments, english);
        require((parsed.action == CommandLine::Action::Refuse) == !parsed.error.isEmpty(),
                "what is refused is told");
    }
}

void openAddress(std::string_view bytes) {
    const QString sought = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    constexpr TextView kPage = u"http://find.example/search/";
    const QString address = encodedAddress(kPage, fromQt(sought));
    const QUrl url = QUrl::fromEncoded(address.toLatin1()).adjusted(QUrl::NormalizePathSegments);
    require(url.isValid() && !url.hasQuery() && !url.hasFragment() &&
                url.toString(QUrl::FullyEncoded).startsWith(toQt(kPage)),
            "an address leads to its page");
}

void loadPicture(std::string_view file) {
    jpegScans(file);
    MemoryDisk disk;
    const Place picture("/program/Pic.jpg", disk);
    disk.put(picture, file);
    try {
        loadPictureFile(picture);
    } catch (const std::runtime_error&) {
    }
}

}  // namespace

}  // namespace quillor::testing

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillor::testing;
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    static const QGuiApplication application(argc, argv);
    Bytes bytes(data, size);
    const std::size_t what = bytes.below(3);
    if (what == 0)
        parseArguments(bytes.file());
    else if (what == 1)
        openAddress(bytes.file());
    else
        loadPicture(bytes.file());
    return 0;
}
