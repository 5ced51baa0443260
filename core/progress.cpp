// One table says which line is which number; scores and phrases stand behind them.
#include "core/progress.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "core/files.h"
#include "core/guard.h"
#include "core/numbers.h"
#include "core/topic_library.h"

namespace quillor {

namespace {

constexpr TextView kFirstLine = u"Quillor-Progress 1";
constexpr std::size_t kMostLines = 200'000;
constexpr int kMostAside = 100;  // files that were put aside
constexpr std::size_t kMostDigits = 9;

struct Number {
    TextView name;
    int Progress::*value;
};
constexpr std::array<Number, 7> kNumbers{{
    {u"games won", &Progress::won},
    {u"games lost", &Progress::lost},
    {u"victories in a row", &Progress::run},
    {u"longest run of victories", &Progress::longestRun},
    {u"best score", &Progress::bestScore},
    {u"letters typed", &Progress::letters},
    {u"answers typed", &Progress::answers},
}};
constexpr TextView kScores = u"last scores";
constexpr TextView kSolved = u"solved";
constexpr TextView kBetween = u": ";
constexpr char16_t kTab = u'\t';  // between a topic's title and a phrase of it

class Damaged : public std::runtime_error {
  public:
    Damaged() : runtime_error("no progress of this program") {}
};

int wholeNumber(TextView digits) {
    if (digits.empty() || digits.size() > kMostDigits ||
        digits.find_first_not_of(u"0123456789") != TextView::npos)
        throw Damaged();
    int number = 0;
    for (const char16_t digit : digits)
        number = 10 * number + (digit - u'0');
    return number;
}

void readScores(Progress& progress, TextView list) {
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(u' '), list.size());
        progress.scores.push_back(wholeNumber(list.substr(0, end)));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    if (progress.scores.size() > kMostScores)
        throw Damaged();
}

void readSolved(Progress& progress, TextView both) {
    const std::size_t tab = both.find(kTab);
    if (tab == TextView::npos)
        throw Damaged();
    progress.solved[Text(both.substr(0, tab))].insert(Text(both.substr(tab + 1)));
}

// What would make a line of the file that is not read back as it was.
bool canBeKept(TextView text) {
    return std::all_of(text.begin(), text.end(), [](char16_t sign) { return sign >= u' '; });
}

void readLine(Progress& progress, const Text& line) {
    if (!canBeKept(line.substr(0, line.find(kTab))))
        throw Damaged();
    const std::size_t colon = std::min(line.find(kBetween), line.size());
    const TextView name = TextView(line).substr(0, colon);
    const TextView value = TextView(line).substr(std::min(colon + kBetween.size(), line.size()));
    const auto known = std::find_if(kNumbers.begin(), kNumbers.end(),
                                    [name](const Number& number) { return number.name == name; });
    if (known != kNumbers.end())
        progress.*known->value = wholeNumber(value);
    else if (name == kScores)
        readScores(progress, value);
    else if (name == kSolved)
        readSolved(progress, value);
    else
        progress.unknown.push_back(line);
}

// Throws Damaged, or another std::runtime_error where it cannot be read at all.
Progress read(const Place& file) {
    Progress progress;
    if (file.disk().look(file).kind == Disk::Kind::Nothing)
        return progress;
    const std::vector<Text> lines = readLines(file, kMostLines);
    if (lines.empty() || lines.front() != kFirstLine)
        throw Damaged();
    std::for_each(lines.begin() + 1, lines.end(),
                  [&progress](const Text& line) { readLine(progress, line); });
    return progress;
}

std::vector<Text> written(const Progress& progress) {
    std::vector<Text> lines{Text(kFirstLine)};
    for (const Number& number : kNumbers)
        lines.push_back(Text(number.name).append(kBetween) + inDigits(progress.*number.value));
    Text scores;
    for (const int score : progress.scores)
        scores += (scores.empty() ? u"" : u" ") + inDigits(score);
    lines.push_back(Text(kScores).append(kBetween) + scores);
    for (const auto& [title, phrases] : progress.solved)
        for (const Text& phrase : phrases)
            lines.push_back(Text(kSolved).append(kBetween).append(title).append(1, kTab) + phrase);
    lines.insert(lines.end(), progress.unknown.begin(), progress.unknown.end());
    return lines;
}

// Throws when it cannot be: then nothing may be written over it.
void putAside(const Place& file, const Place& folder) {
    for (int i = 1; i <= kMostAside; ++i) {
        const Text name = u"Quillor-Progress-aside-" + inDigits(i) + u".txt";
        if (file.disk().moveToNew(file, folder / toPath(name)))
            return;
    }
    throw std::runtime_error("too many files put aside");
}

// What is to be changed, out of the way whatever is in its place.
Progress readOrPutAside(const Place& programFolder) {
    const Place file = progressFile(programFolder);
    try {
        return read(file);
    } catch (const Damaged&) {
        putAside(file, programFolder);
        return {};
    }
}

}  // namespace

void count(Progress& progress, const Played& played) {
    progress.letters += played.letters;
    progress.answers += played.answers;
    if (!played.won)
        return;
    ++(*played.won ? progress.won : progress.lost);
    progress.run = *played.won ? progress.run + 1 : 0;
    progress.longestRun = std::max(progress.longestRun, progress.run);
    if (*played.won && !played.phrase.empty() && canBeKept(played.topic + played.phrase))
        progress.solved[played.topic].insert(played.phrase);
    if (!played.score)
        return;
    progress.bestScore = std::max(progress.bestScore, *played.score);
    progress.scores.push_back(*played.score);
    if (progress.scores.size() > kMostScores)
        progress.scores.erase(progress.scores.begin());
}

int solvedPhrases(const Progress& progress, const Topic& topic) {
    const auto solved = progress.solved.find(topicTitle(topic));
    if (solved == progress.solved.end())
        return 0;
    const auto end = topic.begin() + 1 + countPhrases(topic);
    return static_cast<int>(std::count_if(topic.begin() + 1, end, [&solved](const Text& phrase) {
        return solved->second.contains(phrase);
    }));
}

Place progressFile(const Place& programFolder) {
    return programFolder / "Quillor-Progress.txt";
}

std::optional<Progress> readProgress(const Place& programFolder) {
    std::optional<Progress> progress;
    quietly("readProgress", [&] { progress = read(progressFile(programFolder)); });
    return progress;
}

bool addToProgress(const Place& programFolder, const std::vector<Played>& played) {
    return quietly("addToProgress", [&] {
        Progress progress = readOrPutAside(programFolder);
        for (const Played& each : played)
            count(progress, each);
        writeLines(progressFile(programFolder), written(progress));
    });
}

bool emptyProgress(const Place& programFolder) {
    return quietly("emptyProgress", [&] {
        Progress empty;
        empty.unknown = readOrPutAside(programFolder).unknown;
        writeLines(progressFile(programFolder), written(empty));
    });
}

}  // namespace quillor
