// A switch is turned in the record, shown, and saved at once.
#include "ui/settings_screen.h"

#include <memory>

#include "core/settings_file.h"
#include "core/text_rules.h"
#include "toolkit/style.h"

namespace quillor {

namespace {
constexpr Twips kMarkWidth = 60;  // of the edge that marks the chosen design
}

frmOptions::frmOptions(Program& program) : ProgramScreen("frmOptions", program) {
    layOut();
    connect();
}

void frmOptions::connect() {
    const GameSettings& colours = settings_;
    for (int i = 0; i <= kLastOption; ++i)
        for (Label* label : {&lblCheck(i), &lblOpts(i)}) {
            label->onClick = [this, i] { ePressCheck(i); };
            if (i >= kFirstOption)
                showPress(*label, shpCheck(i).backColor, colours.glGreen, colours.glTheme);
        }
    for (int i = 0; i <= kLastDesign; ++i) {
        lblDs(i).onClick = [this, i] { lblDs_Click(i); };
        showPress(lblDs(i), shpDs(i).backColor, colours.glGreen, colours.glTheme);
    }
    for (Label& label : lblBack) {
        label.onClick = [this] { program_.close(*this); };
        showPress(label, shpBack.backColor, colours.glGreen, colours.glRed);
    }
}

void frmOptions::onLoad() {
    eTranslate();
    eLoadColor();
    eLoadData();
    settings_.gbOptionsOpened = true;
}

void frmOptions::onUnload() {
    program_.show(ScreenId::Menu).takePaper(imgBack.image);
}

void frmOptions::eTranslate() {
    title = program_.lang(texts::kSettingsTitle);
    const Text tiles = program_.lang(texts::kSettingsTiles);
    for (int i = 0; i <= kLastTile; ++i)
        lblLetter(i).caption = Text(1, tiles.at(static_cast<std::size_t>(i)));
    for (int i = 0; i <= kLastOption; ++i) {
        const auto& option = texts::kSettingsOptions.at(static_cast<std::size_t>(i));
        lblOpts(i).caption = program_.lang(option.caption);
        lblOpts(i).toolTip = lblCheck(i).toolTip = program_.lang(option.tip);
        Text spoken = trimmed(lblOpts(i).caption);
        std::erase(spoken, u'&');
        lblCheck(i).spokenName = spoken;
    }
    for (int i = 0; i <= kLastDesign; ++i) {
        lblDs(i).toolTip = program_.lang(texts::kDesignTips.at(static_cast<std::size_t>(i)));
        lblDs(i).spokenName = trimmed(lblDs(i).toolTip);
    }
    lblBack(1).caption = program_.lang(texts::kBack);
    lblBack(0).toolTip = lblBack(1).toolTip = program_.lang(texts::kBackTip);
    lblBack(0).spokenName = program_.lang(texts::kSpokenBack);
}

void frmOptions::eLoadColor() {
    for (int i = 0; i <= kLastOption; ++i)
        lblCheck(i).backColor = shpCheck(i).backColor = settings_.glTheme;
    for (Shape& square : shpDs)
        square.backColor = settings_.glTheme;
    lblBack(0).backColor = shpBack.backColor = settings_.glRed;
}

void frmOptions::eLoadData() {
    loadForSettingsScreen(settings_, program_.folder);
    markDesign(settings_.giDesign);
    showTicks();
}

bool& frmOptions::settingOf(int option) {
    switch (option) {
        case 1:
            return settings_.gbUseWikipedia;
        case 2:
            return settings_.gbHardScore;
        case 3:
            return settings_.gbInfiniteScore;
        default:
            return settings_.gbAgainstClock;
    }
}

void frmOptions::showTicks() {
    for (int i = kFirstOption; i <= kLastOption; ++i) {
        lblCheck(i).checked = settingOf(i);
        lblCheck(i).caption = settingOf(i) ? symbols::kTick : TextView();
    }
}

void frmOptions::ePressCheck(int option) {
    if (option < kFirstOption)
        return;
    settingOf(option) = !settingOf(option);
    showTicks();
    eSaveData();
}

// Wherever the focus is: what has changed is said.
void frmOptions::pressByKey(int option) {
    ePressCheck(option);
    speak(lblCheck(option).spokenName +
          program_.lang(settingOf(option) ? texts::kSpokenOn : texts::kSpokenOff));
}

void frmOptions::eSaveData() {
    program_.note(saveFromSettingsScreen(settings_, program_.folder), texts::kSettingsUnsaved);
}

// A design that the file should not hold marks no button.
void frmOptions::markDesign(int design) {
    for (int i = 0; i <= kLastDesign; ++i) {
        lblDs(i).checked = i == design;
        shpDs(i).backColor = i == design ? eDarkShade(settings_.glTheme) : settings_.glTheme;
        // A dark theme hardly differs from its dark shade.
        shpDs(i).borderWidth = i == design ? kMarkWidth : 0;
    }
}

void frmOptions::paintTiles(int design) {
    for (int i = 0; i <= kLastTile; ++i)
        paintLetter(lblLetter(i), lnLetter(i), design, settings_);
}

void frmOptions::lblDs_Click(int design) {
    markDesign(design);
    settings_.giDesign = static_cast<std::int16_t>(design);
    paintTiles(design);
    eSaveData();
}

void frmOptions::onKeyDown(KeyEvent& event) {
    switch (event.code) {
        case 'W':
            pressByKey(1);
            break;
        case 'D':
            pressByKey(2);
            break;
        case 'I':
            pressByKey(3);
            break;
        case 'C':
            pressByKey(4);
            break;
        case key::kBackspace:
            program_.close(*this);
            break;
        default: {
            const int first = event.code >= key::kKeypad0 ? key::kKeypad0 + 1 : '1';
            const int design = event.code - first;
            if (design < 0 || design > kLastDesign)
                return;
            lblDs_Click(design);
            speak(program_.lang(texts::kSpokenDesign) + lblDs(design).spokenName);
        }
    }
    event.handled = true;
}

void addSettingsScreen(Program& program) {
    program.addScreen(ScreenId::Settings,
                      [](Program& owner) { return std::make_unique<frmOptions>(owner); });
}

}  // namespace quillor
