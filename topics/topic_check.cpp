// One small function for each kind of fault; the texts stand with all others.
#include "topics/topic_check.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <utility>

#include "core/files.h"
#include "core/numbers.h"
#include "core/text_rules.h"
#include "core/texts.h"
#include "core/topic_library.h"
#include "game/rules/round.h"

namespace quillor {

namespace {

constexpr TextView kHexDigits = u"0123456789ABCDEF";

// The text in the language, with the detail in place of its "%".
Text told(const TextPair& pair, bool english, TextView detail = {}) {
    return replaceAll(english ? pair.english : pair.spanish, u"%", isolated(detail));
}

bool isControl(char16_t sign) {
    return isHiddenSign(sign) || sign == 0xA0 || sign == 0xFFFD || sign == 0xFEFF;
}

Text numberOf(char16_t sign) {
    Text name = u"U+";
    for (int shift = 12; shift >= 0; shift -= 4)
        name += kHexDigits[static_cast<std::size_t>(sign >> shift & 0xF)];
    return name;
}

bool hasKey(char16_t folded) {
    return folded == u' ' || isGuessKey(folded);
}

// Each sign once, in the order of the phrase.
Text signsWithoutKey(TextView phrase) {
    const Text folded = eFoldAccents(phrase);
    Text signs;
    for (std::size_t i = 0; i < folded.size(); ++i)
        if (!hasKey(folded[i]) && signs.find(phrase[i]) == Text::npos)
            signs += phrase[i];
    return signs;
}

// UTF-8 that was read as Windows-1252: a letter that hardly any word has, before a sign
// that no word has.
std::size_t findWrongEncoding(TextView text) {
    const auto follows = [](char16_t sign) {
        return (sign >= 0x80 && sign < 0xC0) || sign >= 0x100;
    };
    for (std::size_t i = 0; i + 1 < text.size(); ++i)
        if ((text[i] == u'Ã' || text[i] == u'Â') && follows(text[i + 1]))
            return i;
    return TextView::npos;
}

void addSignsWithoutKey(std::vector<Text>& flaws, TextView phrase, bool english) {
    Text seen;
    Text unseen;
    for (const char16_t sign : signsWithoutKey(phrase))
        (isControl(sign) ? unseen : seen) += sign;
    if (!seen.empty())
        flaws.push_back(told(texts::kFlawNoKey, english, seen));
    if (!unseen.empty())
        flaws.push_back(told(texts::kFlawControl, english, numberOf(unseen.front())));
}

Text wordLongerThanARow(TextView phrase) {
    for (std::size_t from = 0; from < phrase.size();) {
        const std::size_t end = std::min(phrase.find(u' ', from), phrase.size());
        if (end - from > kRowCells)
            return Text(phrase.substr(from, end - from));
        from = end + 1;
    }
    return {};
}

bool isCut(TextView phrase) {
    const WrappedPhrase wrapped = wrapPhrase(phrase);
    return wrapped.cut || wrapped.shown.size() > kBoardCells;
}

// Collects what is found in one topic.
class Check {
  public:
    Check(std::string_view bytes, bool english)
        : bytes_(bytes), english_(english), parsed_(parseTopic(bytes)) {}

    std::vector<Finding> run(std::optional<bool> spanish) {
        if (bytes_.find('\0') != std::string_view::npos) {
            add(1, texts::kFlawNoText, {}, true);
            return std::move(found_);
        }
        checkTitle(spanish);
        checkLength();
        for (int line = 2; line <= parsed_.lines; ++line)
            checkPhrase(line);
        checkLineEnds();
        std::stable_sort(found_.begin(), found_.end(),
                         [](const Finding& a, const Finding& b) { return a.line < b.line; });
        return std::move(found_);
    }

  private:
    const Text& text(int line) const {
        return parsed_.topic.at(static_cast<std::size_t>(line) - 1);
    }
    void add(int line, const TextPair& what, TextView detail = {}, bool harmful = false) {
        found_.push_back({line, told(what, english_, detail), harmful});
    }

    void checkTitle(std::optional<bool> spanish) {
        const Text& title = text(1);
        if (const std::size_t at = findWrongEncoding(title); at != Text::npos)
            add(1, texts::kFlawEncoding, title.substr(at, 2));
        const Text shown = topicTitle(parsed_.topic);
        if (shown.empty())
            add(1, texts::kFlawNoTitle);
        if (shown.size() > kTitleLength)
            add(1, texts::kFlawLongTitle, inDigits(kTitleLength));
        if (spanish.value_or(looksSpanish()) && !title.ends_with(texts::kSpanishTag))
            add(1, texts::kFlawNoMark);
    }

    bool looksSpanish() const {
        constexpr TextView kSpanishLetters = u"ÁÉÍÓÚÑÜ";
        return std::any_of(parsed_.topic.begin(), parsed_.topic.end(), [&](const Text& line) {
            return line.find_first_of(kSpanishLetters) != Text::npos;
        });
    }

    void checkLength() {
        if (countPhrases(parsed_.topic) < kFewestPhrases)
            add(1, texts::kFlawTooFew, {}, true);
        if (parsed_.tooLong)
            add(kTopicLines + 1, texts::kFlawTooMany, {}, true);
    }

    void checkPhrase(int line) {
        const Text& phrase = text(line);
        if (phrase.empty()) {
            if (line <= lastPhrase())
                add(line, texts::kFlawGap);
            return;
        }
        for (Text& flaw : phraseFlaws(phrase, english_))
            found_.push_back({line, std::move(flaw), false});
        checkTwice(line);
    }

