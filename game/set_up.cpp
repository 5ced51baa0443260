// The order in which the screen is made ready, and the pieces of its title.
#include "game/set_up.h"

#include "core/numbers.h"
#include "core/settings_file.h"
#include "core/text_rules.h"
#include "game/game_screen.h"

namespace quillor {

void SetUp::Form_Load() {
    GameSettings& settings = game_.settings;
    eTranslate();
    game_.sounds.load();
    if (!settings.gbSettingsLoaded)
        eLoadData();
    game_.colors.eLoadKeysColors();
    game_.colors.ePutNewColor(settings.glTheme);
    game_.sounds.eActiveSound();
    game_.ways.eActivateAuto();
    game_.ways.eCheckOthers();
    game_.colors.ePutDesign();
    settings.giGameState = kIdle;
    game_.colors.prepareTransition();
    game_.scoring.showOnOpening();
    game_.board.frmeMagic.backColor = settings.glWhite;
    frmGame::alignPaper(game_.imgBack(1), game_.figure.frmeMan);
    frmGame::alignPaper(game_.imgBack(2), game_.board.frmeMagic);
    game_.showIdlePage(true);
    showMode();
    eChangeTitle();
    ePutSomeLucky();
}

void SetUp::eLoadData() {
    loadForGameScreen(game_.settings, game_.program.folder);
}

void SetUp::eTranslate() {
    const Program& program = game_.program;
    game_.menu.eTranslate();
    game_.webSearch.eTranslate();
    game_.guesses.eTranslate();
    game_.lifeCycle.eTranslate();
    lblHey.caption = program.lang(texts::kGreeting);
    lblMode.toolTip = program.lang(texts::kModeTip);
    game_.scoring.lblScore.toolTip = program.lang(texts::kScoreTip);
    game_.scoring.lblBonus.caption = program.lang(texts::kBonus);
    game_.board.lblTopic.caption = program.lang(texts::kNoTopicShown);
    game_.board.lblTopic.toolTip = program.lang(texts::kTopicTip);
    game_.countDown.lblTime.toolTip = program.lang(texts::kTimeTip);
    game_.sounds.lblWave(0).spokenName = program.lang(texts::kSpokenSounds);
}

void SetUp::showMode() {
    const bool classic = game_.settings.gbClassicMode;
    lblMode.caption = game_.program.lang(classic ? texts::kClassicMode : texts::kArcadeMode);
    game_.menu.mAuto.enabled = !classic;
}

void SetUp::eChangeTitle() {
    const GameSettings& settings = game_.settings;
    const Program& program = game_.program;
    const bool arcade = !settings.gbClassicMode;
    Text title(texts::kTitleStart);
    title += lblMode.caption.substr(0, 1);
    if (!lblMode.caption.empty())
        title += lowerCase(TextView(lblMode.caption).substr(1));
    if (arcade && settings.giGamesPlayed > 0)
        title += u" [" + inDigits(settings.giGamesPlayed) + u"]";
    if (settings.gbHardScore)
        title += program.lang(texts::kTitleHard);
    if (settings.gbAgainstClock)
        title += program.lang(texts::kTitleTime);
    if (arcade && settings.giWay == kTour)
        title += u" [" + game_.ways.ePutWhere() + u"]";
    game_.title = title;
}

void SetUp::ePutSomeLucky() {
    game_.program.desktop.seedRandom();
    const auto tip = static_cast<std::size_t>(game_.program.desktop.random() *
                                              static_cast<double>(texts::kTips.size()));
    lblHey.caption = game_.program.lang(texts::kTips.at(tip));
}

}  // namespace quillor
