// What no compiler would notice: which folder may include which, checked on every
// #include there is, and the table of texts, read as source.
#include <map>
#include <optional>
#include <regex>
#include <set>

#include <gtest/gtest.h>

#include "tests/project/source_tree.h"

namespace quillor::testing {
namespace {

using Rooms = std::set<std::string>;

struct Room {
    Rooms mayInclude;        // besides itself
    std::string outsiders;   // a pattern of the other headers in angle brackets
    bool platforms = false;  // may ask which system it is compiled for
};

// The standard library's headers, which every room may include, have neither a folder
// nor an ending; of C's, only the forms of C++ are used.
const std::regex kStandardHeader{"[a-z_0-9]+"};
const std::string kNothing;
const std::string kQt = "Q[A-Za-z]+";
const std::string kAnything = ".*";
const std::string kAudio = R"((SDL|mpg123|dlfcn|windows|mmsystem)\.h)";

const Rooms kRules{"core", "toolkit", "app", "game/rules", "ui", "topics", "game"};

Rooms rulesAnd(Rooms others) {
    others.insert(kRules.begin(), kRules.end());
    return others;
}

const Rooms kShell =
    rulesAnd({"sound", "qt", "qt/boxes", "qt/paint", "qt/system", "qt/tour", "qt/windows"});

// What the files of each folder may include; those of a folder within it are not among them.
const std::map<std::string, Room> kRooms{
    {"core", {{}, kNothing}},
    {"toolkit", {{"core"}, kNothing}},
    {"app", {{"core", "toolkit"}, kNothing}},
    {"game/rules", {{"core"}, kNothing}},
    {"ui", {{"core", "toolkit", "app", "game/rules"}, kNothing}},
    {"topics", {{"core", "toolkit", "app", "game/rules"}, kNothing}},
    {"game", {{"core", "toolkit", "app", "game/rules", "ui", "topics"}, kNothing}},
    {"sound", {{"core"}, kAudio}},
    {"qt", {kShell, kQt}},
    {"qt/boxes", {kShell, kQt}},
    {"qt/paint", {kShell, kQt}},
    {"qt/system", {kShell, kAnything, true}},
    {"qt/tour", {kShell, kQt}},
    {"qt/windows", {kShell, kQt}},
    {"web", {kRules, R"(emscripten\.h)"}},
};

// What CMake makes; anyone may ask for the version.
const std::string kMadeHeader = "config/version.h";

const std::regex kInclude{R"re(^\s*#\s*include\s*([<"])([^>"]+)[>"])re"};

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

std::string folderOf(const std::filesystem::path& file) {
    return file.parent_path().generic_string();
}

bool allowed(const std::string& folder, const Include& include) {
    const Room& room = kRooms.at(folder);
    if (include.standardForm)
        return std::regex_match(include.name, kStandardHeader) ||
               std::regex_match(include.name, std::regex(room.outsiders));
    if (include.name == kMadeHeader)
        return true;
    const std::string from = folderOf(include.name);
    return from == folder || room.mayInclude.contains(from);
}

class Boundaries : public ::testing::TestWithParam<std::string> {
  protected:
    /// The lines of the room's own files.
    static std::vector<SourceLine> lines() {
        std::vector<SourceLine> found = sourceLines(GetParam());
        std::erase_if(found, [](const auto& line) { return folderOf(line.file) != GetParam(); });
        return found;
    }
};

TEST_P(Boundaries, HoldForEveryInclude) {
    for (const SourceLine& line : lines()) {
        const std::optional<Include> include = includeOf(line.text);
        EXPECT_TRUE(!include || allowed(GetParam(), *include)) << line.place() << ": " << line.text;
    }
}

TEST_P(Boundaries, HoldForEveryIncludedFile) {
    for (const SourceLine& line : lines()) {
        const std::optional<Include> include = includeOf(line.text);
        EXPECT_TRUE(!include || include->standardForm || include->name == kMadeHeader ||
                    std::filesystem::exists(kSourceRoot / include->name))
            << line.place() << ": " << line.text;
    }
}

TEST_P(Boundaries, LeavePlatformsToTheirOwnFiles) {
    const std::regex condition{R"(^\s*#\s*(if|ifdef|ifndef|elif)\b)"};
    for (const SourceLine& line : lines())
        EXPECT_TRUE(kRooms.at(GetParam()).platforms || !std::regex_search(line.text, condition))
            << line.place() << ": " << line.text;
}

std::vector<std::string> roomNames() {
    std::vector<std::string> names;
    for (const auto& [name, room] : kRooms)
        names.push_back(name);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Rooms, Boundaries, ::testing::ValuesIn(roomNames()),
                         [](const auto& folder) {
                             return std::regex_replace(folder.param, std::regex("/"), "_");
                         });

TEST(BoundaryRules, KnowEveryFolderWithin) {
    for (const auto& [name, room] : kRooms) {
        for (const SourceLine& line : sourceLines(name))
            EXPECT_EQ(kRooms.count(folderOf(line.file)), 1) << line.place();
    }
}

TEST(BoundaryRules, RefuseSystemsAndToolkits) {
    for (const char* header : {"QWidget", "SDL.h", "windows.h", "unistd.h", "sys/stat.h",
                               "mpg123.h", "QtCore/QString", "stdio.h"})
        EXPECT_FALSE(allowed("core", {true, header})) << header;
    EXPECT_TRUE(allowed("core", {true, "string_view"}));
}

TEST(BoundaryRules, GiveToolkitAndSystemToTheirRoomsAlone) {
    EXPECT_FALSE(allowed("sound", {true, "QString"}));
    EXPECT_FALSE(allowed("qt/windows", {true, "unistd.h"}));
    EXPECT_FALSE(allowed("qt/windows", {true, "SDL.h"}));
    EXPECT_TRUE(allowed("qt/windows", {true, "QWidget"}));
    EXPECT_TRUE(allowed("qt/system", {true, "unistd.h"}));
    EXPECT_TRUE(allowed("sound", {true, "SDL.h"}));
    EXPECT_TRUE(allowed("web", {true, "emscripten.h"}));
    EXPECT_FALSE(allowed("web", {true, "QString"}));
}

TEST(BoundaryRules, RefuseTheFoldersAbove) {
    EXPECT_FALSE(allowed("core", {false, "toolkit/screen.h"}));
    EXPECT_FALSE(allowed("ui", {false, "game/phrase_board.h"}));
    EXPECT_FALSE(allowed("game", {false, "qt/windows/shell.h"}));
    EXPECT_FALSE(allowed("game", {false, "windows.h"}));
    EXPECT_FALSE(allowed("sound", {false, "toolkit/screen.h"}));
    EXPECT_FALSE(allowed("web", {false, "qt/windows/shell.h"}));
    EXPECT_FALSE(allowed("qt", {false, "web/page_shell.h"}));
    EXPECT_FALSE(allowed("game/rules", {false, "game/game_screen.h"}));
    EXPECT_TRUE(allowed("game", {false, "game/rules/scoring.h"}));
    EXPECT_TRUE(allowed("game", {false, "topics/inventor.h"}));
}

TEST(BoundaryRules, SeeEveryFormOfInclude) {
    EXPECT_EQ(includeOf("  #  include <a_b>")->name, "a_b");
    EXPECT_EQ(includeOf("#include \"x/y.h\"  // why")->name, "x/y.h");
    EXPECT_FALSE(includeOf("// include <a>").has_value());
}

std::vector<SourceLine> textLines() {
    std::vector<SourceLine> lines = sourceLines("core");
    std::erase_if(lines, [](const SourceLine& line) {
        return !line.file.filename().string().ends_with("texts.h");
    });
    return lines;
}

TEST(SourceTexts, AreNeverEmpty) {
    ASSERT_FALSE(textLines().empty());
    for (const SourceLine& line : textLines())
        EXPECT_EQ(line.text.find("u\"\""), std::string::npos) << line.place();
}

TEST(SourceTexts, StandInNoOtherFile) {
    for (const char* folder : {"toolkit", "app", "game/rules", "ui", "topics", "game"}) {
        for (const SourceLine& line : sourceLines(folder)) {
            const std::string code = line.text.substr(0, line.text.find("//"));
            EXPECT_EQ(code.find("\xC2\xA1"), std::string::npos) << line.place();  // ¡
            EXPECT_EQ(code.find("\xC2\xBF"), std::string::npos) << line.place();  // ¿
        }
    }
}

}  // namespace

}  // namespace quillor::testing
