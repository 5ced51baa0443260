// Wiring: the parts with each other, the mouse and the keys with the parts.
#include "game/game_screen.h"

#include <memory>

#include "toolkit/style.h"

namespace quillor {

frmGame::frmGame(Program& programToUse)
    : Screen("frmGame"),
      program(programToUse),
      settings(programToUse.settings),
      menu(programToUse, *this, {[this] { lifeCycle.eBackStart(); }}),
      sounds(programToUse, menu.mWave),
      webSearch(programToUse),
      setUp(*this),
      board(*this),
      guesses(*this),
      figure(settings, guesses.lblStrike, sounds, [this] { answer.eFinalStep(); }),
      scoring(*this),
      countDown(*this),
      lifeCycle(*this),
      ways(*this),
      answer(*this),
      announcer(*this),
      colors(programToUse, coloredControls()),
      animations(settings, {lifeCycle.lblStatus, scoring.lblPoints, scoring.lblBonus,
                            scoring.lblScore, scoring.tmrScore}) {
    layOut();
    addTimers();
    connect();
}

ColoredControls frmGame::coloredControls() {
    return {board.lblLetter,
            board.lnLetter,
            guesses.lblKey,
            guesses.shpKey,
            guesses.lnStrike,
            {&lifeCycle.shpPlay, &sounds.shpWave, &webSearch.shpFinder},
            {&lifeCycle.lblStatus, &scoring.lblScore, &setUp.lblMode, &lblBluebar},
            menu.mColor};
}

void frmGame::addTimers() {
    for (Timer* timer : {&colors.tmrSmooth, &countDown.tmrTime, &sounds.tmrSound,
                         &animations.tmrState, &figure.tmrDead, &colors.tmrColor, &scoring.tmrScore,
                         &animations.tmrBlood, &animations.tmrUp})
        add(*timer);
}

// What the mouse does on the background and on everything that is no key.
void frmGame::connect() {
    menu.mWrite.onClick = [this] { answer.eEnterWord(); };
    const auto leaveButtons = [this] {
        colors.leaveKeys();
        lifeCycle.leavePlay();
    };
    for (Picture& picture : imgBack) {
        picture.onMouseMove = leaveButtons;
        picture.onRightClick = [this] { menu.popUp(); };
    }
    for (Label* label :
         {&lblBluebar, &board.lblCont, &scoring.lblScore, &lifeCycle.lblStatus, &board.lblTopic,
          &countDown.lblTime, &webSearch.lblFinder(0), &webSearch.lblFinder(1), &sounds.lblWave(0),
          &setUp.lblMode, &setUp.lblHey})
        label->onMouseMove = leaveButtons;
    for (Label& cell : board.lblLetter)
        cell.onMouseMove = leaveButtons;
    for (Label& box : guesses.lblStrike)
        box.onMouseMove = leaveButtons;
    guesses.frmeBoard.onMouseMove = leaveButtons;
    for (int key = 1; key <= Guesses::kWriteKey; ++key) {
        Label& label = guesses.lblKey(key);
        label.onMouseMove = [this, key] {
            lifeCycle.leavePlay();
            colors.hoverKey(key);
        };
        label.onMouseDown = [this, key] { colors.pressKey(key); };
        label.onMouseUp = [this, key] { colors.hoverKey(key); };
    }
}

void frmGame::takePaper(const ImageRef& paper) {
    for (Picture& picture : imgBack)
        picture.image = paper;
}

void frmGame::showIdlePage(bool idle) {
    for (Picture& picture : imgBack)
        picture.drawing = idle ? style::kIdleDrawing : "";
}

void frmGame::alignPaper(Picture& picture, const Frame& frame) {
    picture.left = -frame.left;
    picture.top = -frame.top;
}

void frmGame::enableRepeatAndTour() {
    menu.mDoWay(kRepeat).enabled = true;
    menu.mDoWay(kTour).enabled = true;
}

void frmGame::onKeyDown(KeyEvent& event) {
    switch (event.code) {
        case key::kReturn:
            // A held key is one press: it must not run through games.
            if (!event.autoRepeat)
                lifeCycle.ePlayButton();
            break;
        case key::kF2:
            menu.mBack_Click();
            break;
        case key::kF3:
            menu.mReboot_Click();
            break;
        case key::kContextMenu:
            menu.popUp();
            break;
        default:
            if (!runShortcut(event))
                return;
    }
    event.handled = true;
}

bool frmGame::runShortcut(const KeyEvent& event) {
    if (!event.onlyControl())
        return false;
    switch (event.code) {
        case 'E':
            answer.eEnterWord();
            return true;
        case 'M':
            ways.mDoWay_Click(kManual);
            return true;
        case 'R':
            ways.mDoWay_Click(kRepeat);
            return true;
        case 'T':
            ways.mDoWay_Click(kTour);
            return true;
        case 'A':
            ways.mDoWayAll_Click(0);
            return true;
        case 'S':
            sounds.eChangeSound();
            return true;
        case 'L':
            ways.mHelpy_Click();
            return true;
        case 'O':
            ways.mHide_Click();
            return true;
        default:
            return false;
    }
}

void frmGame::onKeyPress(char16_t character) {
    const bool letter = (character >= u'A' && character <= u'Z') ||
                        (character >= u'a' && character <= u'z') || character == u'Ñ' ||
                        character == u'ñ';
    const bool digit = character >= u'0' && character <= u'9';
    if (letter || digit)
        guesses.guess(character);
    else if (character == u'!')
        answer.eEnterWord();
    else if (character == u'?' && webSearch.lblFinder(0).visible)
        webSearch.lblFinder_Click();
}

void addGameScreens(Program& program) {
    program.addScreen(ScreenId::Game,
                      [](Program& owner) { return std::make_unique<frmGame>(owner); });
}

}  // namespace quillor
