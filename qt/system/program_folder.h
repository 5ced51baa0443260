// The folder that everything the program keeps is in.
#pragma once

#include <filesystem>

namespace quillor {

/// Where the program stands, and what everybody who plays with it shares.
struct Installation {
    std::filesystem::path executableFolder;
    std::filesystem::path shared;  // packs, fonts and the manual are in it
    bool systemWide = false;       // the program's own folder is not the player's
};

/// A program that finds its shared files where a system keeps them is installed for
/// the system, unless a file Portable.txt beside it, or `portable`, says otherwise.
Installation findInstallation(const std::filesystem::path& executableFolder, bool portable);

/// Makes the folder if need be. Throws std::runtime_error, whose text is one
/// line for the user, when there can be no such folder. It need not be writable.
std::filesystem::path useFolder(const std::filesystem::path& folder);

/// The executable's folder if it is portable and can be written to, else the user's
/// data folder, which gets a copy of the manual. Throws like useFolder.
std::filesystem::path findProgramFolder(const Installation& here,
                                        const std::filesystem::path& userDataFolder);

}  // namespace quillor
