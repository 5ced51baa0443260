// Topic files in and out of the record.
#include "core/topic_library.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

#include "core/files.h"
#include "core/guard.h"
#include "core/text_rules.h"
#include "core/texts.h"

namespace quillor {

namespace fs = std::filesystem;

namespace {

std::vector<Text> splitAtStops(TextView text) {
    std::vector<Text> parts;
    for (;;) {
        const std::size_t stop = text.find(u'.');
        parts.emplace_back(text.substr(0, stop));
        if (stop == TextView::npos)
            return parts;
        text.remove_prefix(stop + 1);
    }
}

// Every topic has a number of 16 bits, from 0 on.
constexpr std::size_t kMostTopics = 32'768;

struct ListedFile {
    Text sortName;
    fs::path name;
};

}  // namespace

Place topicFolder(const GameSettings& settings, const Place& programFolder) {
    return programFolder / (settings.gbEnglish ? "Topics" : "Temas");
}

std::vector<Place> topicFiles(const Place& folder) {
    std::vector<ListedFile> listed;
    for (const Disk::Entry& entry : folder.disk().list(folder)) {
        Text sortName = upperCase(fromPath(entry.name));
        if (sortName.ends_with(u".TXT") && entry.kind == Disk::Kind::File)
            listed.push_back({std::move(sortName), entry.name});
    }
    std::sort(listed.begin(), listed.end(), [](const ListedFile& a, const ListedFile& b) {
        return std::tie(a.sortName, a.name) < std::tie(b.sortName, b.name);
    });
    std::vector<Place> files;
    files.reserve(listed.size());
    for (const ListedFile& file : listed)
        files.push_back(folder / file.name);
    return files;
}

bool eWriteDemoTopic(const GameSettings& settings, const Place& programFolder) {
    return quietly("eWriteDemoTopic", [&] {
        writeNewLines(topicFolder(settings, programFolder) / "DEMO.txt",
                      splitAtStops(eLang(settings, texts::kDemoTopic)));
    });
}

namespace {

constexpr const char* kLaidOut = "Quillor-Packs.txt";  // the topics' names, one a line

// Adds the names of those that are there now to `known`; false when one could not be
// laid out.
bool layOutFolder(const Place& from, const Place& to, std::vector<Text>& known) {
    if (from.disk().look(from).kind != Disk::Kind::Folder)
        return true;
    if (to.disk().look(to).kind == Disk::Kind::Nothing)
        to.disk().makeFolder(to);
    bool all = true;
    for (const Place& pack : topicFiles(from)) {
        const fs::path name = pack.path().filename();
        const Text line = fromPath(to.path().filename()) + u"/" + fromPath(name);
        if (std::find(known.begin(), known.end(), line) != known.end())
            continue;
        all &= quietly("lay out a topic", [&] {
            if (const auto bytes = readFile(pack, kMostTopicBytes)) {
                writeNewFile(to / name, *bytes);
                known.push_back(line);
            }
        });
    }
    return all;
}

}  // namespace

bool layOutTopics(const Place& packs, const Place& programFolder) {
    bool all = true;
    const bool ended = quietly("layOutTopics", [&] {
        const Place list = programFolder / kLaidOut;
        std::vector<Text> known;
        if (list.disk().look(list).kind != Disk::Kind::Nothing)
            known = readLines(list, 2 * kMostTopics);
        const std::size_t before = known.size();
        for (const char* folder : {"Temas", "Topics"})
            all &= layOutFolder(packs / folder, programFolder / folder, known);
        if (known.size() > before)
            writeLines(list, known);
    });
    return ended && all;
}

ParsedTopic parseTopic(std::string_view bytes) {
    SplitLines split = splitLines(bytes, kTopicLines);
    ParsedTopic parsed;
    parsed.tooLong = split.more;
    parsed.lines = static_cast<int>(split.lines.size());
    for (Text& line : split.lines)
        std::transform(line.begin(), line.end(), line.begin(),
                       [](char16_t c) { return upperCase(c); });
    std::move(split.lines.begin(), split.lines.end(), parsed.topic.begin());
    return parsed;
}

void eLoadWords(GameSettings& settings, const Place& programFolder) {
    std::vector<Place> files;
    quietly("eLoadWords", [&] { files = topicFiles(topicFolder(settings, programFolder)); });
    if (files.size() > kMostTopics)
        files.erase(files.begin() + kMostTopics, files.end());
    settings.giTopicMax = static_cast<std::int16_t>(static_cast<int>(files.size()) - 1);
    settings.gaTopicLines.resize(files.size());
    quietly("eLoadWords", [&] {
        for (std::size_t i = 0; i < files.size(); ++i) {
            ParsedTopic parsed = parseTopic(readFileStart(files[i], kTopicLines));
            settings.gaTopicLines[i] = std::move(parsed.topic);
            if (parsed.tooLong)
                return;
        }
    });
}

Text topicTitle(const Topic& topic) {
    return trimmed(replaceAll(upperCase(topic[0]), texts::kSpanishTag, u""));
}

int countPhrases(const Topic& topic) {
    const auto gap =
        std::find_if(topic.begin() + 1, topic.end(), [](const Text& line) { return line.empty(); });
    return static_cast<int>(gap - topic.begin()) - 1;
}

namespace {

// The rules of the strictest system, which is Windows, hold for all: topics travel.
constexpr TextView kForbidden = u"\\/:*?\"<>|";
constexpr char16_t kFirstPrintable = 32;
constexpr char16_t kDelete = 127;

constexpr std::array<TextView, 6> kDevices{u"CON", u"PRN", u"AUX", u"NUL", u"CONIN$", u"CONOUT$"};
constexpr std::array<TextView, 2> kPorts{u"COM", u"LPT"};
constexpr TextView kPortDigits = u"0123456789¹²³";

bool isDevice(TextView word) {
    if (std::find(kDevices.begin(), kDevices.end(), word) != kDevices.end())
        return true;
    return word.size() == 4 && kPortDigits.find(word.back()) != TextView::npos &&
           std::find(kPorts.begin(), kPorts.end(), word.substr(0, 3)) != kPorts.end();
}

}  // namespace

bool isForbiddenInNames(char16_t sign) {
    return sign < kFirstPrintable || sign == kDelete || kForbidden.find(sign) != TextView::npos;
}

Text withoutForbidden(TextView name) {
    Text legal(name);
    std::erase_if(legal, isForbiddenInNames);
    return legal;
}

// Windows looks at what stands before the first stop, and at no blanks around it.
Text besideDevices(TextView name) {
    const TextView start = name.substr(0, name.find(u'.'));
    if (!isDevice(trimmed(upperCase(start))))
        return Text(name);
    return Text(name).insert(start.find_last_not_of(u' ') + 1, u"_");
}

}  // namespace quillor
