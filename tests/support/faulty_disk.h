// A disk on which any operation fails once it is told to.
#pragma once

#include <map>
#include <vector>

#include "core/disk.h"

namespace quillor::testing {

/// Does what the standard disk does, and keeps what it was asked for.
class FaultyDisk : public Disk {
  public:
    enum class Operation {
        Look,
        List,
        Open,
        Read,
        Create,
        CopyPermissions,
        Write,
        Flush,
        Close,
        Replace,
        MoveToNew,
        Remove,
        MakeFolder,
        FlushFolder,
    };
    static constexpr int kOperations = 14;

    /// From its `from`th call on, counted from now and from 1, the operation fails.
    void breakDown(Operation operation, int from = 1);
    /// Everything works again.
    void mend() { callsLeft_.clear(); }

    /// What it was asked for, in this order, failures included.
    std::vector<Operation> asked() const { return asked_; }
    void forget() { asked_.clear(); }

    /// Counts a call. Throws std::runtime_error when it is to fail.
    void call(Operation operation) const;

    Found look(const std::filesystem::path& path) const override;
    std::vector<Entry> list(const std::filesystem::path& folder) const override;
    std::unique_ptr<FileReader> open(const std::filesystem::path& file) const override;
    std::unique_ptr<FileWriter> create(const std::filesystem::path& file) override;
    void copyPermissions(const std::filesystem::path& from,
                         const std::filesystem::path& to) override;
    void replace(const std::filesystem::path& from, const std::filesystem::path& to) override;
    bool moveToNew(const std::filesystem::path& from, const std::filesystem::path& to) override;
    void remove(const std::filesystem::path& file) override;
    void removeAbandoned(const std::filesystem::path& file) override;
    void makeFolder(const std::filesystem::path& folder) override;
    void flushFolder(const std::filesystem::path& folder) override;

  private:
    mutable std::map<Operation, int> callsLeft_;  // until it fails
    mutable std::vector<Operation> asked_;
};

}  // namespace quillor::testing
