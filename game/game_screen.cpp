// Wiring: the parts with the rules, the mouse and the keys with the parts; and the
// screen as it opens, with its title and tip line.
#include "game/game_screen.h"

#include <memory>

#include "core/numbers.h"
#include "core/settings_file.h"
#include "core/text_rules.h"
#include "game/rules/ways.h"
#include "toolkit/style.h"

namespace quillor {

namespace {
constexpr int kUnsavedHold = 8000;  // ms; nobody looks out for that one
constexpr int kKeepDelay = 2000;    // ms: until an ending has come to rest
}  // namespace

frmGame::frmGame(Program& program)
    : ProgramScreen("frmGame", program),
      menu(program, commands()),
      sounds(program),
      webSearch(program),
      board(imgBack(2)),
      keyboard(program, {[this](char16_t key) { guess(key); }, [this] { eEnterWord(); },
                         [this] { playButton.leave(); }}),
      score(program),
      clock(program, [this] { onSecond(); }),
      status(program),
      playButton(program, [this] { keyboard.leaveKeys(); }),
      announcer(program, [this](Text words) { speak(std::move(words)); }),
      accent(program, [this](Color color) { paintAccent(color); }) {
    layOut();
    addTimers();
    connect();
}

GameMenu::Commands frmGame::commands() {
    return {[this] { mBack_Click(); },
            [this] { mReboot_Click(); },
            [this](int index) { mDoWay_Click(index); },
            [this](int index) { mDoWayAll_Click(index); },
            [this] { eEnterWord(); },
            [this] { eChangeSound(); },
            [this] { mHelpy_Click(); },
            [this] { mHide_Click(); },
            [this] { mColor_Click(); }};
}

void frmGame::addTimers() {
    for (Timer* timer :
         {&accent.tmrSmooth, &clock.tmrTime, &sounds.tmrSound, &status.tmrState, &figure.tmrDead,
          &accent.tmrColor, &score.tmrScore, &score.tmrBlood, &score.tmrUp})
        add(*timer);
}

void frmGame::connect() {
    playButton.lblPlay(0).onClick = [this] { ePlayButton(); };
    sounds.lblWave(0).onClick = [this] { eChangeSound(); };
    lblMenu.onClick = [this] { popUpMenu(&lblMenu); };
    lblMenu.menu = &menu.mMenu;
    tmrTip.id = "tmrTip";
    tmrTip.interval = kTipHold;
    tmrTip.onTick = [this] { tellNext(); };
    add(tmrTip);
    tmrKeep.id = "tmrKeep";
    tmrKeep.interval = kKeepDelay;
    tmrKeep.onTick = [this] {
        tmrKeep.enabled = false;
        program_.keepPlayed();
        tellUnsaved();
    };
    add(tmrKeep);
    board.lblBoard.onMouseMove = [this] { mouseLeftButtons(); };
    board.lblBoard.onKeyDown = [this](KeyEvent& event) {
        const Text words = board.readCell(round, event.code, settings_);
        event.handled = !words.empty();
        if (event.handled)
            speak(words);
    };
    for (Label* label : {&lblMenu, &lblView})
        showPress(*label, label->textColor, settings_.glGrey, settings_.glWhite);
    // What the mouse moves over beside the keys puts their light out.
    for (Picture& picture : imgBack)
        picture.onMouseMove = [this] { mouseLeftButtons(); };
    for (Label* label : {&lblBluebar, &lblMenu, &lblView, &lblMode, &lblHey, &board.lblCont,
                         &board.lblTopic, &score.lblScore, &status.lblStatus, &clock.lblTime,
                         &webSearch.lblFinder(0), &webSearch.lblFinder(1), &sounds.lblWave(0)})
        label->onMouseMove = [this] { mouseLeftButtons(); };
    for (Label& cell : board.lblLetter)
        cell.onMouseMove = [this] { mouseLeftButtons(); };
    for (Label& box : strikes.lblStrike)
        box.onMouseMove = [this] { mouseLeftButtons(); };
}

void frmGame::mouseLeftButtons() {
    keyboard.leaveKeys();
    playButton.leave();
}

void frmGame::paintAccent(Color color) {
    for (Line& line : strikes.lnStrike)
        line.color = color;
    playButton.setAccent(color);
    sounds.shpWave.backColor = color;
    webSearch.shpFinder.backColor = color;
    for (Label* label :
         {&status.lblStatus, &score.lblScore, &lblMode, &lblMenu, &lblView, &lblBluebar})
        label->backColor = color;
}

void frmGame::takePaper(const ImageRef& paper) {
    for (Picture& picture : imgBack)
        picture.image = paper;
}

void frmGame::popUpMenu(const Control* under) {
    program_.desktop.popUp(*this, menu.mMenu, under);
}

void frmGame::onKeyDown(KeyEvent& event) {
    switch (event.code) {
        case key::kReturn:
            if (event.alt)
                return;
            ePlayButton();
            break;
        case key::kContextMenu:
            popUpMenu(nullptr);
            break;
        case key::kF10:
            popUpMenu(&lblMenu);
            break;
        default:
            if (!menu.runShortcut(event))
                return;
    }
    event.handled = true;
}

void frmGame::onKeyPress(char16_t character) {
    const bool playing = settings_.giGameState == kPlaying;
    if (isGuessKey(character))
        guess(character);
    else if (character == u'!')
        eEnterWord();
    else if (character == u'?' && isOver(settings_))
        webSearch.lblFinder_Click();
    else if (playing && character > u' ' && character != u'?')
        announcer.sayNoKey(character);
}

// The focus coming to the board has it read.
void frmGame::readBoard() {
    if (focused == &board.lblBoard)
        speak(board.lblBoard.spokenName);
    else
        setFocus(board.lblBoard);
}

// It stands in the tip line for a moment, and is said.
void frmGame::tell(Text what, int hold) {
    lblHey.caption = what;
    // Another interval starts the timer anew.
    tmrTip.interval = tmrTip.interval == hold ? hold + 1 : hold;
    tmrTip.enabled = true;
    speak(std::move(what));
}

// Told once what the event itself has to show and say has had its time.
void frmGame::noteSaved(bool saved, const TextPair& what) {
    program_.note(saved, what);
    tellUnsaved();
}

void frmGame::tellUnsaved() {
    tmrTip.enabled |= !program_.unsaved.empty();
}

void frmGame::tellNext() {
    if (program_.unsaved.empty())
        return showTip();
    const TextPair& what = *program_.unsaved.front();
    program_.unsaved.erase(program_.unsaved.begin());
    tell(program_.lang(what), kUnsavedHold);
}

void addGameScreens(Program& program) {
    const auto reads = [](const ProgramScreen& screen) {
        const auto* game = dynamic_cast<const frmGame*>(&screen);
        return game != nullptr && game->board.lblBoard.visible;
    };
    const auto read = [](ProgramScreen& screen) { dynamic_cast<frmGame&>(screen).readBoard(); };
    program.viewEntries.insert(program.viewEntries.begin() + 1,
                               {"mReadBoard", texts::kReadBoard, {key::kF4}, {}, read, {}, reads});
    program.addScreen(ScreenId::Game,
                      [](Program& owner) { return std::make_unique<frmGame>(owner); });
}

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
    lblMode.caption = program_.lang(modeName());
    eChangeTitle();
    ePutSomeLucky();
}

void frmGame::onUnload() {
    score.keepScore();
    noteProgress({});
    program_.keepPlayed();
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
    board.lblBoard.toolTip = program_.lang(texts::kBoardTip);
    board.lblTopic.toolTip = program_.lang(texts::kTopicTip);
    clock.lblTime.toolTip = program_.lang(texts::kTimeTip);
    status.lblStatus.toolTip = program_.lang(texts::kStatusTip);
}

TextPair frmGame::modeName() const {
    return settings_.gbClassicMode ? texts::kClassicMode : texts::kArcadeMode;
}

void frmGame::eChangeTitle() {
    const bool arcade = !settings_.gbClassicMode;
    const Text mode = program_.lang(modeName());
    title = Text(texts::kTitleStart) + mode.substr(0, 1) + lowerCase(TextView(mode).substr(1));
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
    const auto tip = static_cast<std::size_t>(program_.desktop.draw() *
                                              static_cast<double>(texts::kTips.size()));
    tip_ = program_.lang(texts::kTips.at(tip));
    showTip();
}

void frmGame::showTip() {
    lblHey.caption = tip_;
    tmrTip.interval = kTipHold;
    tmrTip.enabled = !program_.unsaved.empty();
}

}  // namespace quillor
