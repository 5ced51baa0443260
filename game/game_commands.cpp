// What the menu and its keys do beside playing: leaving, restarting, switches.
#include <array>

#include "app/program.h"
#include "core/settings_file.h"
#include "game/game_screen.h"
#include "game/rules/ways.h"

namespace quillor {

namespace {

// By `giWay`.
constexpr std::array<TextPair, 5> kWayNames{texts::kMenuManual, texts::kMenuRepeat,
                                            texts::kMenuTour, texts::kMenuAnyTopic,
                                            texts::kMenuHidden};

}  // namespace

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

void frmGame::tellWay() {
    const auto way = static_cast<std::size_t>(settings_.giWay);
    tell(program_.lang(texts::kSpokenWay) + program_.lang(kWayNames.at(way)));
}

void frmGame::saveSwitches() {
    menu.show(topicDealt_);
    saveSettings();
}

void frmGame::saveSettings() {
    noteSaved(eSaveSettings(settings_, program_.folder), texts::kSettingsUnsaved);
}

}  // namespace quillor
