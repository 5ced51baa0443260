// What the start waits for (reading the topics) and what each guess costs.
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

#include "core/files.h"
#include "core/text_rules.h"
#include "core/topic_library.h"

namespace quillor {

namespace {

const Text kPhrase = u"la canción más larga de un tablero ñ";

/// A program folder with full topics, removed afterwards.
class FullLibrary {
  public:
    explicit FullLibrary(int topics) {
        std::filesystem::create_directories(folder / "Temas");
        const std::vector<Text> lines(kTopicLines, kPhrase);
        for (int i = 0; i < topics; ++i)
            writeLines(folder / "Temas" / (std::to_string(i) + ".txt"), lines);
    }
    ~FullLibrary() { std::filesystem::remove_all(folder); }
    FullLibrary(const FullLibrary&) = delete;
    FullLibrary& operator=(const FullLibrary&) = delete;

    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        ("quillor-bench-" +
         std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()));
};

void loadTopics(benchmark::State& state) {
    const FullLibrary library(static_cast<int>(state.range(0)));
    for (auto round : state) {
        GameSettings settings;
        eLoadWords(settings, library.folder);
        benchmark::DoNotOptimize(settings.gaTopicLines);
    }
}
BENCHMARK(loadTopics)->Arg(1000)->Arg(32767)->Unit(benchmark::kMillisecond);

// What loading them is held against: every file read whole, and nothing made of it.
void readTopics(benchmark::State& state) {
    const FullLibrary library(static_cast<int>(state.range(0)));
    for (auto round : state) {
        std::size_t bytes = 0;
        for (const auto& entry : std::filesystem::directory_iterator(library.folder / "Temas")) {
            std::string content(entry.file_size(), '\0');
            std::ifstream file(entry.path(), std::ios::binary);
            bytes +=
                file.read(content.data(), static_cast<std::streamsize>(content.size())) ? 1 : 0;
        }
        benchmark::DoNotOptimize(bytes);
    }
}
BENCHMARK(readTopics)->Arg(1000)->Arg(32767)->Unit(benchmark::kMillisecond);

void foldPhrase(benchmark::State& state) {
    for (auto round : state)
        benchmark::DoNotOptimize(eFoldAccents(kPhrase));
}
BENCHMARK(foldPhrase);

void wrapOnBoard(benchmark::State& state) {
    for (auto round : state)
        benchmark::DoNotOptimize(wrapPhrase(kPhrase));
}
BENCHMARK(wrapOnBoard);

}  // namespace

}  // namespace quillor
