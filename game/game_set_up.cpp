// Opening the game screen: settings, colours, score and mode; the window title
// and the tip line.
#include "core/numbers.h"
#include "core/settings_file.h"
#include "core/text_rules.h"
#include "game/game_screen.h"
#include "game/rules/ways.h"

namespace quillor {

void frmGame::onLoad() {
    eTranslate();
    sounds.load();
    if (!settings_.gbSettingsLoaded)
        eLoadData();
    keyboard.eLoadKeysColors();
    accent.ePutNewColor(settings_.glTheme);
    accent.prepareTransition();
    sounds.eActiveSound();
    board.ePutDesign(settings_);
    clearRound(settings_, round);
    board.clear(settings_);
    board.frmeMagic.backColor = settings_.glWhite;
    alignPaper(imgBack(1), figure.frmeMan);
    alignPaper(imgBack(2), board.frmeMagic);
    showIdlePage(true);
    showState();
    score.showOnOpening();
    lblMode.caption =
        program_.lang(settings_.gbClassicMode ? texts::kClassicMode : texts::kArcadeMode);
    eChangeTitle();
    ePutSomeLucky();
}

void frmGame::eLoadData() {
    loadForGameScreen(settings_, program_.folder);
}

void frmGame::eTranslate() {
    menu.eTranslate();
    webSearch.eTranslate();
    keyboard.eTranslate();
    strikes.eTranslate(settings_);
    score.eTranslate();
    playButton.eTranslate();
    sounds.eTranslate();
    lblMenu.caption = u"&" + menu.mMenu.caption;
    lblMode.toolTip = program_.lang(texts::kModeTip);
    board.lblTopic.toolTip = program_.lang(texts::kTopicTip);
    clock.lblTime.toolTip = program_.lang(texts::kTimeTip);
    status.lblStatus.toolTip = program_.lang(texts::kStatusTip);
}

void frmGame::eChangeTitle() {
    const bool arcade = !settings_.gbClassicMode;
    title = texts::kTitleStart;
    title += lblMode.caption.substr(0, 1);
    if (!lblMode.caption.empty())
        title += lowerCase(TextView(lblMode.caption).substr(1));
    if (arcade && settings_.giGamesPlayed > 0)
        title += u" [" + inDigits(settings_.giGamesPlayed) + u"]";
    if (settings_.gbHardScore)
        title += program_.lang(texts::kTitleHard);
    if (settings_.gbAgainstClock)
        title += program_.lang(texts::kTitleTime);
    if (arcade && settings_.giWay == kTour)
        title += u" [" + ePutWhere(settings_) + u"]";
}

void frmGame::ePutSomeLucky() {
    program_.desktop.seedRandom();
    const auto tip = static_cast<std::size_t>(program_.desktop.random() *
                                              static_cast<double>(texts::kTips.size()));
    lblHey.caption = program_.lang(texts::kTips.at(tip));
}

}  // namespace quillor
