// A program folder that exists for one test.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>

namespace quillor::testing {

/// Makes an empty folder of its own name and removes it with all it holds.
class TempFolder {
  public:
    TempFolder() : path_(make()) {}
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::filesystem::path& name) const {
        return path_ / name;
    }

    /// Writes a file byte for byte, making the folders it stands in.
    void write(const std::filesystem::path& name, std::string_view bytes) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        std::ofstream file(path_ / name, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

    /// The bytes of a file; empty when there is none.
    std::string read(const std::filesystem::path& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }

    bool has(const std::filesystem::path& name) const {
        return std::filesystem::exists(path_ / name);
    }

    /// How many files and folders stand in it, those in its folders not counted.
    std::ptrdiff_t size() const {
        return std::distance(std::filesystem::directory_iterator(path_), {});
    }

    /// Whether names that differ in capitals alone are two files.
    bool tellsCaseApart() const {
        write("case-probe", "");
        const bool apart = !has("CASE-PROBE");
        std::filesystem::remove(path_ / "case-probe");
        return apart;
    }

  private:
    // On the memory disk where the system has one: most tests write files that are
    // flushed, and few ask about the medium.
    static std::filesystem::path make() {
        const std::string name = uniqueName();
        std::error_code none;
        if (std::filesystem::create_directory(std::filesystem::path("/dev/shm") / name, none))
            return std::filesystem::path("/dev/shm") / name;
        const std::filesystem::path path = std::filesystem::temp_directory_path() / name;
        std::filesystem::create_directories(path);
        return path;
    }

    // Test programs run side by side, so the clock alone is not enough.
    static std::string uniqueName() {
        static std::atomic<unsigned> count{0};
        const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
        return "quillor-test-" + std::to_string(ticks) + "-" +
               std::to_string(reinterpret_cast<std::uintptr_t>(&count) >> 12) + "-" +
               std::to_string(++count);
    }

    std::filesystem::path path_;
};

}  // namespace quillor::testing
