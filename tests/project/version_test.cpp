// The version stands in a few files that the build does not write.
#include <fstream>
#include <iterator>
#include <regex>

#include <gtest/gtest.h>

#include "tests/project/source_tree.h"

namespace quillor::testing {
namespace {

std::string contents(const std::filesystem::path& name) {
    std::ifstream file(kSourceRoot / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string projectVersion() {
    const std::string lists = contents("CMakeLists.txt");
    std::smatch match;
    std::regex_search(lists, match, std::regex(R"(project\(Quillor VERSION ([0-9.]+))"));
    return match[1];
}

class NamesOfTheVersion : public ::testing::TestWithParam<const char*> {};

TEST_P(NamesOfTheVersion, AreThoseOfTheProject) {
    const std::string version = projectVersion();
    ASSERT_NE(version, "");
    EXPECT_NE(contents(GetParam()).find(version), std::string::npos) << version;
}

INSTANTIATE_TEST_SUITE_P(In, NamesOfTheVersion,
                         ::testing::Values("qt/system/quillor.manifest",
                                           "packaging/windows/vcpkg.json",
                                           "packaging/windows/README.md",
                                           "resources/Quillor-Manual.txt"));

}  // namespace
}  // namespace quillor::testing
