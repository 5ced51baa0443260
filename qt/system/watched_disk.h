// The system's disk, watched: who plays is to hear of it when nothing can be saved.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <utility>

#include "core/disk.h"

namespace quillor::platform {

/// Does what another disk does. When no file can be made in the program folder itself,
/// `onLoss` is called: once, until one could be made again.
class WatchedDisk : public Disk {
  public:
    WatchedDisk(Disk& disk, std::filesystem::path folder)
        : disk_(disk), folder_(std::move(folder)) {}

    std::function<void()> onLoss;

    Found look(const std::filesystem::path& path) const override { return disk_.look(path); }
    std::vector<Entry> list(const std::filesystem::path& folder) const override {
        return disk_.list(folder);
    }
    std::unique_ptr<FileReader> open(const std::filesystem::path& file) const override {
        return disk_.open(file);
    }
    std::unique_ptr<FileWriter> create(const std::filesystem::path& file) override;
    void copyPermissions(const std::filesystem::path& from,
                         const std::filesystem::path& to) override {
        disk_.copyPermissions(from, to);
    }
    std::filesystem::path behindLinks(const std::filesystem::path& path) const override {
        return disk_.behindLinks(path);
    }
    void replace(const std::filesystem::path& from, const std::filesystem::path& to) override {
        disk_.replace(from, to);
    }
    bool moveToNew(const std::filesystem::path& from, const std::filesystem::path& to) override {
        return disk_.moveToNew(from, to);
    }
    void remove(const std::filesystem::path& file) override { disk_.remove(file); }
    void removeAbandoned(const std::filesystem::path& file) override {
        disk_.removeAbandoned(file);
    }
    void makeFolder(const std::filesystem::path& folder) override { disk_.makeFolder(folder); }
    void flushFolder(const std::filesystem::path& folder) override { disk_.flushFolder(folder); }

  private:
    Disk& disk_;
    std::filesystem::path folder_;
    bool lost_ = false;
};

// Every save begins with a file that is made.
inline std::unique_ptr<FileWriter> WatchedDisk::create(const std::filesystem::path& file) {
    const bool ours = file.parent_path() == folder_;
    try {
        std::unique_ptr<FileWriter> writer = disk_.create(file);
        lost_ = lost_ && !ours;
        return writer;
    } catch (...) {
        if (ours && !std::exchange(lost_, true) && onLoss)
            onLoss();
        throw;
    }
}

}  // namespace quillor::platform
