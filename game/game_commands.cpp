// What the menu and its keys do beside playing: leaving, restarting, switches.
#include "app/program.h"
#include "core/settings_file.h"
#include "game/game_screen.h"
#include "game/rules/ways.h"

namespace quillor {

// False, whatever was answered, when the game ended while the question stood.
bool frmGame::confirmsLeaving() {
    const bool yes = program_.desktop.question(program_.lang(texts::kLeaveGame), true);
    return yes && settings_.giGameState == kPlaying;
}

bool frmGame::mayLeaveGame() {
    if (settings_.giGameState != kPlaying)
        return true;
    if (settings_.giStrikes < kTooManyMistakes)
        return confirmsLeaving();
    say(texts::kTooManyMistakes);
    return false;
}

// However many mistakes there are: the program may always be ended.
bool frmGame::mayQuit() {
    return settings_.giGameState != kPlaying ||
           program_.desktop.question(program_.lang(texts::kLeaveGame), true);
}

void frmGame::mBack_Click() {
    if (mayLeaveGame())
        eBackStart();
}

void frmGame::eBackStart() {
    eResetGame();
    program_.show(ScreenId::Menu).takePaper(imgBack(0).image);
    program_.close(*this);
}

// Unlike going back, restarting is allowed whatever the number of mistakes.
void frmGame::mReboot_Click() {
    if (settings_.giGameState != kPlaying || confirmsLeaving())
        eRestartGame(program_, *this);
}

void frmGame::mDoWay_Click(int index) {
    settings_.gbAutoChoice = false;
    eDoWay(settings_, static_cast<std::int16_t>(index));
    saveSwitches();
    tellWay();
}

void frmGame::mDoWayAll_Click(int index) {
    chooseFromAll(settings_, index);
    saveSwitches();
    tellWay();
}

void frmGame::eChangeSound() {
    settings_.gbUseSounds = !settings_.gbUseSounds;
    sounds.eActiveSound();
    saveSwitches();
    tell(switchText(program_, texts::kSpokenSounds, settings_.gbUseSounds));
}

// Both helps count from the next board on.
void frmGame::mHelpy_Click() {
    settings_.gbFirstLetter = !settings_.gbFirstLetter;
    saveSwitches();
    tell(switchText(program_, texts::kMenuFirstLetter, settings_.gbFirstLetter));
}

void frmGame::mHide_Click() {
    settings_.gbHiddenLetters = !settings_.gbHiddenLetters;
    saveSwitches();
    tell(switchText(program_, texts::kMenuHiddenLetters, settings_.gbHiddenLetters));
}

void frmGame::mColor_Click() {
    settings_.gbColorTransition = !settings_.gbColorTransition;
    accent.switchTransition();
    saveSwitches();
    tell(switchText(program_, texts::kMenuColors, settings_.gbColorTransition));
}

// As the menu has it checked.
void frmGame::tellWay() {
    for (const MenuItem* item : menu.mAuto.children)
        if (item->radio && item->checked)
            tell(program_.lang(texts::kSpokenWay) + item->caption);
}

void frmGame::saveSwitches() {
    menu.show(topicDealt_);
    eSaveSettings(settings_, program_.folder);
}

}  // namespace quillor
