// The classic entry screen: one player types a phrase and a topic for another.
#pragma once

#include "app/phrase_taker.h"
#include "app/program.h"
#include "toolkit/screen.h"

namespace quillor {

class frmWord1 : public Screen {
  public:
    explicit frmWord1(Program& program);

    Picture imgBack;
    Shape shpFond;
    ControlArray<Label, 0, 1> lblSelect{"lblSelect"};  // 0 topic, 1 phrase
    TextField txtWord;
    TextField txtTheme;
    Shape shpOk;
    ControlArray<Label, 0, 1> lblOk{"lblOk"};  // 0 the face, 1 the caption

    Control* initialFocus() override { return &txtWord; }
    void takePaper(const ImageRef& paper) override { imgBack.image = paper; }

  protected:
    void onLoad() override;
    void onUnload() override { phraseTaker(program_).setGameEnabled(true); }
    void onCloseRequest() override { program_.close(*this); }

  private:
    void layOut();  // classic_entry_layout.cpp
    void connect();
    void eTranslate();
    char16_t eCheck_Key(char16_t character) const;
    char16_t txtWord_KeyPress(char16_t character);
    char16_t txtTheme_KeyPress(char16_t character);
    void txtTheme_Change();
    void txtTheme_GotFocus();
    void txtTheme_LostFocus();
    void field_KeyDown(KeyEvent& event);
    void lblOk_Click();
    Text placeholder() const { return program_.lang(texts::kNoTopic); }

    Program& program_;
    GameSettings& settings_;
};

}  // namespace quillor
