// Options, their values, and what is refused.
#include "qt/command_line.h"

#include <gtest/gtest.h>

namespace quillor {

namespace {

using Action = CommandLine::Action;

TEST(CommandLine, PlaysWithoutOptions) {
    const CommandLine line = parseCommandLine({});
    EXPECT_EQ(line.action, Action::Play);
    EXPECT_TRUE(line.folder.isEmpty());
    EXPECT_TRUE(line.tour.isEmpty());
}

TEST(CommandLine, TakesFoldersBehindABlankOrAnEqualsSign) {
    const CommandLine line = parseCommandLine({"--folder", "/tmp/mis temas", "--tour=/tmp/t"});
    EXPECT_EQ(line.action, Action::Play);
    EXPECT_EQ(line.folder, "/tmp/mis temas");
    EXPECT_EQ(line.tour, "/tmp/t");
}

TEST(CommandLine, AnswersForVersionAndHelp) {
    EXPECT_EQ(parseCommandLine({"--version"}).action, Action::Version);
    EXPECT_EQ(parseCommandLine({"--folder", "x", "--help"}).action, Action::Help);
    EXPECT_EQ(versionLine(), "Quillor 6.0.35");
    EXPECT_TRUE(helpText().contains("--folder DIR"));
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    const CommandLine line = parseCommandLine({"--fodler", "x"});
    EXPECT_EQ(line.action, Action::Refuse);
    EXPECT_TRUE(line.error.contains("--fodler"));
    EXPECT_FALSE(line.error.contains('\n'));
}

TEST(CommandLine, RefusesAnOptionWithoutItsFolder) {
    EXPECT_EQ(parseCommandLine({"--folder"}).action, Action::Refuse);
    EXPECT_EQ(parseCommandLine({"--tour="}).action, Action::Refuse);
}

}  // namespace

}  // namespace quillor
