// Options, their values, and what is refused; where the program keeps its files, and
// where it cannot; addresses for the browser.
#include "qt/command_line.h"

#include <QRegularExpression>
#include <QUrl>
#include <stdexcept>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "config/version.h"
#include "core/random.h"
#include "qt/qt_desktop.h"
#include "qt/system/program_folder.h"
#include "qt/windows/qt_values.h"
#include "tests/support/temp_folder.h"

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
    EXPECT_EQ(versionLine(), "Quillor " QUILLOR_VERSION);
    EXPECT_TRUE(helpText(true).contains("--folder DIR"));
}

TEST(CommandLine, TakesTopicsBetweenOptions) {
    const CommandLine line = parseCommandLine({"mi tema.txt", "--folder", "x", "B.TXT"}, true);
    EXPECT_EQ(line.action, Action::Play);
    EXPECT_EQ(line.files, QStringList({"mi tema.txt", "B.TXT"}));
    EXPECT_EQ(line.folder, "x");
}

TEST(CommandLine, TakesNothingButTopics) {
    const CommandLine line = parseCommandLine({"topic.doc"}, true);
    EXPECT_EQ(line.action, Action::Refuse);
    EXPECT_TRUE(line.error.contains("topic.doc"));
}

TEST(CommandLine, ChecksFilesAndFolders) {
    const CommandLine line = parseCommandLine({"--check-topics", "Temas", "a.txt"}, true);
    EXPECT_EQ(line.action, Action::CheckTopics);
    EXPECT_EQ(line.files, QStringList({"Temas", "a.txt"}));
    EXPECT_EQ(parseCommandLine({"--check-topics"}, true).action, Action::CheckTopics);
}

