// The disk of a page: all files in memory, and those below the program's folder in the
// browser's own storage too, each whole or not at all.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "core/disk.h"

namespace quillor {

class PageDisk : public Disk {
  public:
    using Path = std::filesystem::path;

    /// The program's folder, and where files stand that the page has brought along.
    static constexpr const char* kFolder = "/files";
    static constexpr const char* kBrought = "/brought";

    PageDisk();

    /// Keeps a file for good; a folder where the path ends with a slash. The path is below
    /// the program's folder. `isNew`: unless another tab has made it meanwhile.
    std::function<void(const std::string& path, const std::string& bytes, bool isNew)> keep;
    std::function<void(const std::string& path)> drop;

    /// What storage holds, another tab has kept, or the page has brought along: put there
    /// without being kept anew.
    void put(const Path& file, std::string bytes);
    void forget(const Path& file) { files_.erase(file); }

    Found look(const Path& path) const override { return {kindOf(path), false}; }
    std::vector<Entry> list(const Path& folder) const override;
    std::unique_ptr<FileReader> open(const Path& file) const override;
    std::unique_ptr<FileWriter> create(const Path& file) override;
    void copyPermissions(const Path&, const Path&) override {}
    Path behindLinks(const Path& path) const override { return path; }
    void replace(const Path& from, const Path& to) override { move(from, to, false); }
    bool moveToNew(const Path& from, const Path& to) override;
    void remove(const Path& file) override;
    /// Another tab's files in the making are not seen here.
    void removeAbandoned(const Path&) override {}
    void makeFolder(const Path& folder) override;

  private:
    Kind kindOf(const Path& path) const;
    void move(const Path& from, const Path& to, bool isNew);

    std::map<Path, std::string> files_;
    std::set<Path> folders_;
    std::set<Path> drafts_;  // in the making: nobody keeps them
};

}  // namespace quillor
