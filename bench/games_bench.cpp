// Whole games through the real game screen, without a window: what a guess
// costs with everything that belongs to it.
#include <filesystem>

#include <benchmark/benchmark.h>

#include "core/memory_disk.h"
#include "core/random.h"
#include "game/game_screen.h"
#include "topics/topics.h"

namespace quillor {

namespace {

const std::filesystem::path kFolder = "/program";

/// A machine that shows nothing, hears nothing and says yes.
class SilentDesktop : public Desktop {
  public:
    void messageBox(MessageIcon, TextView) override {}
    bool question(TextView, bool) override { return true; }
    Text inputBox(TextView) override { return {}; }
    void aboutBox(TextView, TextView) override {}
    Text clipboard() override { return {}; }
    void setClipboard(TextView) override {}
    bool fontPresent(TextView) override { return true; }
    ImageRef loadPicture(const Place&) override { return {}; }
    void open(const std::filesystem::path&) override {}
    void openAddress(TextView, TextView) override {}
    std::span<const std::byte> sound(int) override { return {}; }
    void playWave(std::span<const std::byte>) override {}
    Preferences preferences() const override { return {}; }
    TimeOfDay timeOfDay() override { return {}; }
    double random() override { return random_.next(); }
    void seedRandom() override { random_.reseed(1); }
    void show(Screen&) override {}
    void close(Screen&) override {}
    void popUp(Screen&, MenuItem&, const Control*) override {}
    bool isFullScreen() const override { return false; }
    void setFullScreen(bool) override {}
    void startProgram() override {}
    void end() override {}

  private:
    Random random_{1};
};

/// An arcade game screen that deals from the sample topic by itself; the score
/// is infinite, so that no loss ends the playing.
class Table {
  public:
    Table() {
        disk_.put(kFolder / "Quillor-Config.ini",
                  "0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n");
        addTopicScreens(program_);
        addGameScreens(program_);
        program_.load(ScreenId::Start);
        game_ = &program_.load(ScreenId::Game);
        program_.settings.giWay = kAnyTopic;
    }

    /// Plays one game to its end and returns how many letters it took.
    int playGame() {
        constexpr TextView kByFrequency = u"EAOSRNIDLCTUMPBGVYQHFZJÑXWK1234567890";
        KeyEvent enter{key::kReturn};
        game_->keyDown(enter);
        int guesses = 0;
        for (const char16_t letter : kByFrequency) {
            if (program_.settings.giGameState != kPlaying)
                break;
            game_->keyPress(letter);
            ++guesses;
        }
        program_.destroyClosed();
        return guesses;
    }

  private:
    MemoryDisk disk_;  // what a game costs, and not what the machine's disk does
    SilentDesktop desktop_;
    Program program_{desktop_, {kFolder, disk_}};
    Screen* game_ = nullptr;
};

void playGames(benchmark::State& state) {
    Table table;
    double guesses = 0;
    for (auto round : state)
        guesses += table.playGame();
    state.counters["guesses"] = benchmark::Counter(guesses, benchmark::Counter::kIsRate);
}
BENCHMARK(playGames)->Unit(benchmark::kMicrosecond);

void layOutBoard(benchmark::State& state) {
    SilentDesktop desktop;
    MemoryDisk disk;
    Program program(desktop, {kFolder, disk});
    setPalette(program.settings);
    addGameScreens(program);
    auto& game = dynamic_cast<frmGame&>(program.load(ScreenId::Game));
    program.settings.gsPhrase = u"THE LONGEST PHRASE THAT FITS A BOARD";
    eCutPhrase(program.settings);
    startRound(program.settings, game.round);
    for (auto turn : state) {
        game.board.clear(program.settings);
        ePutMagicWord(program.settings, game.round);
        game.board.layOut(program.settings, game.round);
    }
}
BENCHMARK(layOutBoard);

}  // namespace

}  // namespace quillor
