// The tree of entries with its shortcuts, and what the plain commands do.
#include "ui/game_menu.h"

#include <utility>

#include "app/shared_operations.h"
#include "config/version.h"
#include "core/files.h"

namespace quillor {

namespace {
constexpr TextView kVersionNumber = u"" QUILLOR_VERSION;
}  // namespace

GameMenu::GameMenu(Program& program, Screen& gameScreen, Commands commands)
    : program_(program), screen_(gameScreen), commands_(std::move(commands)) {
    nameItems();
    buildTree();
    mBack.onClick = [this] { mBack_Click(); };
    mReboot.onClick = [this] { mReboot_Click(); };
    mAbout.onClick = [this] { mAbout_Click(); };
    mHelp.onClick = [this] { mHelp_Click(); };
}

void GameMenu::nameItems() {
    mMenu.id = "mMenu";
    mBack.id = "mBack";
    mBack.shortcut = u"F2";
    mReboot.id = "mReboot";
    mReboot.shortcut = u"F3";
    mAuto.id = "mAuto";
    mDoWay(0).shortcut = u"Ctrl+M";
    mDoWay(1).shortcut = u"Ctrl+R";
    mDoWay(2).shortcut = u"Ctrl+T";
    mDoWayAll(0).shortcut = u"Ctrl+A";
    mWrite.id = "mWrite";
    mWrite.shortcut = u"Ctrl+E";
    mWave.id = "mWave";
    mWave.shortcut = u"Ctrl+S";
    mHelpy.id = "mHelpy";
    mHelpy.shortcut = u"Ctrl+L";
    mHide.id = "mHide";
    mHide.shortcut = u"Ctrl+O";
    mColor.id = "mColor";
    mAbout.id = "mAbout";
    mHelp.id = "mHelp";
    for (std::size_t i = 0; i < separators_.size(); ++i)
        separators_.at(i).id = "Space" + std::to_string(i + 1);
}

void GameMenu::buildTree() {
    for (MenuItem* item : {&mWave, &mHelpy, &mHide, &mColor})
        item->checkable = true;
    for (MenuItem& item : mDoWay)
        item.checkable = true;
    for (MenuItem& item : mDoWayAll)
        item.checkable = true;
    mDoWay(0).checked = true;
    // Repeat and Tour need a topic to start from: the first deal enables them.
    mDoWay(1).enabled = mDoWay(2).enabled = false;
    mWrite.enabled = false;
    const auto line = [this](std::size_t number) { return &separators_.at(number - 1); };
    mAuto.children = {&mDoWay(0), &mDoWay(1), &mDoWay(2), line(2), &mDoWayAll(0), &mDoWayAll(1)};
    mMenu.children = {&mBack, &mReboot, line(1), &mAuto,  line(3), &mWrite, line(4),
                      &mWave, &mHelpy,  &mHide,  &mColor, line(5), &mAbout, &mHelp};
}

void GameMenu::eTranslate() {
    const auto caption = [this](MenuItem& item, const TextPair& pair) {
        item.caption = program_.lang(pair);
    };
    caption(mMenu, texts::kMenuName);
    caption(mBack, texts::kMenuBack);
    caption(mReboot, texts::kMenuReboot);
    caption(mAuto, texts::kMenuSelection);
    caption(mDoWay(0), texts::kMenuManual);
    caption(mDoWay(1), texts::kMenuRepeat);
    caption(mDoWay(2), texts::kMenuTour);
    caption(mDoWayAll(0), texts::kMenuAnyTopic);
    caption(mDoWayAll(1), texts::kMenuHidden);
    caption(mWrite, texts::kMenuWrite);
    caption(mWave, texts::kMenuSounds);
    caption(mHelpy, texts::kMenuFirstLetter);
    caption(mHide, texts::kMenuHiddenLetters);
    caption(mColor, texts::kMenuColors);
    caption(mAbout, texts::kMenuAbout);
    caption(mHelp, texts::kMenuHelp);
}

bool GameMenu::mayLeaveGame() {
    const bool yes = program_.desktop.question(program_.lang(texts::kLeaveGame));
    return yes && program_.settings.giGameState == kPlaying;
}

void GameMenu::mBack_Click() {
    if (program_.settings.giGameState != kPlaying) {
        commands_.eBackStart();
        return;
    }
    if (program_.settings.giStrikes >= kTooManyMistakes)
        program_.desktop.messageBox(MessageIcon::Information,
                                    program_.lang(texts::kTooManyMistakes));
    else if (mayLeaveGame())
        commands_.eBackStart();
}

// Unlike going back, restarting is allowed whatever the number of mistakes.
void GameMenu::mReboot_Click() {
    if (program_.settings.giGameState == kPlaying && !mayLeaveGame())
        return;
    eRestartGame(program_, screen_);
}

void GameMenu::mAbout_Click() {
    const Text further = Text(texts::kMakers) + u"\r\n" + Text(texts::kProgramName) +
                         program_.lang(texts::kVersion) + Text(kVersionNumber);
    program_.desktop.aboutBox(texts::kProgramName, further);
}

void GameMenu::mHelp_Click() {
    const auto manual = program_.folder / "Quillor-Manual.txt";
    if (eFileExists(manual))
        program_.desktop.open(manual);
    else
        program_.desktop.messageBox(MessageIcon::Information, program_.lang(texts::kHelpMissing));
}

}  // namespace quillor
