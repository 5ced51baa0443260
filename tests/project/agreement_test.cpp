// What stands in a file and has to agree with another one: the packages that a build asks
// for, the options, the files of the program folder, and the version.
#include <fstream>
#include <functional>
#include <iterator>
#include <regex>
#include <sstream>

#include <gtest/gtest.h>

#include "core/text_codec.h"
#include "core/texts.h"
#include "tests/project/source_tree.h"

namespace quillor::testing {
namespace {

std::string bytesOf(const char* file) {
    std::ostringstream bytes;
    bytes << std::ifstream(kSourceRoot / file, std::ios::binary).rdbuf();
    return bytes.str();
}

TEST(Packages, OfTheRoundedFontAreNamedForEverySystem) {
    const std::string warning = bytesOf("cmake/rounded_font.cmake");
    const std::string lists = bytesOf("scripts/packages.sh");
    for (const char* name :
         {"fonts-quicksand", "aajohan-comfortaa-fonts", "ttf-nunito", "font-quicksand"}) {
        EXPECT_NE(warning.find(name), std::string::npos) << name;
        EXPECT_NE(lists.find(name), std::string::npos) << name;
    }
}

// Every word of the help that starts with two dashes.
std::vector<std::string> optionsIn(TextView help) {
    const std::string text = toUtf8(help);
    const std::regex option("--[a-z][a-z-]*");
    std::vector<std::string> found;
    for (std::sregex_iterator each(text.begin(), text.end(), option), end; each != end; ++each)
        found.push_back(std::regex_replace(each->str(), std::regex("-"), "\\-"));
    return found;
}

TEST(ManualPage, TellsOfEveryOptionThatTheHelpTellsOf) {
    const std::string english = bytesOf("packaging/linux/quillor.6");
    const std::string spanish = bytesOf("packaging/linux/quillor.es.6");
    const auto options = optionsIn(texts::kTerminalHelp.english);
    EXPECT_GE(options.size(), 5U);
    for (const std::string& option : options) {
        EXPECT_NE(english.find(option), std::string::npos) << option;
        EXPECT_NE(spanish.find(option), std::string::npos) << option;
    }
}

// The first column of the README's table of the program folder, without what is in folders.
std::vector<std::string> filesInReadme() {
    const std::string readme = bytesOf("README.md");
    const std::size_t start = readme.find("## The program folder");
    const std::string part = readme.substr(start, readme.find("\n## ", start) - start);
    const std::regex row("\n\\| `([^`/]+)(/[^`]*)?` \\|");
    std::vector<std::string> files;
    for (std::sregex_iterator each(part.begin(), part.end(), row), end; each != end; ++each)
        files.push_back((*each)[1]);
    return files;
}

// Each at the beginning of a line, alone or behind another one, in both languages.
TEST(Manual, TellsOfEveryFileThatTheReadmeTellsOf) {
    const std::string manual = bytesOf("resources/Quillor-Manual.txt");
    EXPECT_GE(filesInReadme().size(), 10U);
    for (const std::string& name : filesInReadme()) {
        const std::regex named("\n([A-Za-z]+, )?" +
                               std::regex_replace(name, std::regex("\\."), "\\.") + "[ ,]");
        const std::sregex_iterator found(manual.begin(), manual.end(), named);
        EXPECT_EQ(std::distance(found, {}), 2) << name;
    }
}

TEST(Manual, TellsInBothLanguagesOfEveryKeyThatTheBoxesTellOf) {
    const std::string manual = bytesOf("resources/Quillor-Manual.txt");
    const std::size_t middle = manual.find("\nENGLISH");
    const std::regex keys(R"(\b(F[0-9]+|Ctrl\+[A-Z]|Alt\+[A-Z][a-z]*|Escape|Supr|Delete)\b)");
    const auto expectAll = [&](TextView box, const std::string& part) {
        const std::string text = toUtf8(box);
        for (std::sregex_iterator each(text.begin(), text.end(), keys), end; each != end; ++each)
            EXPECT_NE(part.find(each->str()), std::string::npos) << each->str();
    };
    for (const TextPair& box :
         {texts::kKeysEverywhere, texts::kKeysGame, texts::kKeysInventor, texts::kKeysProgress}) {
        expectAll(box.spanish, manual.substr(0, middle));
        expectAll(box.english, manual.substr(middle));
    }
    EXPECT_NE(texts::kKeysGame.spanish.find(u"F4"), TextView::npos);
    EXPECT_NE(texts::kKeysGame.english.find(u"F4"), TextView::npos);
}

TEST(Manual, FitsItsWindow) {
    std::istringstream manual(bytesOf("resources/Quillor-Manual.txt"));
    for (std::string line; std::getline(manual, line);) {
        const auto inside = [](char byte) { return (byte & 0xC0) == 0x80; };
        EXPECT_LE(std::ranges::count_if(line, std::not_fn(inside)), 80) << line;  // and its end
    }
}

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
