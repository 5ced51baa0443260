// The classic entry screen: one player types a phrase and a topic for another.
#pragma once

#include "topics/entry_screen.h"

namespace quillor {

class frmWord1 : public EntryScreen {
  public:
    explicit frmWord1(Program& program);

    ControlArray<Label, 0, 1> lblSelect{"lblSelect"};  // 0 topic, 1 phrase
    TextField txtWord;
    TextField txtTheme;

    Control* initialFocus() override { return &txtWord; }

  protected:
    std::span<const Sheet> sheets() const override { return kSheets; }
    void arrange(const Sheet& paper) override;
    void onLoad() override;
    TextPair ownKeys() const override { return texts::kKeysPhrase; }

  private:
    static constexpr std::array kSheets{Sheet{Layout::Wide, kWidth, 5040},
                                        Sheet{Layout::Tall, kWidth, 7260}};

    void layOut();
    void connect();
    void eTranslate();
    char16_t eCheck_Key(char16_t character) const;
    char16_t txtWord_KeyPress(char16_t character);
    char16_t txtTheme_KeyPress(char16_t character);
    void txtTheme_Change();
    void txtTheme_GotFocus();
    void txtTheme_LostFocus();
    void lblOk_Click();
    Text placeholder() const { return program_.lang(texts::kNoTopic); }
};

}  // namespace quillor