TEST(CommandLine, TakesAPortableProgramAtItsWord) {
    EXPECT_TRUE(parseCommandLine({"--portable", "--tour", "x"}, true).portable);
    EXPECT_FALSE(parseCommandLine({}, true).portable);
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

TEST(CommandLine, TakesOneOfTwoLanguages) {
    EXPECT_EQ(parseCommandLine({}, true).language, "");
    EXPECT_EQ(parseCommandLine({"--language", "es"}, true).language, "es");
    EXPECT_EQ(parseCommandLine({"--language=en"}, true).language, "en");
    EXPECT_EQ(parseCommandLine({"--language", "fr"}, true).action, Action::Refuse);
    EXPECT_EQ(parseCommandLine({"--language"}, true).action, Action::Refuse);
}

TEST(CommandLine, SpeaksSpanishToo) {
    EXPECT_TRUE(helpText(false).contains("--folder CARPETA"));
    EXPECT_TRUE(helpText(false).startsWith("Quillor " QUILLOR_VERSION "\nEl ahorcado"));
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

constexpr TextView kSearch = u"http://find.example/search?q=";
constexpr TextView kArticle = u"http://es.wiki.example/wiki/";

TEST(Address, EncodesBlanksAndAccentsOfASearch) {
    EXPECT_EQ(encodedAddress(kSearch, u"pingüino feliz"),
              "http://find.example/search?q=ping%C3%BCino%20feliz");
}

TEST(Address, KeepsSignsOfThePhraseThatMeanSomethingInAnAddress) {
    EXPECT_EQ(encodedAddress(kSearch, u"a&b #1 50% c++ ¿qué?"),
              "http://find.example/search?q=a%26b%20%231%2050%25%20c%2B%2B%20%C2%BFqu%C3%A9%3F");
}

TEST(Address, EncodesAnArticlesName) {
    EXPECT_EQ(encodedAddress(kArticle, u"torre eiffel"),
              "http://es.wiki.example/wiki/torre%20eiffel");
    EXPECT_EQ(encodedAddress(kArticle, u"¿qué es #1?"),
              "http://es.wiki.example/wiki/%C2%BFqu%C3%A9%20es%20%231%3F");
}

TEST(Address, TakesNoSignOfAnArticlesNameForAQuery) {
    EXPECT_EQ(encodedAddress(kArticle, u"what?a=b"), "http://es.wiki.example/wiki/what%3Fa%3Db");
    EXPECT_EQ(encodedAddress(kArticle, u"http://x?y=z"),
              "http://es.wiki.example/wiki/http:%2F%2Fx%3Fy%3Dz");
}

// Whatever is sought: a browser that has tidied the address up is on the page that was meant.
TEST(Address, LeadsToNoOtherPage) {
    const Text signs = u"./\\?#&%@:;=+ \t\r\n\"'<>[]{}|^`~a\u00f1\u202e\u2028\xd83d\xde00";
    Random random(7);
    for (int i = 0; i < 3000; ++i) {
        Text sought;
        while (random.next() < 0.8)
            sought +=
                signs[static_cast<std::size_t>(random.next() * static_cast<double>(signs.size()))];
        for (const TextView page : {kSearch, kArticle}) {
            const QString address = encodedAddress(page, sought);
            const QUrl url = QUrl::fromEncoded(address.toLatin1(), QUrl::StrictMode)
                                 .adjusted(QUrl::NormalizePathSegments);
            ASSERT_TRUE(url.isValid()) << address.toStdString();
            ASSERT_TRUE(url.toString(QUrl::FullyEncoded).startsWith(toQt(page)))
                << address.toStdString();
            ASSERT_EQ(address.indexOf(QRegularExpression("[?#]"), static_cast<int>(page.size())),
                      -1);
            ASSERT_EQ(url.userInfo(), "");
        }
    }
}

TEST(Address, OfDotsAloneIsTheirs) {
    EXPECT_EQ(encodedAddress(kArticle, u".."), "http://es.wiki.example/wiki/..%20");
    EXPECT_EQ(encodedAddress(kArticle, u"../x"), "http://es.wiki.example/wiki/..%2Fx");
    EXPECT_EQ(encodedAddress(kArticle, u"..."), "http://es.wiki.example/wiki/...");
}

TEST(Address, MayBeThePageAlone) {
    EXPECT_EQ(encodedAddress(kSearch, u""), "http://find.example/search?q=");
}

using testing::TempFolder;

TEST(ProgramFolder, IsTheExecutablesFolderWhenItCanBeWrittenTo) {
    const TempFolder here;
    const TempFolder user;
    EXPECT_EQ(findProgramFolder(findInstallation(here.path(), false), user / "quillor", true),
              here.path());
    EXPECT_FALSE(user.has("quillor"));
    EXPECT_TRUE(std::filesystem::is_empty(here.path()));
}

TEST(ProgramFolder, IsTheUsersOwnOtherwise) {
    const TempFolder here;
    const TempFolder user;
    const auto found = findProgramFolder(findInstallation(here / "is not there", false),
                                         user / "data/quillor", true);
    EXPECT_EQ(found, user / "data/quillor");
    EXPECT_TRUE(user.has("data/quillor"));
}

TEST(ProgramFolder, SpeaksThePersonsLanguageWhereTheUsersOwnIsNew) {
    const TempFolder here;
    const TempFolder user;
    const Installation none = findInstallation(here / "none", false);
    findProgramFolder(none, user / "new", true);
    EXPECT_TRUE(user.has("new/English.txt"));
    std::filesystem::remove(user / "new/English.txt");
    findProgramFolder(none, user / "new", true);
    EXPECT_FALSE(user.has("new/English.txt"));
    findProgramFolder(none, user / "spanish", false);
    EXPECT_FALSE(user.has("spanish/English.txt"));
}

// Root may write everywhere, so what root runs is run as another user meanwhile.
class UsersFolder : public ::testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::permissions(here.path(), std::filesystem::perms{0555});
        std::filesystem::permissions(user.path(), std::filesystem::perms{0777});
        if (before_ == 0 && seteuid(65534) != 0)
            GTEST_SKIP() << "root cannot be another user here";
    }
    void TearDown() override {
        ASSERT_EQ(seteuid(before_), 0);
        std::filesystem::permissions(here.path(), std::filesystem::perms::owner_all);
    }
    TempFolder here;
    TempFolder user;

  private:
    const uid_t before_ = geteuid();
};

