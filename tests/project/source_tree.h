// The project's own source files, as text.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace quillor::testing {

inline const std::filesystem::path kSourceRoot = QUILLOR_SOURCE_DIR;

struct SourceLine {
    std::filesystem::path file;  // from the root, e.g. core/files.cpp
    std::size_t number = 0;
    std::string text;

    std::string place() const { return file.generic_string() + ":" + std::to_string(number); }
};

inline bool isSource(const std::filesystem::path& file) {
    const std::string ending = file.extension().string();
    return ending == ".cpp" || ending == ".h" || ending == ".mm";
}

/// Every line of every source file in one of the root's folders; the folders
/// inside it are rooms of their own.
inline std::vector<SourceLine> sourceLines(const std::string& folder) {
    std::vector<SourceLine> lines;
    for (const auto& entry : std::filesystem::directory_iterator(kSourceRoot / folder)) {
        if (!isSource(entry.path()))
            continue;
        std::ifstream file(entry.path());
        std::string text;
        for (std::size_t number = 1; std::getline(file, text); ++number)
            lines.push_back({std::filesystem::relative(entry.path(), kSourceRoot), number, text});
    }
    return lines;
}

}  // namespace quillor::testing
