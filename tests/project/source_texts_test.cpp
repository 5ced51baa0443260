// The table of texts, read as source: what no compiler would notice.
#include <gtest/gtest.h>

#include "tests/project/source_tree.h"

namespace quillor::testing {
namespace {

std::vector<SourceLine> textLines() {
    std::vector<SourceLine> lines = sourceLines("core");
    std::erase_if(lines, [](const SourceLine& line) { return line.file != "core/texts.h"; });
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