class UsersFolderWithManual : public UsersFolder {
  protected:
    UsersFolderWithManual() { here.write("Quillor-Manual.txt", "help"); }
};

TEST_F(UsersFolderWithManual, GetsTheManual) {
    EXPECT_EQ(findProgramFolder(findInstallation(here.path(), false), user / "quillor", true),
              user / "quillor");
    EXPECT_EQ(user.read("quillor/Quillor-Manual.txt"), "help");
}

class UsersFolderWithPipe : public UsersFolder {
  protected:
    UsersFolderWithPipe() { mkfifo((here / "Quillor-Manual.txt").c_str(), 0666); }
};

TEST_F(UsersFolderWithPipe, WaitsForNobodyWhoWouldFillIt) {
    EXPECT_EQ(findProgramFolder(findInstallation(here.path(), false), user / "quillor", true),
              user / "quillor");
    EXPECT_FALSE(user.has("quillor/Quillor-Manual.txt"));
}

// A program in bin/, and what everybody shares where the build says.
class SystemWide : public ::testing::Test {
  protected:
    SystemWide() {
        system.write("bin/quillor", "");
        system.write(kManual, "help");
        std::filesystem::last_write_time(system / kManual, {});
    }
    std::filesystem::path find(bool portable = false) {
        return findProgramFolder(findInstallation(system / "bin", portable), user / "quillor",
                                 true);
    }
    static constexpr const char* kManual = "bin/" QUILLOR_SHARED_FROM_PROGRAM "/Quillor-Manual.txt";
    TempFolder system;
    TempFolder user;
};

TEST_F(SystemWide, KeepsThePlayersFilesInTheDataFolderEvenForRoot) {
    EXPECT_EQ(find(), user / "quillor");
    EXPECT_EQ(user.read("quillor/Quillor-Manual.txt"), "help");
}

// The manual of an older release that was installed late is no newer than a newer one's.
TEST_F(SystemWide, BringsTheManualOfANewerRelease) {
    find();
    system.write(kManual, "more help");
    std::filesystem::last_write_time(system / kManual,
                                     std::filesystem::file_time_type{} + std::chrono::hours(1));
    find();
    EXPECT_EQ(user.read("quillor/Quillor-Manual.txt"), "more help");
}

TEST_F(SystemWide, IsPortableWhenToldSo) {
    EXPECT_EQ(find(true), system / "bin");
    system.write("bin/Portable.txt", "");
    EXPECT_EQ(find(), system / "bin");
    EXPECT_FALSE(user.has("quillor"));
}

TEST_F(SystemWide, LoadsItsModulesFromWhereTheSystemKeepsThem) {
    EXPECT_EQ(findInstallation(system / "bin", true).modules, system / "bin");
    system.write("bin/" QUILLOR_MODULES_FROM_PROGRAM "/quillor-sound.so", "");
    for (const bool portable : {false, true})
        EXPECT_EQ(findInstallation(system / "bin", portable).modules,
                  system / "bin/" QUILLOR_MODULES_FROM_PROGRAM);
}

TEST(ProgramFolder, MakesTheGivenFolder) {
    const TempFolder folder;
    EXPECT_EQ(useFolder(folder / "a/b"), folder / "a/b");
    EXPECT_TRUE(folder.has("a/b"));
}

TEST(ProgramFolder, RefusesAFile) {
    const TempFolder folder;
    folder.write("file", "x");
    EXPECT_THROW(useFolder(folder / "file"), std::runtime_error);
    EXPECT_THROW(useFolder(folder / "file/below"), std::runtime_error);
}

}  // namespace

}  // namespace quillor
