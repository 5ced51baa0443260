// Starts the program: command line, program folder, fonts, screens.
#include <QApplication>
#include <QIcon>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "app/program.h"
#include "core/files.h"
#include "game/game_screen.h"
#include "qt/command_line.h"
#include "qt/platform.h"
#include "qt/program_folder.h"
#include "qt/qt_desktop.h"
#include "qt/qt_values.h"
#include "topics/register_screens.h"
#include "ui/options.h"

namespace quillor {

namespace {

constexpr int kBadUsage = 2;

void complain(const QString& line) {
    std::fprintf(stderr, "quillor: %s\n", line.toLocal8Bit().constData());
}

// While the toolkit looks for a display it would warn at length and abort.
void onlyFatal(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg)
        return;
    complain("no display can be opened (is DISPLAY or WAYLAND_DISPLAY set?)");
    std::_Exit(kBadUsage);
}

class Session {
  public:
    explicit Session(const CommandLine& line)
        : executableFolder_(toPath(fromQt(QCoreApplication::applicationDirPath()))),
          folder_(line.folder.isEmpty()
                      ? findProgramFolder(executableFolder_, platform::userDataFolder())
                      : useFolder(toPath(fromQt(line.folder)))),
          fonts_({folder_ / "fonts", executableFolder_ / "fonts"}),
          shell_(fonts_),
          desktop_(shell_, makeSoundPlayer()),
          program_(desktop_, folder_) {
        desktop_.attach(program_);
        addSettingsScreen(program_);
        addTopicScreens(program_);
        addGameScreens(program_);
    }

    int run() {
        shell_.event([&] { program_.show(ScreenId::Start); });
        return shell_.hasEnded() ? 0 : QApplication::exec();
    }

  private:
    std::filesystem::path executableFolder_;
    std::filesystem::path folder_;
    FontBook fonts_;
    Shell shell_;
    QtDesktop desktop_;
    Program program_;
};

int play(const CommandLine& line, int argc, char** argv) {
    // Before a display is looked for: a wrong folder needs none.
    if (!line.folder.isEmpty())
        useFolder(toPath(fromQt(line.folder)));
    qInstallMessageHandler(onlyFatal);
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    QApplication::setApplicationName("Quillor");
    QApplication::setQuitOnLastWindowClosed(false);
    return Session(line).run();
}

int run(int argc, char** argv) {
    const CommandLine line = parseCommandLine(platform::arguments(argc, argv));
    switch (line.action) {
        case CommandLine::Action::Version:
            std::printf("%s\n", qUtf8Printable(versionLine()));
            return 0;
        case CommandLine::Action::Help:
            std::printf("%s", qUtf8Printable(helpText()));
            return 0;
        case CommandLine::Action::Refuse:
            complain(line.error);
            return kBadUsage;
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
    } catch (const std::exception& error) {
        quillor::complain(QString::fromLocal8Bit(error.what()));
        return quillor::kBadUsage;
    }
}
