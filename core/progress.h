// What the player has done so far, in a file of its own. It is told of and looked at;
// nothing of the game goes by it.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <vector>

#include "core/disk.h"
#include "core/game_settings.h"

namespace quillor {

inline constexpr std::size_t kMostScores = 50;

struct Progress {
    int won = 0;
    int lost = 0;
    int run = 0;  // victories in a row up to now
    int longestRun = 0;
    int bestScore = 0;
    int letters = 0;                        // typed or clicked
    int answers = 0;                        // typed
    std::vector<int> scores;                // after the last fifty arcade games, oldest first
    std::map<Text, std::set<Text>> solved;  // the phrases of each topic, by its title
    std::vector<Text> unknown;              // lines of the file that are kept as they are
};

/// What has happened since the last report.
struct Played {
    std::optional<bool> won;  // nothing: no game has ended
    int letters = 0;
    int answers = 0;
    std::optional<int> score;  // after an arcade game that keeps one
    Text topic;                // its title, and the phrase; of arcade games alone
    Text phrase;
};
/// Adds it to the numbers: a run grows with each victory and ends with a death, and of the
/// scores the last kMostScores stay.
void count(Progress& progress, const Played& played);

/// How many of the phrases that can be dealt of the topic have been solved.
int solvedPhrases(const Progress& progress, const Topic& topic);

/// Where it is kept, whether there is a file or not.
Place progressFile(const Place& programFolder);

/// Of no file: nothing done yet. Nothing where the file is damaged or another program's,
/// or cannot be read.
std::optional<Progress> readProgress(const Place& programFolder);

/// Reads the file, adds to it and writes it, so that several running copies may. A file
/// that is damaged or another program's gets another name first; one that cannot be read
/// stays as it is. Returns whether it is saved; fails silently.
bool addToProgress(const Place& programFolder, const std::vector<Played>& played);

/// As if nothing had been done yet; lines that are not known stay. The same of failures.
bool emptyProgress(const Place& programFolder);

}  // namespace quillor
