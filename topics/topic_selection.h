// The topic selection screen: lists the topics and takes a selection way.
#pragma once

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
    bool takesFiles() const override { return true; }

  protected:
    std::span<const Sheet> sheets() const override { return kListSheets; }
    void arrange(const Sheet& paper) override;
    void onLoad() override;
    TextPair ownKeys() const override { return texts::kKeysTopics; }
    void onFilesDropped(const std::vector<std::filesystem::path>& files) override;

  private:
    void layOut();
    void connect();
    void eTranslate();
    void fillList();
    void lblOk_Click();
    void eChangeMode(int step);
    void lstTopics_KeyDown(KeyEvent& event);

    int pendingMode_ = 0;
};

}  // namespace quillor
