// The scenarios, walked through by the tests' player and in real windows: after
// every step both show the same.
#include <fstream>

#include <gtest/gtest.h>

#include "game/game_screen.h"
#include "tests/qt/scenario_step.h"
#include "tests/qt/walkers.h"
#include "topics/topics.h"
#include "ui/progress_screen.h"
#include "ui/settings_screen.h"

namespace quillor::testing {

namespace {

class BothShells : public ::testing::Test {
  protected:
    BothShells() {
        for (Program* program : {&run_.program, &windows_.program}) {
            addSettingsScreen(*program);
            addProgressScreen(*program);
            addTopicScreens(*program);
            addGameScreens(*program);
            setPalette(program->settings);
            program->settings.gbEnglish = true;
        }
    }
    void start(ScreenId id) {
        run_.show(id);
        windows_.show(id);
        compare("at first");
    }
    /// Walks through a scenario in both shells.
    void walk(const std::string& scenario) {
        std::ifstream file(QUILLOR_SOURCE_DIR "/tests/scenarios/" + scenario + ".txt");
        ASSERT_TRUE(file.is_open());
        for (std::string line; std::getline(file, line);)
            if (!line.empty() && line.front() != '#')
                take(line);
    }

  private:
    void take(const std::string& line) {
        const Step step(line);
        if (step.verb == "start")
            return start(step.rest == "Settings" ? ScreenId::Settings : ScreenId::Menu);
        if (step.act(player_)) {
            step.act(windows_);
            return compare(line);
        }
        EXPECT_TRUE(step.isSeen(player_.shown())) << line << '\n' << player_.shown();
    }
    void compare(const std::string& when) { EXPECT_EQ(player_.shown(), windows_.shown()) << when; }

    OpenProgram run_;
    PlayerWalker player_{run_};
    WindowWalker windows_;
};

TEST_F(BothShells, ShowTheSameOnTheMenuAndTheSettings) {
    walk("menu_and_settings");
}

TEST_F(BothShells, ShowTheSameInTheInventor) {
    walk("inventor");
}

TEST_F(BothShells, ShowTheSameInWholeGamesByKeyboardAlone) {
    walk("whole_games_by_keyboard");
}

TEST_F(BothShells, ShowTheSameOnEverySettingByKeyboardAlone) {
    walk("settings_by_keyboard");
}

TEST_F(BothShells, ShowTheSameInAClassicGame) {
    walk("classic_game");
}

}  // namespace

}  // namespace quillor::testing
