// Starts the program: command line, program folder, fonts, screens.
#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QTemporaryDir>
#include <chrono>
#include <cstdlib>
#include <exception>
#include <optional>
#include <stdexcept>

#include "core/files.h"
#include "core/settings_file.h"
#include "core/text_codec.h"
#include "core/topic_library.h"
#include "qt/boxes/boxes.h"
#include "qt/command_line.h"
#include "qt/session.h"
#include "qt/system/platform.h"
#include "qt/system/system_disk.h"
#include "qt/tour/tour.h"
#include "qt/windows/qt_values.h"
#include "topics/topic_check.h"

namespace quillor {

namespace {

constexpr std::chrono::seconds kPatience{1};  // until words say what a start waits for
constexpr int kFailedTour = 1;
constexpr int kBadUsage = 2;

// Known before there is an application; the game itself goes by its marker file.
bool systemIsEnglish() {
    return prefersEnglish(QLocale::system().uiLanguages());
}

void say(const QString& text) {
    platform::print(text, false);
}

void complain(const QString& line) {
    platform::print("quillor: " + line + "\n", true);
}

// While the toolkit looks for a display it would warn at length and abort.
void onlyFatal(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg)
        return;
    complain(onTerminal(texts::kNoDisplay, systemIsEnglish()));
    std::_Exit(kBadUsage);
}

// Every size is handed to the desktop when a window opens; none shows a larger one.
QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128})
        icon.addFile(QStringLiteral(":/icon/quillor-%1.png").arg(size));
    return icon;
}

// One line on the terminal; where nobody reads that, in a window.
void tell(const QString& line, int argc, char** argv) {
    complain(line);
    if (platform::isHeard())
        return;
    qInstallMessageHandler(onlyFatal);
    QApplication application(argc, argv);
    QApplication::setStyle(new NotebookStyle);
    QApplication::setWindowIcon(programIcon());
    showMessage({}, BoxSign::Critical, line, onTerminal(texts::kAccept, systemIsEnglish()));
}

QString folderTrouble(const FolderError& error) {
    return onTerminal(texts::kCannotUseFolder, systemIsEnglish()) + toQt(fromPath(error.folder)) +
           " (" + QString::fromLocal8Bit(error.what()) + ")";
}

std::filesystem::path executableFolder() {
    return toPath(fromQt(QCoreApplication::applicationDirPath()));
}

// In a folder of its own, so that the player's settings and topics stay as they
// are; what changes the look is taken from the player's folder.
int playTour(const QString& pictures, const std::filesystem::path& model,
             const Installation& here) {
    const QTemporaryDir folder;
    if (!folder.isValid())
        throw std::runtime_error("no temporary folder for the tour");
    const std::filesystem::path path = toPath(fromQt(folder.path()));
    prepareTourFolder(path, model);
    const QString failure = Session(path, here).runTour(pictures);
    if (failure.isEmpty())
        return 0;
    complain(failure);
    return kFailedTour;
}

// What one's own other copy is told: the token by which a desktop lets it come to the
// front, and the topics that it is to take in, a line each.
std::string callFor(const QStringList& topics) {
    std::string message = qgetenv("XDG_ACTIVATION_TOKEN").toStdString();
    for (const QString& topic : topics)
        message += "\n" + toUtf8(fromPath(std::filesystem::absolute(toPath(fromQt(topic)))));
    return message;
}

// Whether this copy is to play too: not if one's own other copy has come to the front
// instead, or if the player would rather not share the folder.
bool wanted(platform::RunningCopy& copy, const std::filesystem::path& folder,
            const QStringList& topics) {
    using Other = platform::RunningCopy::Other;
    if (copy.other() == Other::None)
        return true;
    if (copy.other() == Other::Own && copy.call(callFor(topics)))
        return false;
    const bool english = speaksEnglish({folder, platform::systemDisk()});
    const auto text = [english](const TextPair& pair) { return onTerminal(pair, english); };
    const QString why =
        text(copy.other() == Other::Own ? texts::kNoAnswer : texts::kFolderIsShared);
    return askQuestion({}, why + "\n\n" + toQt(fromPath(folder)), text(texts::kYes),
                       text(texts::kNo));
}

// A disk that does not answer may never do so: nothing ends but the program, at once.
Waiting::Words waitingWords(bool english) {
    return {onTerminal(texts::kWaitingForFolder, english), onTerminal(texts::kStopWaiting, english),
            [] { std::_Exit(0); }};
}

