// The folder that everything the program keeps is in.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

namespace quillor {

/// Where the program stands, and what everybody who plays with it shares.
struct Installation {
    std::filesystem::path executableFolder;
    std::filesystem::path shared;   // packs, fonts and the manual are in it
    std::filesystem::path modules;  // what the program loads while it runs
    bool systemWide = false;        // the program's own folder is not the player's
};

/// A program that finds its shared files where a system keeps them is installed for
/// the system, unless a file Portable.txt beside it, or `portable`, says otherwise.
Installation findInstallation(const std::filesystem::path& executableFolder, bool portable);

/// There can be no such folder; `what` is the system's reason.
struct FolderError : std::runtime_error {
    FolderError(std::filesystem::path where, const std::string& reason)
        : std::runtime_error(reason), folder(std::move(where)) {}
    std::filesystem::path folder;
};

/// Makes the folder if need be. Throws FolderError. It need not be writable.
std::filesystem::path useFolder(const std::filesystem::path& folder);

/// The executable's folder if it is portable and can be written to, else the user's data
/// folder, which gets a copy of the manual and, where it is new, the marker file if the game
/// is to speak English. Throws like useFolder.
std::filesystem::path findProgramFolder(const Installation& here,
                                        const std::filesystem::path& userDataFolder, bool english);

}  // namespace quillor
