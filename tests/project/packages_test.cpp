// What stands in a file and has to agree with another one: the packages that a build
// asks for, the version, the topics that come with the game.
#include <fstream>
#include <functional>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "core/text_codec.h"
#include "core/text_rules.h"
#include "core/topic_library.h"
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

TEST(Manual, TellsOfEveryFileThatTheReadmeTellsOf) {
    const std::string manual = bytesOf("resources/Quillor-Manual.txt");
    const std::string readme = bytesOf("README.md");
    for (const char* name : {"Quillor-Config.ini", "Temas", "English.txt", "Color.txt", "Pic.jpg",
                             "fonts", "ARLRDBD.ttf", "Quillor-Manual.txt"}) {
        EXPECT_NE(manual.find(std::string("\n") + name), std::string::npos) << name;
        EXPECT_NE(readme.find(std::string("| `") + name), std::string::npos) << name;
    }
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

class TopicPacks : public ::testing::TestWithParam<const char*> {
  protected:
    static std::vector<Topic> topics() {
        std::vector<Topic> all;
        const auto folder = kSourceRoot / "resources/topics" / GetParam();
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(file), {}};
            const ParsedTopic parsed = parseTopic(bytes);
            EXPECT_EQ(parsed.lines, kTopicLines) << entry.path();
            EXPECT_FALSE(parsed.tooLong) << entry.path();
            all.push_back(parsed.topic);
        }
        return all;
    }
};

TEST_P(TopicPacks, AreAtLeastForty) {
    EXPECT_GE(topics().size(), 40U);
}

TEST_P(TopicPacks, FitTheBoardAndTheKeys) {
    for (const Topic& topic : topics()) {
        EXPECT_LE(topic[0].size(), 35U) << toUtf8(topic[0]);
        for (std::size_t i = 1; i < topic.size(); ++i) {
            const WrappedPhrase wrapped = wrapPhrase(topic[i]);
            EXPECT_FALSE(wrapped.cut) << toUtf8(topic[i]);
            EXPECT_LE(wrapped.shown.size(), 42U) << toUtf8(topic[i]);
            EXPECT_GE(topic[i].size(), 3U) << toUtf8(topic[0]);
            EXPECT_EQ(trimmed(topic[i]), topic[i]);
            EXPECT_EQ(
                eFoldAccents(topic[i]).find_first_not_of(u"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ1234567890 "),
                Text::npos)
                << toUtf8(topic[i]);
        }
    }
}

TEST_P(TopicPacks, HoldNoPhraseTwice) {
    std::set<Text> seen;
    for (const Topic& topic : topics())
        for (std::size_t i = 1; i < topic.size(); ++i)
            EXPECT_TRUE(seen.insert(eFoldAccents(topic[i])).second) << toUtf8(topic[i]);
}

INSTANTIATE_TEST_SUITE_P(Languages, TopicPacks, ::testing::Values("es", "en"));

}  // namespace

}  // namespace quillor::testing
