// A disk that exists in memory alone: a page's in a browser, and that of a test or a
// measurement whose subject is not the disk.
#pragma once

#include <map>
#include <set>
#include <string>

#include "core/disk.h"

namespace quillor {

class MemoryDisk : public Disk {
  public:
    using Path = std::filesystem::path;

    /// Writes a file byte for byte, making the folders it stands in.
    void put(const Path& file, std::string_view bytes);
    /// Of a file that is there; std::out_of_range otherwise.
    const std::string& content(const Path& file) const { return files_.at(file); }

    Found look(const Path& path) const override { return {kindOf(path), false}; }
    std::vector<Entry> list(const Path& folder) const override;
    std::unique_ptr<FileReader> open(const Path& file) const override;
    std::unique_ptr<FileWriter> create(const Path& file) override;
    void copyPermissions(const Path&, const Path&) override {}
    Path behindLinks(const Path& path) const override { return path; }
    void replace(const Path& from, const Path& to) override;
    bool moveToNew(const Path& from, const Path& to) override;
    void remove(const Path& file) override { files_.erase(file); }
    /// Nobody else makes files here, so none is abandoned.
    void removeAbandoned(const Path&) override {}
    void makeFolder(const Path& folder) override { folders_.insert(folder); }

  private:
    Kind kindOf(const Path& path) const;

    std::map<Path, std::string> files_;
    std::set<Path> folders_;
};

}  // namespace quillor
