// Read by hand: help and errors are needed before there is a display.
#include "qt/command_line.h"

#include "config/version.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

// The place where an option's value goes; null for one that is not known.
QString* valueOf(const QString& option, CommandLine& line) {
    if (option == "--folder")
        return &line.folder;
    if (option == "--language")
        return &line.language;
    return option == "--tour" ? &line.tour : nullptr;
}

}  // namespace

bool prefersEnglish(const QStringList& languages) {
    for (const QString& language : languages) {
        if (language.startsWith("es"))
            return false;
        if (language.startsWith("en"))
            return true;
    }
    return true;
}

QString onTerminal(const TextPair& text, bool english) {
    return toQt(english ? text.english : text.spanish);
}

CommandLine parseCommandLine(const QStringList& arguments, bool english) {
    CommandLine result;
    const auto refused = [&](const TextPair& reason, const QString& word) {
        result.action = CommandLine::Action::Refuse;
        result.error = onTerminal(reason, english) + word + onTerminal(texts::kTryHelp, english);
        return result;
    };
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& word = arguments[i];
        if (word == "--help" || word == "--version") {
            result.action =
                word == "--help" ? CommandLine::Action::Help : CommandLine::Action::Version;
            return result;
        }
        if (word == "--portable") {
            result.portable = true;
            continue;
        }
        if (word == "--check-topics") {
            result.action = CommandLine::Action::CheckTopics;
            continue;
        }
        if (!word.startsWith('-')) {
            result.files << word;
            continue;
        }
        const qsizetype equals = word.indexOf('=');
        const QString option = equals < 0 ? word : word.left(equals);
        QString* value = valueOf(option, result);
        if (!value)
            return refused(texts::kUnknownOption, word);
        const bool hasNext = i + 1 < arguments.size();
        *value = equals >= 0 ? word.mid(equals + 1) : hasNext ? arguments[++i] : QString();
        if (value == &result.language && *value != "es" && *value != "en")
            return refused(texts::kUnknownLanguage, *value);
        if (value->isEmpty())
            return refused(texts::kNeedsFolder, option);
    }
    // Topics are taken in from nothing else; what is to be checked may be a folder.
    for (const QString& file : result.files)
        if (result.action == CommandLine::Action::Play &&
            !file.endsWith(".txt", Qt::CaseInsensitive))
            return refused(texts::kUnknownOption, file);
    return result;
}

QString versionLine() {
    return QStringLiteral("Quillor " QUILLOR_VERSION);
}

QString helpText(bool english) {
    return versionLine() + onTerminal(texts::kTerminalHelp, english);
}

}  // namespace quillor
