// The topic selection screen: lists the topics, takes a selection way, and
// deals a phrase of the chosen topic to the game.
#pragma once

#include <cstdint>

#include "app/phrase_taker.h"
#include "app/program.h"
#include "toolkit/screen.h"

namespace quillor {

class frmWord2 : public Screen {
  public:
    explicit frmWord2(Program& program);

    Picture imgBack;
    Shape shpFond;
    ListBox lstTopics;
    Label lblSelect;
    ControlArray<Shape, 0, 1> shpChng{"shpChng"};
    ControlArray<Label, 0, 1> lblChng{"lblChng"};  // 0 steps back, 1 forward
    Label lblOpt;
    Shape shpOk;
    ControlArray<Label, 0, 1> lblOk{"lblOk"};  // 0 the face, 1 the caption

    Control* initialFocus() override { return &lstTopics; }
    void takePaper(const ImageRef& paper) override { imgBack.image = paper; }

    /// Deals a phrase of the topic at that place of the list (which is the
    /// topic's index) and starts a game with it. A topic with too few phrases,
    /// or an error, is said in a box, and no game starts.
    void eChoiceTopic(std::int16_t listIndex);

  protected:
    void onLoad() override;
    void onUnload() override { phraseTaker(program_).setGameEnabled(true); }
    void onCloseRequest() override { program_.close(*this); }

  private:
    void layOut();  // topic_selection_layout.cpp
    void connect();
    void eTranslate();
    void fillList();
    void lblOk_Click();
    void eChangeMode(int step);
    void lstTopics_KeyDown(KeyEvent& event);
    void choose(std::int16_t topic);
    void nameTopic(const Topic& topic);
    void dealPhrase(const Topic& topic, int phrases);
    void tellGame();

    Program& program_;
    GameSettings& settings_;
    int pendingMode_ = 0;
};

}  // namespace quillor
