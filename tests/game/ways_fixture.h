// Topics in a row, and the ways from one to the next.
#pragma once

#include "game/rules/ways.h"
#include "tests/support/game_test.h"

namespace quillor::testing {

class SelectionWaysTest : public GameTest {
  protected:
    // Topics "T0", "T1", ... whose phrases are letters that occur nowhere else.
    void addTopics(int count) {
        for (int i = 0; i < count; ++i) {
            const auto name = static_cast<char16_t>(u'0' + i);
            const auto phrase = static_cast<char16_t>(u'A' + i);
            addTopic(Text(u"T") + name + u"\r\nX" + phrase + u"\r\nY" + phrase);
        }
    }
    void openWithTopics(int count) {
        addTopics(count);
        openArcade();
    }
    // Picks a topic and a way on the selection screen.
    void pick(int topic, int stepsForward = 0) {
        player.press(key::kReturn);
        player.selectItem("lstTopics", topic);
        for (int i = 0; i < stepsForward; ++i)
            player.press(key::kRight);
        player.press(key::kReturn);
    }
    void win() {
        answer(settings.gsPhrase);
        waitForScore();
    }
    // The last game of a tour: its end is told before the score counts.
    void winTheTour() {
        desktop.answerInput(lang(texts::kEnterAnswer), settings.gsPhrase);
        expectBox(texts::kTourCompleted);
        player.type(u"!");
        waitForScore();
    }
    void next() { player.press(key::kReturn); }
    Text topic() { return game().board.lblTopic.caption; }
    // The entries of the menu that are checked.
    std::vector<std::string> checks() {
        std::vector<std::string> ids;
        for (const MenuItem* item : game().menu.mAuto.children)
            if (item->checked)
                ids.push_back(item->id);
        return ids;
    }
    using Ids = std::vector<std::string>;
};

inline constexpr int kTourSteps = 2;  // from Manual to Tour on the selection screen

}  // namespace quillor::testing
