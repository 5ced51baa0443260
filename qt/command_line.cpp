// Read by hand: help and errors are needed before there is a display.
#include "qt/command_line.h"

#include "config/version.h"

namespace quillor {

namespace {

CommandLine refused(const QString& reason) {
    CommandLine result;
    result.action = CommandLine::Action::Refuse;
    result.error = reason + " (try --help)";
    return result;
}

// The place where an option's value goes; null for one that is not known.
QString* valueOf(const QString& option, CommandLine& line) {
    if (option == "--folder")
        return &line.folder;
    return option == "--tour" ? &line.tour : nullptr;
}

}  // namespace

CommandLine parseCommandLine(const QStringList& arguments) {
    CommandLine result;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& word = arguments[i];
        if (word == "--help" || word == "--version") {
            result.action =
                word == "--help" ? CommandLine::Action::Help : CommandLine::Action::Version;
            return result;
        }
        const qsizetype equals = word.indexOf('=');
        const QString option = equals < 0 ? word : word.left(equals);
        QString* value = valueOf(option, result);
        if (!value)
            return refused("unknown option '" + word + "'");
        const bool hasNext = i + 1 < arguments.size();
        *value = equals >= 0 ? word.mid(equals + 1) : hasNext ? arguments[++i] : QString();
        if (value->isEmpty())
            return refused("option '" + option + "' needs a folder");
    }
    return result;
}

QString versionLine() {
    return QStringLiteral("Quillor " QUILLOR_VERSION);
}

QString helpText() {
    return versionLine() + QStringLiteral(R"(
Hangman on whole phrases, in Spanish and English.

Usage: quillor [options]

  --folder DIR   keep settings and topics in DIR
  --tour DIR     play a short game by itself and write pictures of it to DIR
  --version      print the version and exit
  --help         print this text and exit

Without --folder everything is kept in the folder of the program itself or,
where that is write-protected, in the user's data folder. A file English.txt
in it makes the interface English.
)");
}

}  // namespace quillor
