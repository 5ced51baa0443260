// The packages that a build asks for are those that run.sh names.
#include <functional>
#include <sstream>

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace quillor::testing
