// What the program was started with.
#pragma once

#include <QString>
#include <QStringList>

namespace quillor {

struct CommandLine {
    enum class Action { Play, Version, Help, Refuse };
    Action action = Action::Play;
    QString folder;  // empty: the program finds it itself
    QString tour;    // where the tour's pictures go; empty: no tour
    QString error;   // one line, for Refuse
};

/// `arguments` is the command line without the program's name.
CommandLine parseCommandLine(const QStringList& arguments);

/// "Quillor" and the version.
QString versionLine();
QString helpText();

}  // namespace quillor
