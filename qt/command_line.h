// What the program was started with, and what it says on the terminal.
#pragma once

#include <QString>
#include <QStringList>

#include "core/texts.h"

namespace quillor {

/// Whether the terminal is spoken to in English, by the languages that the user
/// wants, best first, as "es-MX": in Spanish if that comes before English.
bool prefersEnglish(const QStringList& languages);

/// A text of the terminal.
QString onTerminal(const TextPair& text, bool english);

struct CommandLine {
    enum class Action { Play, CheckTopics, Version, Help, Refuse };
    Action action = Action::Play;
    QString folder;         // empty: the program finds it itself
    QString language;       // "es" or "en" from now on; empty: as it is
    QString tour;           // where the tour's pictures go; empty: no tour
    QStringList files;      // topics to take in or, with folders, to check
    bool portable = false;  // the program's own folder, even where it is installed for all
    QString error;          // one line, for Refuse
};

/// `arguments` is the command line without the program's name. Never fails: what
/// is wrong with it is in the result.
CommandLine parseCommandLine(const QStringList& arguments, bool english);

/// "Quillor" and the version.
QString versionLine();
/// Several lines, each of at most 80 characters.
QString helpText(bool english);

}  // namespace quillor
