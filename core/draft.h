// A temporary file that becomes a saved one, or goes.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "core/disk.h"

namespace quillor {

/// Stands in the folder of the file that it is to become, so that its new name
/// is given on one disk, in one step.
class Draft {
  public:
    /// An empty file, which is no other running copy's. Throws
    /// std::runtime_error when none can be made in that folder.
    explicit Draft(Place folder);
    /// Removes the file unless it was given its name.
    ~Draft();
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    const std::filesystem::path& path() const { return path_; }

    /// Writes, flushes and closes the file. Throws std::runtime_error.
    void fill(std::string_view bytes);
    /// Gives it its name, in place of the file that bears it. Throws std::runtime_error.
    void become(const std::filesystem::path& file);
    /// The same, unless something has that name already.
    void becomeNew(const std::filesystem::path& file);

    /// Whether a file's name is one that a draft bears.
    static bool isItsName(const std::filesystem::path& name);

  private:
    void settle();  // it is a draft no more

    Place folder_;
    std::filesystem::path path_;
    std::unique_ptr<FileWriter> writer_;
    bool settled_ = false;
};

}  // namespace quillor
