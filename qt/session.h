// One run of the game in one folder: the disk, the windows, the screens.
#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>

#include "app/program.h"
#include "qt/boxes/waiting.h"
#include "qt/qt_desktop.h"
#include "qt/system/program_folder.h"
#include "qt/system/running_copy.h"
#include "qt/system/watched_disk.h"

namespace quillor {

class Session {
  public:
    Session(const std::filesystem::path& folder, const Installation& here);

    /// Answers those who start the program once more.
    void attend(platform::RunningCopy& copy);

    /// Whether the topics that come with the game could be laid out: the game tells it.
    void noteLaidOut(bool all) { program_.note(all, texts::kTopicsUnsaved); }

    /// Plays until the game is left. What the start screen reads is waited for by `waiting`;
    /// `topics` are files to take in. Returns what the program ends with.
    int run(const QStringList& topics, Waiting& waiting);

    /// Plays by itself and leaves pictures in `pictures`. Returns why it failed; empty: it
    /// did not.
    QString runTour(const QString& pictures);

  private:
    void take(const QStringList& topics);
    void tellOfLoss();
    void followPreferences();

    platform::WatchedDisk disk_;
    FontBook fonts_;
    Shell shell_;
    QtDesktop desktop_;
    Program program_;
};

}  // namespace quillor
