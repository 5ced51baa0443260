// The topic inventor: writes new topic files.
#pragma once

#include "app/program_screen.h"

namespace quillor {

class frmInventor : public ProgramScreen {
  public:
    explicit frmInventor(Program& program);

    static constexpr int kNameLength = 22;  // of what is typed

    Picture imgBack;
    Shape shpHead;
    ControlArray<Label, 0, 3> lblLabel{"lblLabel"};  // heading, topic, file, phrases
    Shape shpBack;
    Label lblBack;
    Shape shpOpen;
    Label lblOpen;
    Shape shpHelp;
    Label lblHelp;
    TextField txtTheme;
    TextField txtFile;
    TextField txtWord;
    Shape shpAdd;
    Label lblOk;
    Shape shpDel;
    Label lblDel;
    ListBox lstTopics;
    Label lblHint;  // what the game will say to the phrase, or to the topic
    Label lblCont;
    Shape shpSave;
    ControlArray<Label, 0, 1> lblSave{"lblSave"};  // 0 the face, 1 the caption

    Control* initialFocus() override { return &txtTheme; }
    void openHelp() override { lblHelp_Click(); }
    bool takesFiles() const override { return true; }
    void takePaper(const ImageRef& paper) override { imgBack.image = paper; }

  protected:
    std::span<const Sheet> sheets() const override { return kLargeSheets; }
    void arrange(const Sheet& paper) override;  // inventor_layout.cpp
    void onLoad() override;
    void onUnload() override;
    TextPair ownKeys() const override { return texts::kKeysInventor; }
    void goBack() override;
    void onFilesDropped(const std::vector<std::filesystem::path>& files) override;
    void onCloseRequest() override { program_.close(*this); }

  private:
    void layOut();  // inventor_layout.cpp, as are the next five and eTranslate
    void setFonts(float larger);
    void arrangeHead(Twips left, Twips inner, const Area& back);  // its button's top and size
    void arrangeField(Label& words, TextField& field, const Area& area);
    void arrangePhrases(const Area& area, Twips button);
    void arrangeSave(const Area& area);
    void connect();
    void connectFields();
    void connectButtons();
    void eTranslate();
    void eRefreshButton();
    void showHint();
    Text hintOfPhrase() const;
    Text hintOfTopic() const;
    Place itsFile() const;
    char16_t eCheck_Key(char16_t character) const;
    char16_t txtTheme_KeyPress(char16_t character);
    char16_t txtWord_KeyPress(char16_t character);
    void txtWord_KeyDown(KeyEvent& event);
    void txtFile_Change();
    void lstTopics_KeyDown(KeyEvent& event);
    void cut();
    void paste();
    void lblOk_Click();
    void lblDel_Click();
    void lblSave_Click();
    /// Throws std::runtime_error when the file cannot be written.
    void saveTopic();
    void clearAll();
    bool mayLoseTopic();
    void lblOpen_Click();
    /// Throws std::runtime_error when the file cannot be read.
    void openTopic(const Place& file);
    void lblHelp_Click();
    void lblBack_Click() { program_.close(*this); }

    bool restarting_ = false;
};

}  // namespace quillor
