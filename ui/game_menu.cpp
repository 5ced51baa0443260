#include "ui/game_menu.h"

#include "app/program_screen.h"
#include "config/version.h"
#include "core/text_rules.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

// The Spanish edition in both interface languages.
constexpr TextView kEncyclopedia = u"http://es.wikipedia.org/wiki/";

constexpr TextView kVersionNumber = u"" QUILLOR_VERSION;

}  // namespace

GameMenu::GameMenu(Program& program, const Commands& commands)
    : program_(program), entries_(entries(commands)) {
    nameItems();
    buildTree();
    for (const Entry& entry : entries_) {
        entry.item.onClick = entry.action;
        entry.item.shortcut = shortcutText({entry.key, entry.withControl});
    }
}

std::vector<GameMenu::Entry> GameMenu::entries(const Commands& commands) {
    const auto way = [&commands](int index) {
        return [run = commands.mDoWay_Click, index] { run(index); };
    };
    const auto wayAll = [&commands](int index) {
        return [run = commands.mDoWayAll_Click, index] { run(index); };
    };
    return {
        {mBack, texts::kMenuBack, key::kF2, false, commands.mBack_Click},
        {mReboot, texts::kMenuReboot, key::kF3, false, commands.mReboot_Click},
        {mDoWay(0), texts::kMenuManual, 'M', true, way(0)},
        {mDoWay(1), texts::kMenuRepeat, 'R', true, way(1)},
        {mDoWay(2), texts::kMenuTour, 'T', true, way(2)},
        {mDoWayAll(0), texts::kMenuAnyTopic, 'A', true, wayAll(0)},
        {mDoWayAll(1), texts::kMenuHidden, 0, false, wayAll(1)},
        {mWrite, texts::kMenuWrite, 'E', true, commands.eEnterWord},
        {mWave, texts::kMenuSounds, 'S', true, commands.eChangeSound},
        {mHelpy, texts::kMenuFirstLetter, 'L', true, commands.mHelpy_Click},
        {mHide, texts::kMenuHiddenLetters, 'O', true, commands.mHide_Click},
        {mColor, texts::kMenuColors, 0, false, commands.mColor_Click},
        {mAbout, texts::kMenuAbout, 0, false, [this] { mAbout_Click(); }},
        {mHelp, texts::kMenuHelp, 0, false, [this] { openManual(program_); }},
    };
}

void GameMenu::nameItems() {
    mMenu.id = "mMenu";
    mBack.id = "mBack";
    mReboot.id = "mReboot";
    mAuto.id = "mAuto";
    mWrite.id = "mWrite";
    mWave.id = "mWave";
    mHelpy.id = "mHelpy";
    mHide.id = "mHide";
    mColor.id = "mColor";
    mAbout.id = "mAbout";
    mHelp.id = "mHelp";
    for (std::size_t i = 0; i < separators_.size(); ++i)
        separators_.at(i).id = "Space" + std::to_string(i + 1);
}

void GameMenu::buildTree() {
    for (MenuItem* item : {&mWave, &mHelpy, &mHide, &mColor})
        item->checkable = true;
    for (MenuItem* item : {&mDoWay(0), &mDoWay(1), &mDoWay(2), &mDoWayAll(0), &mDoWayAll(1)})
        item->checkable = item->radio = true;
    mDoWay(0).checked = true;
    const auto line = [this](std::size_t number) { return &separators_.at(number - 1); };
    mAuto.children = {&mDoWay(0), &mDoWay(1), &mDoWay(2), line(2), &mDoWayAll(0), &mDoWayAll(1)};
    mMenu.children = {&mBack, &mReboot, line(1), &mAuto,  line(3), &mWrite, line(4),
                      &mWave, &mHelpy,  &mHide,  &mColor, line(5), &mAbout, &mHelp};
}

void GameMenu::eTranslate() {
    mMenu.caption = program_.lang(texts::kMenuName);
    mAuto.caption = program_.lang(texts::kMenuSelection);
    for (const Entry& entry : entries_)
        entry.item.caption = program_.lang(entry.caption);
}

void GameMenu::show(bool topicDealt) {
    const GameSettings& settings = program_.settings;
    mAuto.enabled = !settings.gbClassicMode;
    mDoWay(kRepeat).enabled = mDoWay(kTour).enabled = topicDealt;
    mWrite.enabled = settings.giGameState == kPlaying;
    mWave.checked = settings.gbUseSounds;
    mColor.checked = settings.gbColorTransition;
    eActivateAuto();
    eCheckOthers();
}

void GameMenu::eActivateAuto() {
    const std::int16_t way = program_.settings.giWay;
    for (int i = 0; i <= 2; ++i)
        mDoWay(i).checked = way == kManual + i;
    for (int i = 0; i <= 1; ++i)
        mDoWayAll(i).checked = way == kAnyTopic + i;
}

void GameMenu::eCheckOthers() {
    mHelpy.checked = program_.settings.gbFirstLetter;
    mHide.checked = program_.settings.gbHiddenLetters;
}

bool GameMenu::runShortcut(const KeyEvent& event) const {
    for (const Entry& entry : entries_) {
        if (entry.key == 0 || entry.key != event.code ||
            (entry.withControl && !event.onlyControl()))
            continue;
        const bool isWay = entry.item.radio;
        if (entry.item.enabled && (mAuto.enabled || !isWay))
            entry.action();
        return true;
    }
    return false;
}

void GameMenu::mAbout_Click() const {
    const Text further = Text(texts::kMakers) + u"\r\n" + Text(texts::kProgramName) +
                         program_.lang(texts::kVersion) + Text(kVersionNumber);
    program_.desktop.aboutBox(texts::kProgramName, further);
}

WebSearch::WebSearch(Program& program) : program_(program) {
    shpFinder.id = "shpFinder";
    for (Label& label : lblFinder) {
        label.onClick = [this] { lblFinder_Click(); };
        // Whichever element is pressed, the caption shows it.
        showPress(label, lblFinder(0).textColor, program.settings.glGrey, program.settings.glWhite);
    }
}

void WebSearch::offer(bool shown) {
    shpFinder.visible = shown;
    for (Label& label : lblFinder)
        label.visible = shown;
}

void WebSearch::arrange(const Area& area) {
    constexpr Twips kSign = 540;
    shpFinder.place(area.left, area.top, area.width, area.height);
    lblFinder(1).place(area.left + 120, area.top, kSign, area.height);
    lblFinder(0).place(area.left + 120 + kSign, area.top, area.width - 240 - kSign, area.height);
}

void WebSearch::eTranslate() {
    lblFinder(0).caption = program_.lang(texts::kFinder);
    lblFinder(1).spokenName = replaceAll(lblFinder(0).caption, u"&", u"");
    for (Label& label : lblFinder)
        label.toolTip = program_.lang(texts::kFinderTip);
}

void WebSearch::lblFinder_Click() {
    const TextView start = program_.settings.gbUseWikipedia ? kEncyclopedia : kSearchEngine;
    program_.desktop.openAddress(start, lowerCase(program_.settings.gsPhrase));
}

}  // namespace quillor
