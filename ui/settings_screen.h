// The settings screen: every change is in the settings file before the next
// event is handled.
#pragma once

#include "app/program_screen.h"
#include "ui/colors.h"

namespace quillor {

class frmOptions : public ProgramScreen {
  public:
    explicit frmOptions(Program& program);

    static constexpr int kLastOption = 4;  // option 0 is the heading of the designs
    static constexpr int kFirstOption = 1;
    static constexpr int kLastDesign = kDesigns - 1;
    static constexpr int kLastTile = 6;

    Picture imgBack;
    ControlArray<Line, 0, kLastTile> lnLetter{"lnLetter"};
    ControlArray<Label, 0, kLastTile> lblLetter{"lblLetter"};
    ControlArray<Shape, 0, kLastOption> shpCheck{"shpCheck"};
    ControlArray<Label, 0, kLastOption> lblCheck{"lblCheck"};
    ControlArray<Label, 0, kLastOption> lblOpts{"lblOpts"};
    ControlArray<Shape, 0, kLastDesign> shpDs{"shpDs"};
    ControlArray<Label, 0, kLastDesign> lblDs{"lblDs"};
    Shape shpBack;
    ControlArray<Label, 0, 1> lblBack{"lblBack"};  // 0 the arrow, 1 the word

    Control* initialFocus() override { return &lblCheck(1); }
    void takePaper(const ImageRef& paper) override { imgBack.image = paper; }

  protected:
    std::span<const Sheet> sheets() const override { return kLargeSheets; }
    void arrange(const Sheet& paper) override;
    void onLoad() override;
    void onUnload() override;
    void onKeyDown(KeyEvent& event) override;
    TextPair ownKeys() const override { return texts::kKeysSettings; }
    void goBack() override { program_.close(*this); }
    void onCloseRequest() override { program_.close(*this); }

  private:
    void layOut();  // settings_layout.cpp, as are the next four
    void layOutTiles();
    void layOutOptions();
    void layOutDesigns();
    void layOutBack();
    void connect();
    void eTranslate();
    void eLoadColor();
    void eLoadData();
    void eSaveData();
    void ePressCheck(int option);
    void pressByKey(int option);
    void lblDs_Click(int design);
    void markDesign(int design);
    void paintTiles(int design);
    bool& settingOf(int option);
    void showTicks();
};

/// Makes the settings screen known to the program.
void addSettingsScreen(Program& program);

}  // namespace quillor
