// Whether a folder can be written to is found out by writing.
#include "qt/system/program_folder.h"

#include <QTemporaryFile>
#include <stdexcept>
#include <system_error>

#include "core/files.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

namespace fs = std::filesystem;

// Permissions do not tell on every system and file system: trying does.
bool canWriteTo(const fs::path& folder) {
    QTemporaryFile probe(toQt(fromPath(folder / "quillor-XXXXXX")));
    return probe.open();
}

void bringManual(const fs::path& from, const fs::path& to) {
    std::error_code ignored;
    fs::copy_file(from / "Quillor-Manual.txt", to / "Quillor-Manual.txt",
                  fs::copy_options::update_existing, ignored);
}

}  // namespace

fs::path useFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (!fs::is_directory(folder)) {
        const std::string reason = error ? error.message() : "it is no folder";
        throw std::runtime_error("cannot use the folder " + folder.string() + ": " + reason);
    }
    return fs::absolute(folder);
}

fs::path findProgramFolder(const fs::path& executableFolder, const fs::path& userDataFolder) {
    if (canWriteTo(executableFolder))
        return executableFolder;
    const fs::path folder = useFolder(userDataFolder);
    bringManual(executableFolder, folder);
    return folder;
}

}  // namespace quillor
