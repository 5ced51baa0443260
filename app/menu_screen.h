// The main menu: every mode is reached from here.
#pragma once

#include "app/program_screen.h"

namespace quillor {

class frmMenu : public ProgramScreen {
  public:
    explicit frmMenu(Program& program);

    void takePaper(const ImageRef& paper) override { imgBack.image = paper; }
    Control* initialFocus() override { return &lblOption(kFirstButton); }
    bool takesFiles() const override { return true; }

    static constexpr int kOptions = 4;      // 0..3 are the captions
    static constexpr int kFirstButton = 4;  // 4..7 the buttons they stand on
    static constexpr int kLastButton = 7;

    Picture imgBack;
    Label lblWelcome;
    ControlArray<Shape, kFirstButton, kLastButton> shpOption{"shpOption"};
    ControlArray<Label, 0, kLastButton> lblOption{"lblOption"};
    Timer tmrTopics;  // once the menu is seen, for topics that the program was started with

  protected:
    std::span<const Sheet> sheets() const override { return kLargeSheets; }
    void arrange(const Sheet& paper) override;
    void onLoad() override;
    void onKeyDown(KeyEvent& event) override;
    TextPair ownKeys() const override { return texts::kKeysMenu; }
    void onFilesDropped(const std::vector<std::filesystem::path>& files) override;
    void onCloseRequest() override { program_.end(); }

  private:
    void layOut();
    void connect();
    void eTranslate();
    void eFallColor();
    void open(ScreenId screen);
    void choose(int option);
    void hover(int label);
    void press(int label);
    void release(int label);
    void tmrTopics_Timer();
    Color restColor(int button) const;

    static constexpr int kNoButton = 8;

    int hovered_ = kNoButton;
    bool pressed_ = false;
    Color rememberedColor_ = 0;
    bool rememberedOpaque_ = false;
};

}  // namespace quillor
