// The screen that opens a topic for the inventor: the topic files of the folder.
#pragma once

#include "topics/entry_screen.h"

namespace quillor {

class frmOpen : public EntryScreen {
  public:
    explicit frmOpen(Program& program);

    ListBox lstTopics;

    Control* initialFocus() override { return &lstTopics; }
    /// The file of the selected entry. Throws std::out_of_range when none is.
    const Place& chosen() const {
        return files_.at(static_cast<std::size_t>(lstTopics.listIndex()));
    }

  protected:
    std::span<const Sheet> sheets() const override { return kListSheets; }
    void arrange(const Sheet& paper) override;
    void onLoad() override;
    TextPair ownKeys() const override { return texts::kKeysOpen; }

  private:
    void layOut();
    void connect();
    void lblOk_Click();
    void lstTopics_KeyDown(KeyEvent& event);

    std::vector<Place> files_;
};

}  // namespace quillor
