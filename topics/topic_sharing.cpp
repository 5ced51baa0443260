// One file after the other, each with its own boxes; the restart is asked for once.
#include "topics/topic_sharing.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

#include "core/files.h"
#include "core/numbers.h"
#include "core/text_rules.h"
#include "core/topic_library.h"
#include "topics/topic_check.h"

namespace quillor {

namespace {

constexpr std::size_t kMostTold = 3;  // findings, so that the box stays readable

class Sharing {
  public:
    Sharing(Program& program, const Place& file)
        : program_(program), file_(file), name_(fromPath(file.path().filename())) {}

    /// Returns whether there is a new or another topic in the folder now.
    bool run() {
        if (!upperCase(name_).ends_with(u".TXT"))
            return refuse(texts::kShareNoTopic);
        const std::optional<std::string> bytes = read(file_);
        if (!bytes)
            return refuse(texts::kShareUnread);
        const Place target = place();
        const std::optional<std::string> there = read(target);
        if (there == bytes)
            return refuse(texts::kShareThere);
        if (!isGoodEnough(*bytes) || (eFileExists(target) && !ask(texts::kShareReplace)))
            return false;
        return write(target, *bytes);
    }

  private:
    Text told(const TextPair& text) const {
        return replaceAll(program_.lang(text), u"%", isolated(name_));
    }
    bool refuse(const TextPair& reason, TextView more = {}) {
        program_.desktop.messageBox(MessageIcon::Information, told(reason).append(more));
        return false;
    }
    bool ask(const TextPair& question) { return program_.desktop.question(told(question)); }

    static std::optional<std::string> read(const Place& file) {
        try {
            return readFile(file, kMostTopicBytes);
        } catch (const std::runtime_error&) {
            return std::nullopt;
        }
    }

    Place place() const {
        const Text stem = name_.substr(0, name_.size() - 4);
        return topicFolder(program_.settings, program_.folder) /
               toPath(besideDevices(withoutForbidden(stem)) + u".txt");
    }

    bool isGoodEnough(const std::string& bytes) {
        const bool english = program_.settings.gbEnglish;
        std::vector<Finding> found = checkTopic(bytes, !english, english);
        if (found.empty())
            return true;
        std::stable_partition(found.begin(), found.end(),
                              [](const Finding& finding) { return finding.harmful; });
        if (found.front().harmful)
            return refuse(texts::kShareRefused, listed(found));
        return program_.desktop.question(told(texts::kShareFound) + listed(found) +
                                         told(texts::kShareAnyhow));
    }

    Text listed(const std::vector<Finding>& found) const {
        Text list;
        for (std::size_t i = 0; i < std::min(found.size(), kMostTold); ++i)
            list += u"\r\n" + program_.lang(texts::kShareLine) + inDigits(found[i].line) + u": " +
                    found[i].text + u".";
        if (found.size() > kMostTold)
            list += u"\r\n" + replaceAll(program_.lang(texts::kShareMore), u"%",
                                         inDigits(static_cast<int>(found.size() - kMostTold)));
        return list;
    }

    bool write(const Place& target, const std::string& bytes) {
        try {
            writeFile(target, bytes);
            return true;
        } catch (const std::runtime_error&) {
            return refuse(texts::kShareFailed);
        }
    }

    Program& program_;
    Place file_;
    Text name_;
};

}  // namespace

bool takeTopics(Program& program, const std::vector<std::filesystem::path>& files) {
    bool taken = false;
    for (const std::filesystem::path& file : files)
        taken |= Sharing(program, {file, program.folder.disk()}).run();
    return taken && program.desktop.question(program.lang(texts::kAskRestart));
}

}  // namespace quillor
