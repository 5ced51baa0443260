// Where everything on the game screen stands, in twips: beside the figure in a wide window,
// below it in a tall one.
#include "game/game_screen.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr Twips kFigureWidth = 3000;
constexpr Twips kFigureHeight = 4140;

// Both at once: what is pressed and what is seen of it.
void placeBoth(Control& face, Control& label, const Area& area) {
    face.place(area.left, area.top, area.width, area.height);
    label.place(area.left, area.top, area.width, area.height);
}

}  // namespace

std::span<const Sheet> frmGame::sheets() const {
    return kLargeSheets;
}

void frmGame::arrange(const Sheet& paper) {
    width = paper.width;
    height = paper.height;
    for (Picture& picture : imgBack) {
        picture.place(0, 0, width, height);
        picture.drawn = {};
    }
    if (paper.layout == Layout::Wide)
        arrangeWide();
    else
        arrangeTall();
    score.lblPoints.width = score.frmePoints.width;
    score.lblBonus.width = score.frmeBonus.width;
    showIdlePage(idlePage_);
    alignPaper(imgBack(1), figure.frmeMan);
    alignPaper(imgBack(2), board.frmeMagic);
}

void frmGame::arrangeWide() {
    constexpr Twips kBar = 720;
    constexpr Twips kFigure = 300;
    constexpr Twips kButtons = kFigure + 60;
    constexpr Twips kButtonWidth = kFigureWidth - 120;
    constexpr Twips kRight = 3540;
    constexpr Twips kRightWidth = 9360;
    constexpr Twips kFooter = 7665;
    lblBluebar.place(0, 0, width, kBar);
    lblMenu.place(240, 90, 1020, 540);
    lblView.place(1320, 90, 780, 540);
    lblMode.place(2220, 90, 2400, 540);
    status.lblStatus.align = Align::Center;
    status.lblStatus.place(4680, 90, 3840, 540);
    score.lblScore.place(8640, 90, 3540, 540);
    placeBoth(sounds.shpWave, sounds.lblWave(0), {12300, 90, 600, 540});
    lblHey.place(2100, kFooter, width - 4200, 360);
    accent.lblColor.place(11160, kFooter + 60, 1740, 240);

    figure.frmeMan.place(kFigure, 900, kFigureWidth, kFigureHeight);
    strikes.arrange({kButtons, 5220, kButtonWidth, 540});
    placeBoth(playButton.shpPlay, playButton.lblPlay(0), {kButtons, 5940, kButtonWidth, 840});
    webSearch.arrange({kButtons, 6960, kButtonWidth, 600});

    board.lblTopic.place(4560, 960, 6960, 600);
    clock.lblTime.align = Align::Right;
    clock.lblTime.place(11100, 960, 1800, 600);
    score.frmePoints.place(8100, kBar, 4800, 1260);
    score.frmeBonus.place(8100, kBar + 510, 4800, 1080);
    // A little to the right, as the board keeps a little to the left in it.
    board.arrange({kRight + 420, 2040, kRightWidth - 360, 2640});
    setFonts(1);
    keyboard.arrange(kRight, 4800, kRightWidth, {.columns = 10, .height = 640, .gap = 90});
}

// The bar has two rows; the keys stand at the lower edge, where thumbs are, and what room
// there is above them is the board's.
void frmGame::arrangeTall() {
    constexpr Twips kBar = 1500;
    constexpr Twips kEdge = 150;
    constexpr Twips kBlock = kBar + 120;  // the figure and what stands beside it
    constexpr Twips kBeside = kEdge + kFigureWidth + 150;
    constexpr Twips kFooter = 480;
    const bool phone = width < kHalfSheet.width;
    const Twips inner = width - 2 * kEdge;
    const Twips besideWidth = width - kBeside - kEdge;

    lblBluebar.place(0, 0, width, kBar);
    lblMenu.place(kEdge, 90, 1500, 660);
    lblView.place(kEdge + 1500, 90, 1260, 660);
    lblMode.place(kEdge + 2880, 90, inner - 2880 - 900, 660);
    placeBoth(sounds.shpWave, sounds.lblWave(0), {width - kEdge - 780, 90, 780, 660});
    status.lblStatus.align = Align::Left;
    status.lblStatus.place(kEdge + 90, 810, inner / 2 - 90, 600);
    score.lblScore.place(width / 2, 810, inner / 2 - 90, 600);

    figure.frmeMan.place(kEdge, kBlock, kFigureWidth, kFigureHeight);
    board.lblTopic.place(kBeside, kBlock, besideWidth, 600);
    clock.lblTime.align = Align::Center;
    clock.lblTime.place(kBeside, kBlock + 840, besideWidth, 600);
    score.frmePoints.place(kBeside, kBlock + 420, besideWidth, 1260);
    score.frmeBonus.place(kBeside, kBlock + 840, besideWidth, 1080);
    strikes.arrange({kBeside, kBlock + 1920, besideWidth, 600});
    placeBoth(playButton.shpPlay, playButton.lblPlay(0),
              {kBeside, kBlock + 2640, besideWidth, 900});
    webSearch.arrange({kBeside, kBlock + 3660, besideWidth, 540});

    setFonts(phone ? 1.25F : 1.1F);
    const Keyboard::Grid grid{.columns = phone ? 8 : 10,
                              .height = 1000,
                              .gap = 75,
                              .fontSize = phone ? 25.F : 23.F,
                              .commandFontSize = phone ? 19.F : 17.F};
    keyboard.arrange(kEdge, 0, inner, grid);
    keyboard.frmeBoard.top = height - kFooter - keyboard.frmeBoard.height;
    const Twips boardTop = kBlock + kFigureHeight + 60;
    // So that the longest lines stand in the middle; shorter ones keep a little to the left.
    board.arrange(
        {width / 2 - inner * 0.4F - 710, boardTop, inner, keyboard.frmeBoard.top - 60 - boardTop});
    const Twips drawnWidth = inner - 900;
    const Twips drawnHeight = drawnWidth * 3900 / 8100;
    for (Picture& picture : imgBack)
        picture.drawn = {kEdge + 450, boardTop + (height - boardTop - drawnHeight) / 2 - 600,
                         drawnWidth, drawnHeight};
    lblHey.place(kEdge, height - kFooter + 60, inner, 360);
    accent.lblColor.place(width - kEdge - 2400, kBlock + 660, 2400, 240);
}

// Of what is read, not pressed, by how much smaller all is drawn.
void frmGame::setFonts(float larger) {
    for (Label* label : {&lblMenu, &lblView, &lblMode})
        label->font.size = style::kBarText.size * larger;
    for (Label* label : {&lblHey, &score.lblBonus})
        label->font.size = style::kText.size * larger;
    for (Label* label : {&status.lblStatus, &score.lblScore})
        label->font.size = 17 * larger;
    playButton.lblPlay(0).font.size = 15 * larger;
    webSearch.lblFinder(0).font.size = style::kSmallButton.size * larger;
    board.lblCont.font.size = 11 * larger;
    accent.lblColor.font.size = 9 * larger;
}

}  // namespace quillor