int play(const CommandLine& line, int argc, char** argv) {
    Disk& disk = platform::systemDisk();
    std::filesystem::path folder;
    const auto speakAsTold = [&] {
        if (!line.language.isEmpty())
            chooseLanguage({folder, disk}, line.language == "en");
    };
    Waiting waiting(waitingWords(systemIsEnglish()), kPatience);
    waiting.begin([&] {
        if (!line.folder.isEmpty())
            folder = useFolder(toPath(fromQt(line.folder)));
        if (!line.tour.isEmpty())
            useFolder(toPath(fromQt(line.tour)));
        if (!folder.empty())
            speakAsTold();
    });
    // Before a display is looked for: wrong folders need none.
    waiting.forAMoment();
    qInstallMessageHandler(onlyFatal);
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    QApplication::setStyle(new NotebookStyle);
    QApplication::setApplicationName("Quillor");
    QApplication::setDesktopFileName("org.quillor.quillor");
    QApplication::setWindowIcon(programIcon());
    QApplication::setQuitOnLastWindowClosed(false);
    waiting.toItsEnd();
    const Installation here = findInstallation(executableFolder(), line.portable);
    if (!line.tour.isEmpty()) {
        waiting.stop();
        return playTour(line.tour, folder, here);
    }
    std::optional<platform::RunningCopy> copy;
    bool laidOut = true;
    waiting.during([&, english = systemIsEnglish()] {
        if (folder.empty()) {
            folder = findProgramFolder(here, platform::userDataFolder(), english);
            speakAsTold();
            laidOut = layOutTopics({here.shared / "packs", disk}, {folder, disk});
        }
        copy.emplace(folder);
    });
    if (copy->other() != platform::RunningCopy::Other::None)
        waiting.stop();  // there is something else to say
    if (!wanted(*copy, folder, line.files))
        return 0;
    Session session(folder, here);
    session.attend(*copy);
    session.noteLaidOut(laidOut);
    return session.run(line.files, waiting);
}

// The topics named or, where none is, the game's own in both languages.
std::vector<Place> topicsToCheck(const CommandLine& line) {
    Disk& disk = platform::systemDisk();
    std::vector<Place> places;
    for (const QString& file : line.files)
        places.emplace_back(toPath(fromQt(file)), disk);
    if (!places.empty())
        return places;
    const Place folder(line.folder.isEmpty()
                           ? findProgramFolder(findInstallation(executableFolder(), line.portable),
                                               platform::userDataFolder(), systemIsEnglish())
                           : useFolder(toPath(fromQt(line.folder))),
                       disk);
    for (const bool english : {false, true}) {
        GameSettings settings;
        settings.gbEnglish = english;
        if (const Place topics = topicFolder(settings, folder); eFileExists(topics))
            places.push_back(topics);
    }
    return places;
}

int tellOfTopics(const CommandLine& line, bool english, int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("Quillor");
    const TopicReport report = checkTopics(topicsToCheck(line), english);
    for (const Text& finding : report.found)
        say(toQt(finding) + "\n");
    for (const Text& place : report.unread)
        complain(onTerminal(texts::kNoTopicToRead, english) + toQt(place));
    return report.exitCode();
}

int run(int argc, char** argv) {
    platform::giveLargeMemoryBack();
    const bool english = systemIsEnglish();
    const CommandLine line = parseCommandLine(platform::arguments(argc, argv), english);
    switch (line.action) {
        case CommandLine::Action::Version:
            say(versionLine() + "\n");
            return 0;
        case CommandLine::Action::Help:
            say(helpText(english));
            return 0;
        case CommandLine::Action::Refuse:
            tell(line.error, argc, argv);
            return kBadUsage;
        case CommandLine::Action::CheckTopics:
            return tellOfTopics(line, english, argc, argv);
        case CommandLine::Action::Play:
            break;
    }
    return play(line, argc, argv);
}

}  // namespace

}  // namespace quillor

int main(int argc, char** argv) {
    try {
        return quillor::run(argc, argv);
    } catch (const quillor::FolderError& error) {
        quillor::tell(quillor::folderTrouble(error), argc, argv);
    } catch (const std::exception& error) {
        quillor::tell(QString::fromLocal8Bit(error.what()), argc, argv);
    }
    return quillor::kBadUsage;
}
