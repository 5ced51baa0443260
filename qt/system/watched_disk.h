// The system's disk, watched: who plays is to hear of it when it takes long, and when
// nothing can be saved.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/disk.h"

namespace quillor::platform {

/// Does what another disk does. When no file can be made in the program folder itself,
/// `onLoss` is called: once, until one could be made again.
class WatchedDisk : public Disk {
  public:
    using Work = std::function<void()>;

    WatchedDisk(Disk& disk, std::filesystem::path folder)
        : disk_(disk), folder_(std::move(folder)) {}

    std::function<void()> onLoss;
    /// How each operation is waited for: this does the work and returns when it is done.
    std::function<void(const Work& work)> wait = [](const Work& work) { work(); };

    Found look(const std::filesystem::path& path) const override {
        return had([&] { return disk_.look(path); });
    }
    std::vector<Entry> list(const std::filesystem::path& folder) const override {
        return had([&] { return disk_.list(folder); });
    }
    std::unique_ptr<FileReader> open(const std::filesystem::path& file) const override;
    std::unique_ptr<FileWriter> create(const std::filesystem::path& file) override;
    void copyPermissions(const std::filesystem::path& from,
                         const std::filesystem::path& to) override {
        wait([&] { disk_.copyPermissions(from, to); });
    }
    std::filesystem::path behindLinks(const std::filesystem::path& path) const override {
        return had([&] { return disk_.behindLinks(path); });
    }
    void replace(const std::filesystem::path& from, const std::filesystem::path& to) override {
        wait([&] { disk_.replace(from, to); });
    }
    bool moveToNew(const std::filesystem::path& from, const std::filesystem::path& to) override {
        return had([&] { return disk_.moveToNew(from, to); });
    }
    void remove(const std::filesystem::path& file) override {
        wait([&] { disk_.remove(file); });
    }
    void removeAbandoned(const std::filesystem::path& file) override {
        wait([&] { disk_.removeAbandoned(file); });
    }
    void makeFolder(const std::filesystem::path& folder) override {
        wait([&] { disk_.makeFolder(folder); });
    }
    void flushFolder(const std::filesystem::path& folder) override {
        wait([&] { disk_.flushFolder(folder); });
    }

  private:
    class Reader;
    class Writer;

    // What an operation returns, once it has been waited for.
    template <typename Operation>
    std::invoke_result_t<Operation> had(const Operation& operation) const {
        std::optional<std::invoke_result_t<Operation>> result;
        wait([&] { result.emplace(operation()); });
        return std::move(*result);
    }

    Disk& disk_;
    std::filesystem::path folder_;
    bool lost_ = false;
};

class WatchedDisk::Reader : public FileReader {
  public:
    Reader(const WatchedDisk& disk, std::unique_ptr<FileReader> reader)
        : disk_(disk), reader_(std::move(reader)) {}
    std::size_t read(std::span<char> bytes) override {
        return disk_.had([&] { return reader_->read(bytes); });
    }

  private:
    const WatchedDisk& disk_;
    std::unique_ptr<FileReader> reader_;
};

class WatchedDisk::Writer : public FileWriter {
  public:
    Writer(const WatchedDisk& disk, std::unique_ptr<FileWriter> writer)
        : disk_(disk), writer_(std::move(writer)) {}
    void write(std::string_view bytes) override {
        disk_.wait([&] { writer_->write(bytes); });
    }
    void flush() override {
        disk_.wait([&] { writer_->flush(); });
    }
    void close() override {
        disk_.wait([&] { writer_->close(); });
    }

  private:
    const WatchedDisk& disk_;
    std::unique_ptr<FileWriter> writer_;
};

inline std::unique_ptr<FileReader> WatchedDisk::open(const std::filesystem::path& file) const {
    return std::make_unique<Reader>(*this, had([&] { return disk_.open(file); }));
}

// Every save begins with a file that is made.
inline std::unique_ptr<FileWriter> WatchedDisk::create(const std::filesystem::path& file) {
    const bool ours = file.parent_path() == folder_;
    try {
        std::unique_ptr<FileWriter> writer = had([&] { return disk_.create(file); });
        lost_ = lost_ && !ours;
        return writer ? std::make_unique<Writer>(*this, std::move(writer)) : nullptr;
    } catch (...) {
        if (ours && !std::exchange(lost_, true) && onLoss)
            onLoss();
        throw;
    }
}

}  // namespace quillor::platform
