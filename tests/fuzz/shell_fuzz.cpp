// What reaches the shell from outside: the command line and picture files.
#include <QGuiApplication>

#include "core/memory_disk.h"
#include "qt/command_line.h"
#include "qt/paint/picture_loader.h"
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
    if (bytes.below(2) == 0)
        parseArguments(bytes.file());
    else
        loadPicture(bytes.file());
    return 0;
}
