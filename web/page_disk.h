// The disk of a page: all files in memory, and those below the program's folder in the
// browser's own storage too, each whole or not at all.
#pragma once

#include <functional>
#include <set>
#include <string>

#include "core/memory_disk.h"

namespace quillor {

class PageDisk : public MemoryDisk {
  public:
    /// The program's folder, and where files stand that the page has brought along.
    static constexpr const char* kFolder = "/files";
    static constexpr const char* kBrought = "/brought";

    PageDisk();

    /// Keeps a file for good; a folder where the path ends with a slash. The path is below
    /// the program's folder. `isNew`: unless another tab has made it meanwhile.
    std::function<void(const std::string& path, const std::string& bytes, bool isNew)> keep;
    std::function<void(const std::string& path)> drop;

    /// What storage holds, another tab has kept, or the page has brought along: put there
    /// without being kept anew. A folder where the path ends with a slash.
    void put(const Path& path, std::string_view bytes);
    void forget(const Path& file) { MemoryDisk::remove(file); }

    std::unique_ptr<FileWriter> create(const Path& file) override;
    void replace(const Path& from, const Path& to) override;
    bool moveToNew(const Path& from, const Path& to) override;
    void remove(const Path& file) override;
    void makeFolder(const Path& folder) override;

  private:
    void tellMoved(const Path& from, const Path& to, bool isNew);

    std::set<Path> drafts_;  // in the making: nobody keeps them
};

}  // namespace quillor