    int lastPhrase() const {
        int line = parsed_.lines;
        while (line > 1 && text(line).empty())
            --line;
        return line;
    }

    void checkTwice(int line) {
        const Text folded = eFoldAccents(text(line));
        const auto [first, isNew] = lineOf_.try_emplace(folded, line);
        if (isNew)
            return;
        const bool same = text(first->second) == text(line);
        add(line, same ? texts::kFlawTwice : texts::kFlawTwiceFolded, inDigits(first->second));
    }

    // The first one that is not as it should be stands for all.
    void checkLineEnds() {
        int line = 1;
        for (std::size_t at = bytes_.find_first_of("\r\n"); at != std::string_view::npos;
             at = bytes_.find_first_of("\r\n", at + 2), ++line) {
            if (bytes_.substr(at, 2) == "\r\n")
                continue;
            add(line, texts::kFlawLineEnd);
            return;
        }
    }

    std::string_view bytes_;
    bool english_;
    ParsedTopic parsed_;
    std::map<Text, int> lineOf_;  // of the folded phrases seen so far
    std::vector<Finding> found_;
};

// By the folder that a topic is in; nothing where that says nothing.
std::optional<bool> languageOf(const Place& file) {
    const Text folder = upperCase(fromPath(file.path().parent_path().filename()));
    if (folder == u"TEMAS" || folder == u"ES")
        return true;
    if (folder == u"TOPICS" || folder == u"EN")
        return false;
    return std::nullopt;
}

// What folders hold takes their place; each file once.
std::vector<Place> allFiles(const std::vector<Place>& given, std::vector<Text>& unread) {
    std::vector<Place> files;
    std::set<std::filesystem::path> known;
    const auto add = [&](const Place& file) {
        if (known.insert(file.path().lexically_normal()).second)
            files.push_back(file);
    };
    for (const Place& place : given) {
        try {
            if (place.disk().look(place).kind != Disk::Kind::Folder) {
                add(place);
                continue;
            }
            const std::vector<Place> inside = topicFiles(place);
            if (inside.empty())
                unread.push_back(isolated(fromPath(place)));
            std::for_each(inside.begin(), inside.end(), add);
        } catch (const std::runtime_error&) {
            unread.push_back(isolated(fromPath(place)));
        }
    }
    return files;
}

// Where the phrases of each folder's topics, folded, stand first.
using Whereabouts = std::map<std::pair<std::filesystem::path, Text>, std::pair<Text, Text>>;

void checkAgainstOthers(const Place& file, const Topic& topic, bool english,
                        Whereabouts& whereabouts, std::vector<Finding>& found) {
    const Text name = fromPath(file);
    for (int line = 2; line <= kTopicLines; ++line) {
        const Text& phrase = topic.at(static_cast<std::size_t>(line) - 1);
        if (trimmed(phrase).empty())
            continue;
        const Text here = name + u":" + inDigits(line);
        const auto [first, isNew] =
            whereabouts.try_emplace({file.path().parent_path(), eFoldAccents(phrase)}, name, here);
        if (!isNew && first->second.first != name)
            found.push_back({line, told(texts::kFlawElsewhere, english, first->second.second)});
    }
}

}  // namespace

std::vector<Text> phraseFlaws(TextView phrase, bool english) {
    if (trimmed(phrase).empty())
        return {told(texts::kFlawOnlyBlanks, english)};
    std::vector<Text> flaws;
    if (const std::size_t at = findWrongEncoding(phrase); at != TextView::npos)
        flaws.push_back(told(texts::kFlawEncoding, english, phrase.substr(at, 2)));
    else
        addSignsWithoutKey(flaws, phrase, english);
    if (isCut(phrase))
        flaws.push_back(told(texts::kFlawCut, english));
    if (const Text word = wordLongerThanARow(phrase); !word.empty())
        flaws.push_back(told(texts::kFlawLongWord, english, word));
    if (phrase.front() == u' ' || phrase.back() == u' ')
        flaws.push_back(told(texts::kFlawEndBlanks, english));
    if (trimmed(phrase).find(u"  ") != Text::npos)
        flaws.push_back(told(texts::kFlawManyBlanks, english));
    return flaws;
}

std::vector<Finding> checkTopic(std::string_view bytes, std::optional<bool> spanish, bool english) {
    return Check(bytes, english).run(spanish);
}

TopicReport checkTopics(const std::vector<Place>& filesAndFolders, bool english) {
    TopicReport report;
    Whereabouts whereabouts;
    for (const Place& file : allFiles(filesAndFolders, report.unread)) {
        try {
            const std::string bytes = readFileStart(file, kTopicLines);
            std::vector<Finding> found = checkTopic(bytes, languageOf(file), english);
            checkAgainstOthers(file, parseTopic(bytes).topic, english, whereabouts, found);
            std::stable_sort(found.begin(), found.end(),
                             [](const Finding& a, const Finding& b) { return a.line < b.line; });
            for (const Finding& finding : found)
                report.found.push_back(isolated(fromPath(file)) + u":" + inDigits(finding.line) +
                                       u": " + finding.text);
        } catch (const std::runtime_error&) {
            report.unread.push_back(isolated(fromPath(file)));
        }
    }
    return report;
}

}  // namespace quillor
