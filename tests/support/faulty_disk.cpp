// Each operation is counted and then done by the standard disk.
#include "tests/support/faulty_disk.h"

#include <stdexcept>
#include <string>

namespace quillor::testing {

namespace {

using Operation = FaultyDisk::Operation;
namespace fs = std::filesystem;

class FaultyReader : public FileReader {
  public:
    FaultyReader(const FaultyDisk& disk, std::unique_ptr<FileReader> file)
        : disk_(disk), file_(std::move(file)) {}
    std::size_t read(std::span<char> bytes) override {
        disk_.call(Operation::Read);
        return file_->read(bytes);
    }

  private:
    const FaultyDisk& disk_;
    std::unique_ptr<FileReader> file_;
};

class FaultyWriter : public FileWriter {
  public:
    FaultyWriter(const FaultyDisk& disk, std::unique_ptr<FileWriter> file)
        : disk_(disk), file_(std::move(file)) {}
    void write(std::string_view bytes) override {
        disk_.call(Operation::Write);
        file_->write(bytes);
    }
    void flush() override {
        disk_.call(Operation::Flush);
        file_->flush();
    }
    void close() override {
        disk_.call(Operation::Close);
        file_->close();
    }

  private:
    const FaultyDisk& disk_;
    std::unique_ptr<FileWriter> file_;
};

}  // namespace

void FaultyDisk::breakDown(Operation operation, int from) {
    callsLeft_[operation] = from - 1;
}

void FaultyDisk::call(Operation operation) const {
    asked_.push_back(operation);
    const auto found = callsLeft_.find(operation);
    if (found != callsLeft_.end() && found->second-- <= 0) {
        found->second = 0;
        throw std::runtime_error("broken operation " + std::to_string(static_cast<int>(operation)));
    }
}

Disk::Found FaultyDisk::look(const fs::path& path) const {
    call(Operation::Look);
    return Disk::look(path);
}

std::vector<Disk::Entry> FaultyDisk::list(const fs::path& folder) const {
    call(Operation::List);
    return Disk::list(folder);
}

std::unique_ptr<FileReader> FaultyDisk::open(const fs::path& file) const {
    call(Operation::Open);
    return std::make_unique<FaultyReader>(*this, standardDisk().open(file));
}

std::unique_ptr<FileWriter> FaultyDisk::create(const fs::path& file) {
    call(Operation::Create);
    auto writer = Disk::create(file);
    return writer ? std::make_unique<FaultyWriter>(*this, std::move(writer)) : nullptr;
}

void FaultyDisk::copyPermissions(const fs::path& from, const fs::path& to) {
    call(Operation::CopyPermissions);
    Disk::copyPermissions(from, to);
}

void FaultyDisk::replace(const fs::path& from, const fs::path& to) {
    call(Operation::Replace);
    Disk::replace(from, to);
}

bool FaultyDisk::moveToNew(const fs::path& from, const fs::path& to) {
    call(Operation::MoveToNew);
    return Disk::moveToNew(from, to);
}

void FaultyDisk::remove(const fs::path& file) {
    call(Operation::Remove);
    Disk::remove(file);
}

void FaultyDisk::removeAbandoned(const fs::path& file) {
    call(Operation::Remove);
    Disk::removeAbandoned(file);
}

void FaultyDisk::makeFolder(const fs::path& folder) {
    call(Operation::MakeFolder);
    Disk::makeFolder(folder);
}

void FaultyDisk::flushFolder(const fs::path& folder) {
    call(Operation::FlushFolder);
    Disk::flushFolder(folder);
}

}  // namespace quillor::testing
