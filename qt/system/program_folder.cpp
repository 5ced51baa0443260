// Whether a folder can be written to is found out by writing.
#include "qt/system/program_folder.h"

#include <system_error>

#include "core/files.h"
#include "core/guard.h"
#include "core/settings_file.h"
#include "qt/system/system_disk.h"

namespace quillor {

namespace {

namespace fs = std::filesystem;

constexpr const char* kManual = "Quillor-Manual.txt";
constexpr const char* kPortableMarker = "Portable.txt";
constexpr std::size_t kMostManualBytes = 1'000'000;

// Permissions do not tell on every system and file system: trying does.
bool canWriteTo(const fs::path& folder) {
    return quietly("try the folder", [&] { const Draft probe({folder, platform::systemDisk()}); });
}

bool isFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

// A newer program brings a newer manual. The copy is as old as what it was copied from.
void bringManual(const fs::path& fromFolder, const fs::path& toFolder) {
    quietly("bring the manual", [&] {
        const Place from(fromFolder / kManual, platform::systemDisk());
        const Place to(toFolder / kManual, platform::systemDisk());
        const fs::file_time_type age = fs::last_write_time(from);
        if (isFile(to) && fs::last_write_time(to) >= age)
            return;
        if (const auto bytes = readFile(from, kMostManualBytes)) {
            writeFile(to, *bytes);
            fs::last_write_time(to, age);
        }
    });
}

}  // namespace

Installation findInstallation(const fs::path& executableFolder, bool portable) {
    const fs::path shared = executableFolder / QUILLOR_SHARED_FROM_PROGRAM;
    const fs::path installed = executableFolder / QUILLOR_MODULES_FROM_PROGRAM;
    const fs::path modules = isFolder(installed) ? installed : executableFolder;
    if (!portable && isFolder(shared) && !fs::exists(executableFolder / kPortableMarker))
        return {executableFolder, shared, modules, true};
    return {executableFolder, executableFolder, modules, false};
}

fs::path useFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (!isFolder(folder)) {
        const auto notOne = std::make_error_code(std::errc::not_a_directory);
        throw FolderError(folder, (error ? error : notOne).message());
    }
    return fs::absolute(folder);
}

fs::path findProgramFolder(const Installation& here, const fs::path& userDataFolder, bool english) {
    if (!here.systemWide && canWriteTo(here.executableFolder))
        return here.executableFolder;
    const bool isNew = !fs::exists(userDataFolder);
    fs::path folder = useFolder(userDataFolder);
    if (isNew)
        quietly("choose the language", [&] {
            chooseLanguage({folder, platform::systemDisk()}, english);
        });
    bringManual(here.shared, folder);
    return folder;
}

}  // namespace quillor
