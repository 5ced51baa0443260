// The start screen: prepares colours, language, font, topics and settings while
// a progress line grows, then hands over to the menu.
#pragma once

#include <filesystem>

#include "app/program_screen.h"

namespace quillor {

class frmStart : public ProgramScreen {
  public:
    explicit frmStart(Program& program);

    Control* initialFocus() override;
    void takePaper(const ImageRef& paper) override;

    Label lblName;
    Label lblMarca;
    Label lblSub;
    Frame frmeTitle;
    ControlArray<Picture, 0, 1> imgBack{"imgBack"};  // 0 the screen's, 1 the title frame's
    Line lnGo;
    Timer tmrBar;
    Frame frmeFont;
    Label lblManual;
    Label lblAction;
    Shape shpAction;
    Label lblEsc;

  protected:
    std::span<const Sheet> sheets() const override { return kLargeSheets; }
    void arrange(const Sheet& paper) override;
    void onLoad() override;
    void onKeyDown(KeyEvent& event) override;
    void onCloseRequest() override { program_.end(); }

  private:
    void layOut();  // start_layout.cpp, as are the next two
    void layOutTitle();
    void layOutFontPanel();
    void connect();  // events to handlers
    void eTranslate();

    void removeWhatKilledRunsLeft();
    void readColorFile();
    void loadPicture();
    void colourScreen();
    void chooseLanguage();
    void checkFont();
    void repairTopicFolder();
    void writeFirstSettings();

    void tmrBar_Timer();
    void eGoForm();
    void lblAction_Click();

    bool mbFontMissing_ = false;
    bool mbSubBounced_ = false;
    bool mbRebootReady_ = false;
};

}  // namespace quillor
