// The topic selection screen: lists the topics, takes a selection way, and
// deals a phrase of the chosen topic to the game.
#pragma once

#include <cstdint>

#include "topics/entry_screen.h"

namespace quillor {

class frmWord2 : public EntryScreen {
  public:
    explicit frmWord2(Program& program);

    ListBox lstTopics;
    Label lblSelect;
    ControlArray<Shape, 0, 1> shpChng{"shpChng"};
    ControlArray<Label, 0, 1> lblChng{"lblChng"};  // 0 steps back, 1 forward
    Label lblOpt;

    Control* initialFocus() override { return &lstTopics; }

    /// Deals a phrase of the topic at that place of the list (which is the
    /// topic's index) and starts a game with it. A topic with too few phrases,
    /// or an error, is said in a box, and no game starts.
    void eChoiceTopic(std::int16_t listIndex);

  protected:
    void onLoad() override;

  private:
    void layOut();  // topic_selection_layout.cpp, as is the next one
    void layOutModes();
    void connect();
    void eTranslate();
    void fillList();
    void lblOk_Click();
    void eChangeMode(int step);
    void lstTopics_KeyDown(KeyEvent& event);
    void choose(std::int16_t topicIndex);
    void nameTopic(const Topic& topic);
    void dealPhrase(const Topic& topic, int phrases);
    void tellGame();

    int pendingMode_ = 0;
};

}  // namespace quillor
