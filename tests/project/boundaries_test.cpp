// Which folder may include which, checked on every #include there is.
#include <map>
#include <optional>
#include <regex>
#include <set>

#include <gtest/gtest.h>

#include "tests/project/source_tree.h"

namespace quillor::testing {
namespace {

using Folders = std::set<std::string>;

// What each folder may include besides itself.
const std::map<std::string, Folders> kMayInclude{
    {"core", {}},
    {"toolkit", {"core"}},
    {"app", {"core", "toolkit"}},
    {"game/rules", {"core"}},
    {"ui", {"core", "toolkit", "app", "game/rules"}},
    {"topics", {"core", "toolkit", "app", "game/rules"}},
    {"game", {"core", "toolkit", "app", "game/rules", "ui", "topics"}},
};

// What CMake makes; anyone may ask for the version.
const std::string kMadeHeader = "config/version.h";

// The standard library's headers have neither a folder nor an ending; of C's,
// only the forms of C++ are used.
const std::regex kInclude{R"re(^\s*#\s*include\s*([<"])([^>"]+)[>"])re"};
const std::regex kStandardHeader{"[a-z_0-9]+"};

struct Include {
    bool standardForm;  // in angle brackets
    std::string name;
};

std::optional<Include> includeOf(const std::string& line) {
    std::smatch match;
    if (!std::regex_search(line, match, kInclude))
        return std::nullopt;
    return Include{match[1] == "<", match[2]};
}

bool allowed(const std::string& folder, const Include& include) {
    if (include.standardForm)
        return std::regex_match(include.name, kStandardHeader);
    if (include.name == kMadeHeader)
        return true;
    const std::string from = include.name.substr(0, include.name.rfind('/'));
    return from == folder || kMayInclude.at(folder).count(from) > 0;
}

class Boundaries : public ::testing::TestWithParam<std::string> {};

TEST_P(Boundaries, HoldForEveryInclude) {
    for (const SourceLine& line : sourceLines(GetParam())) {
        const std::optional<Include> include = includeOf(line.text);
        EXPECT_TRUE(!include || allowed(GetParam(), *include)) << line.place() << ": " << line.text;
    }
}

TEST_P(Boundaries, HoldForEveryIncludedFile) {
    for (const SourceLine& line : sourceLines(GetParam())) {
        const std::optional<Include> include = includeOf(line.text);
        EXPECT_TRUE(!include || include->standardForm || include->name == kMadeHeader ||
                    std::filesystem::exists(kSourceRoot / include->name))
            << line.place() << ": " << line.text;
    }
}

TEST_P(Boundaries, LeavePlatformsToTheShell) {
    const std::regex condition{R"(^\s*#\s*(if|ifdef|ifndef|elif)\b)"};
    for (const SourceLine& line : sourceLines(GetParam()))
        EXPECT_FALSE(std::regex_search(line.text, condition)) << line.place() << ": " << line.text;
}

INSTANTIATE_TEST_SUITE_P(Folders, Boundaries,
                         ::testing::Values("core", "toolkit", "app", "game/rules", "ui", "topics",
                                           "game"),
                         [](const auto& folder) {
                             return std::regex_replace(folder.param, std::regex("/"), "_");
                         });

TEST(BoundaryRules, RefuseSystemsAndToolkits) {
    for (const char* header : {"QWidget", "SDL.h", "windows.h", "unistd.h", "sys/stat.h",
                               "mpg123.h", "QtCore/QString", "stdio.h"})
        EXPECT_FALSE(allowed("core", {true, header})) << header;
    EXPECT_TRUE(allowed("core", {true, "string_view"}));
}

TEST(BoundaryRules, RefuseTheFoldersAbove) {
    EXPECT_FALSE(allowed("core", {false, "toolkit/screen.h"}));
    EXPECT_FALSE(allowed("ui", {false, "game/phrase_board.h"}));
    EXPECT_FALSE(allowed("game", {false, "qt/windows/shell.h"}));
    EXPECT_FALSE(allowed("game", {false, "windows.h"}));
    EXPECT_TRUE(allowed("game", {false, "topics/inventor.h"}));
}

TEST(BoundaryRules, SeeEveryFormOfInclude) {
    EXPECT_EQ(includeOf("  #  include <a_b>")->name, "a_b");
    EXPECT_EQ(includeOf("#include \"x/y.h\"  // why")->name, "x/y.h");
    EXPECT_FALSE(includeOf("// include <a>").has_value());
}

}  // namespace
}  // namespace quillor::testing
