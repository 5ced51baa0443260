// Puts the parts together, and answers what comes from outside.
#include "qt/session.h"

#include <QApplication>
#include <QTimer>
#include <utility>
#include <vector>

#include "core/files.h"
#include "game/game_screen.h"
#include "qt/system/platform.h"
#include "qt/system/system_disk.h"
#include "qt/tour/tour.h"
#include "qt/windows/page.h"
#include "qt/windows/qt_values.h"
#include "topics/topics.h"
#include "ui/progress_screen.h"
#include "ui/settings_screen.h"

namespace quillor {

Session::Session(const std::filesystem::path& folder, const Installation& here)
    : disk_(platform::systemDisk(), folder),
      fonts_({folder / "fonts", here.executableFolder / "fonts", here.shared / "fonts"}),
      shell_(fonts_),
      desktop_(shell_, makeSoundPlayer(here.modules)),
      program_(desktop_, {folder, disk_}) {
    desktop_.attach(program_);
    disk_.onLoss = [this] { QTimer::singleShot(0, qApp, [this] { tellOfLoss(); }); };
    addSettingsScreen(program_);
    addProgressScreen(program_);
    addTopicScreens(program_);
    addGameScreens(program_);
}

void Session::attend(platform::RunningCopy& copy) {
    copy.onCall([this](const std::string& message) {
        const QStringList lines = QString::fromStdString(message).split('\n');
        shell_.comeToFront(lines.front().toStdString());
        // Later: who calls waits for an answer, and topics may ask questions.
        QTimer::singleShot(0, qApp, [this, topics = lines.mid(1)] { take(topics); });
    });
    desktop_.beforeRestart = [&copy] { copy.letGo(); };
}

int Session::run(const QStringList& topics, Waiting& waiting) {
    for (const QString& topic : topics)
        program_.topicsToTake.push_back(std::filesystem::absolute(toPath(fromQt(topic))));
    shell_.memory.emplace(program_.folder / "Quillor-Window.ini");
    followPreferences();
    const auto atOnce = std::exchange(disk_.wait, [&](const auto& work) { waiting.during(work); });
    shell_.event([&] { program_.show(ScreenId::Start); });
    disk_.wait = atOnce;
    waiting.stop();
    return shell_.hasEnded() ? 0 : QApplication::exec();
}

QString Session::runTour(const QString& pictures) {
    QString failure;
    Tour tour(shell_, pictures, [&](const QString& howItWent) {
        failure = howItWent;
        shell_.end();
    });
    shell_.event([&] { program_.show(ScreenId::Start); });
    tour.start(tourScript(tour, program_.settings.gbEnglish));
    QApplication::exec();
    return failure;
}

// Now, where the screen takes topics; else when the menu opens next.
void Session::take(const QStringList& topics) {
    std::vector<std::filesystem::path> files;
    for (const QString& topic : topics)
        files.push_back(toPath(fromQt(topic)));
    if (files.empty())
        return;
    const Page* page = shell_.front();
    for (const ScreenId id : {ScreenId::Menu, ScreenId::Word2, ScreenId::Inventor})
        if (Screen* screen = program_.find(id);
            screen && page && page->screen() == screen && !shell_.isModal())
            return shell_.event([&] { screen->dropFiles(files); });
    program_.topicsToTake = files;
}

void Session::tellOfLoss() {
    shell_.event([this] {
        const Text where = fromPath(program_.folder);
        desktop_.messageBox(MessageIcon::Critical,
                            program_.lang(texts::kNothingIsSaved) + u"\n\n" + where);
    });
}

// The player may change them in another program, and comes back from there.
void Session::followPreferences() {
    const auto read = [this] {
        platform::readPreferences([this](const Preferences& wanted) { shell_.apply(wanted); });
    };
    read();
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, qApp,
                     [read](Qt::ApplicationState state) {
                         if (state == Qt::ApplicationActive)
                             read();
                     });
}

}  // namespace quillor
