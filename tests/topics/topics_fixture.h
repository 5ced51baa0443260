// The screens that choose a phrase, over a game that only takes it.
#pragma once

#include <gtest/gtest.h>

#include "app/phrase_taker.h"
#include "core/text_codec.h"
#include "tests/support/open_program.h"
#include "topics/classic_entry.h"
#include "topics/inventor.h"
#include "topics/register_screens.h"
#include "topics/topic_selection.h"

namespace quillor::testing {

/// Keeps what it was told, in the order of telling.
class FakeGame : public Screen, public PhraseTaker {
  public:
    explicit FakeGame(Program& program) : Screen("frmGame"), settings_(program.settings) {}

    struct Played {
        Text phrase;
        Text topic;
    };
    std::vector<Played> games;
    std::vector<int> ways;
    int timesRepeatAndTourEnabled = 0;
    ImageRef itsPaper = std::make_shared<FakeImage>("game's paper");

    void eDoWay(std::int16_t way) override {
        ways.push_back(way);
        settings_.giWay = way;
    }
    void ePlayNewGame() override { games.push_back({settings_.gsPhrase, settings_.gsTopicName}); }
    void enableRepeatAndTour() override { ++timesRepeatAndTourEnabled; }
    void setGameEnabled(bool nowEnabled) override { enabled = nowEnabled; }
    ImageRef paper() const override { return itsPaper; }
    const Screen& screen() const override { return *this; }
    void takePaper(const ImageRef&) override {}

  protected:
    void onLoad() override {}
    void onCloseRequest() override {}

  private:
    GameSettings& settings_;
};

class TopicsTest : public ::testing::Test, public OpenProgram {
  protected:
    TopicsTest() {
        setPalette(settings());
        addTopicScreens(program);
        program.addScreen(ScreenId::Game,
                          [](Program& owner) { return std::make_unique<FakeGame>(owner); });
        show(ScreenId::Game);
    }

    FakeGame& game() { return as<FakeGame>(ScreenId::Game); }

    /// Adds a topic: its title and phrases, as loading would leave them.
    void addTopic(std::vector<Text> lines) {
        Topic topic;
        std::move(lines.begin(), lines.end(), topic.begin());
        settings().gaTopicLines.push_back(topic);
        settings().giTopicMax = static_cast<std::int16_t>(settings().gaTopicLines.size() - 1);
    }
};

}  // namespace quillor::testing
