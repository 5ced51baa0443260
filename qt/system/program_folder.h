// The folder that everything the program keeps is in.
#pragma once

#include <filesystem>

namespace quillor {

/// Makes the folder if need be. Throws std::runtime_error, whose text is one
/// line for the user, when there can be no such folder. It need not be writable.
std::filesystem::path useFolder(const std::filesystem::path& folder);

/// The executable's folder if it can be written to, else the user's data
/// folder, which gets a copy of the manual beside the executable.
/// Throws like useFolder.
std::filesystem::path findProgramFolder(const std::filesystem::path& executableFolder,
                                        const std::filesystem::path& userDataFolder);

}  // namespace quillor
