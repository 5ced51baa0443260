// Options, their values, and what is refused.
#include "qt/command_line.h"

#include <gtest/gtest.h>

namespace quillor {

namespace {

using Action = CommandLine::Action;

TEST(CommandLine, PlaysWithoutOptions) {
    const CommandLine line = parseCommandLine({}, true);
    EXPECT_EQ(line.action, Action::Play);
    EXPECT_TRUE(line.folder.isEmpty());
    EXPECT_TRUE(line.tour.isEmpty());
}

TEST(CommandLine, TakesFoldersBehindABlankOrAnEqualsSign) {
    const CommandLine line =
        parseCommandLine({"--folder", "/tmp/mis temas", "--tour=/tmp/t"}, true);
    EXPECT_EQ(line.action, Action::Play);
    EXPECT_EQ(line.folder, "/tmp/mis temas");
    EXPECT_EQ(line.tour, "/tmp/t");
}

TEST(CommandLine, AnswersForVersionAndHelp) {
    EXPECT_EQ(parseCommandLine({"--version"}, true).action, Action::Version);
    EXPECT_EQ(parseCommandLine({"--folder", "x", "--help"}, true).action, Action::Help);
    EXPECT_EQ(versionLine(), "Quillor 6.0.35");
    EXPECT_TRUE(helpText(true).contains("--folder DIR"));
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    const CommandLine line = parseCommandLine({"--fodler", "x"}, true);
    EXPECT_EQ(line.action, Action::Refuse);
    EXPECT_TRUE(line.error.contains("--fodler"));
    EXPECT_FALSE(line.error.contains('\n'));
}

TEST(CommandLine, RefusesAnOptionWithoutItsFolder) {
    EXPECT_EQ(parseCommandLine({"--folder"}, true).action, Action::Refuse);
    EXPECT_EQ(parseCommandLine({"--tour="}, true).action, Action::Refuse);
}

TEST(CommandLine, SpeaksSpanishToo) {
    EXPECT_TRUE(helpText(false).contains("--folder CARPETA"));
    EXPECT_TRUE(helpText(false).startsWith("Quillor 6.0.35\nEl ahorcado"));
    EXPECT_EQ(parseCommandLine({"--tour"}, false).error,
              QStringLiteral("falta la carpeta de la opción: --tour (prueba --help)"));
}

TEST(CommandLine, HelpsInLinesThatFitATerminal) {
    for (const bool english : {true, false})
        for (const QString& line : helpText(english).split('\n'))
            EXPECT_LE(line.size(), 80) << line.toStdString();
}

TEST(CommandLine, SpeaksTheLanguageThatTheUserLikesBetter) {
    EXPECT_FALSE(prefersEnglish({"es-MX", "en"}));
    EXPECT_FALSE(prefersEnglish({"ca-ES", "es-ES", "en"}));
    EXPECT_TRUE(prefersEnglish({"en-GB", "es"}));
    EXPECT_TRUE(prefersEnglish({"fr-FR"}));
    EXPECT_TRUE(prefersEnglish({}));
}

}  // namespace

}  // namespace quillor
