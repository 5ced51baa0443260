// A disk that exists in memory alone, for tests whose subject is not the disk.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/disk.h"

namespace quillor::testing {

class MemoryDisk : public Disk {
  public:
    using Path = std::filesystem::path;

    /// Writes a file byte for byte, making the folders it stands in.
    void put(const Path& file, std::string_view bytes) {
        for (Path folder = file.parent_path(); folders_.insert(folder).second;)
            folder = folder.parent_path();
        files_[file] = bytes;
    }

    /// Of a file that is there.
    const std::string& content(const Path& file) const { return files_.at(file); }

    Found look(const Path& path) const override { return {kindOf(path), false}; }

    std::vector<Entry> list(const Path& folder) const override {
        if (!folders_.contains(folder))
            throw std::runtime_error("no folder");
        std::vector<Entry> entries;
        const auto add = [&](const Path& path) {
            if (path.parent_path() == folder && path != folder)
                entries.push_back({path.filename(), kindOf(path)});
        };
        for (const auto& file : files_)
            add(file.first);
        std::ranges::for_each(folders_, add);
        return entries;
    }

    std::unique_ptr<FileReader> open(const Path& file) const override {
        const auto found = files_.find(file);
        if (found == files_.end())
            throw std::runtime_error("no file");
        return std::make_unique<Reader>(found->second);
    }

    std::unique_ptr<FileWriter> create(const Path& file) override {
        if (kindOf(file) != Kind::Nothing)
            return nullptr;
        return std::make_unique<Writer>(files_[file]);
    }

    Path behindLinks(const Path& path) const override { return path; }
    void copyPermissions(const Path&, const Path&) override {}
    void removeAbandoned(const Path&) override {}
    void remove(const Path& file) override { files_.erase(file); }
    void makeFolder(const Path& folder) override { folders_.insert(folder); }

    void replace(const Path& from, const Path& to) override {
        auto file = files_.extract(from);
        files_.erase(to);
        file.key() = to;
        files_.insert(std::move(file));
    }
    bool moveToNew(const Path& from, const Path& to) override {
        if (kindOf(to) != Kind::Nothing)
            return false;
        replace(from, to);
        return true;
    }

  private:
    class Reader : public FileReader {
      public:
        explicit Reader(std::string_view bytes) : left_(bytes) {}
        std::size_t read(std::span<char> bytes) override {
            const std::size_t length = left_.copy(bytes.data(), bytes.size());
            left_.remove_prefix(length);
            return length;
        }

      private:
        std::string_view left_;
    };

    class Writer : public FileWriter {
      public:
        explicit Writer(std::string& file) : file_(file) {}
        void write(std::string_view bytes) override { file_.append(bytes); }
        void flush() override {}
        void close() override {}

      private:
        std::string& file_;
    };

    Kind kindOf(const Path& path) const {
        if (files_.contains(path))
            return Kind::File;
        return folders_.contains(path) ? Kind::Folder : Kind::Nothing;
    }

    std::map<Path, std::string> files_;
    std::set<Path> folders_;
};

}  // namespace quillor::testing
