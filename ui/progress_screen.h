// The page "Progress": what the player has done so far, and the way the score went.
#pragma once

#include "app/program_screen.h"
#include "core/progress.h"

namespace quillor {

class frmProgress : public ProgramScreen {
  public:
    explicit frmProgress(Program& program);

    static constexpr int kLastCount = 6;
    static constexpr int kLastScore = static_cast<int>(kMostScores) - 1;

    Picture imgBack;
    Shape shpHead;
    Label lblHeading;
    Shape shpBack;
    Label lblBack;
    Shape shpEmpty;
    Label lblEmpty;
    ControlArray<Label, 0, kLastCount> lblCount{"lblCount"};
    Label lblScores;  // the line in words
    Shape shpChart;
    ControlArray<Line, 1, kLastScore> lnScore{"lnScore"};  // each to its score, from the one before
    Label lblTopics;
    ListBox lstTopics;
    Timer tmrSpeak;  // once the page is seen

    Control* initialFocus() override { return &lstTopics; }
    void takePaper(const ImageRef& paper) override { imgBack.image = paper; }

  protected:
    std::span<const Sheet> sheets() const override { return kLargeSheets; }
    void arrange(const Sheet& paper) override;
    void onLoad() override;
    void onKeyDown(KeyEvent& event) override;
    TextPair ownKeys() const override { return texts::kKeysProgress; }
    void goBack() override { program_.close(*this); }
    void onCloseRequest() override { program_.close(*this); }

  private:
    void layOut();
    void layOutHead();
    void arrangeHead(const Area& area, float larger);
    void connect();
    void eTranslate();
    void show(const Progress& progress);
    void showCounts(const Progress& progress);
    void showScores(const std::vector<int>& scores);
    void drawScores();
    void tellScores();
    void showTopics(const Progress& progress);
    void lblEmpty_Click();

    std::vector<int> scores_;  // as drawn
};

/// Makes the page known to the program, and puts it into the menu "View" of the large
/// screens, for when no game is being played. To be called before the first screen is made.
void addProgressScreen(Program& program);

}  // namespace quillor
