// The screens that choose a phrase, over a game that only takes it.
#pragma once

#include <gtest/gtest.h>

#include "core/text_codec.h"
#include "core/text_rules.h"
#include "core/texts.h"
#include "tests/support/open_program.h"
#include "topics/classic_entry.h"
#include "topics/inventor.h"
#include "topics/topic_selection.h"
#include "topics/topics.h"

namespace quillor::testing {

/// The screen below, which takes no input meanwhile.
class FakeGame : public Screen {
  public:
    explicit FakeGame(Program&) : Screen("frmGame") {}
    ImageRef itsPaper = std::make_shared<FakeImage>("game's paper");
    void takePaper(const ImageRef&) override {}

  protected:
    void onLoad() override {}
    void onCloseRequest() override {}
};

/// A phrase that was chosen, and the record as it was then.
struct Played {
    Text phrase;
    Text topic;
    int way = 0;
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

    Text lang(const TextPair& text) { return program.lang(text); }
    FakeGame& game() { return as<FakeGame>(ScreenId::Game); }

    std::vector<Played> games;

    /// Opens a screen over the game, which notes what is chosen there.
    template <typename T>
    T& open(ScreenId id) {
        desktop.deliver([&] { program.showOver(id, game(), game().itsPaper, [this] { note(); }); });
        return as<T>(id);
    }
    void note() {
        games.push_back({settings().gsPhrase, settings().gsTopicName, settings().giWay});
    }

    /// Adds a topic: its title and phrases, as loading would leave them.
    void addTopic(std::vector<Text> lines) {
        Topic topic;
        std::move(lines.begin(), lines.end(), topic.begin());
        settings().gaTopicLines.push_back(topic);
        settings().giTopicMax = static_cast<std::int16_t>(settings().gaTopicLines.size() - 1);
    }
};

}  // namespace quillor::testing
