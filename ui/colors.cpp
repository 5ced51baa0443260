// The colours of each key, and the drift that keeps white text readable.
#include "ui/colors.h"

#include "core/numbers.h"
#include "core/settings_file.h"
#include "toolkit/contrast.h"
#include "ui/letter_design.h"

namespace quillor {

namespace {

constexpr int kDriftStep = 3;
constexpr int kDriftLow = 61;
constexpr int kDriftHigh = 240;
// White text needs 3; the rest is room for a channel that must leave its floor.
constexpr double kDriftContrast = 3.1;

bool isVowelKey(int key) {
    return key == 1 || key == 5 || key == 9 || key == 16 || key == 22;
}
bool isCommandKey(int key) {
    return key >= 38;
}

}  // namespace

double whiteTextContrast(Color background) {
    return contrast(rgb(250, 250, 250), background);
}

Colors::Colors(Program& program, ColoredControls controls)
    : program_(program), settings_(program.settings), controls_(controls) {
    tmrColor.id = "tmrColor";
    tmrColor.interval = 400;
    tmrColor.onTick = [this] { tmrColor_Timer(); };
    tmrSmooth.id = "tmrSmooth";
    tmrSmooth.interval = 100;
    tmrSmooth.enabled = true;
    tmrSmooth.onTick = [this] { tmrSmooth_Timer(); };
    controls_.mColor.onClick = [this] { mColor_Click(); };
}

void Colors::ePutDesign() {
    const int design = settings_.giDesign;
    if (design < 0 || design >= kDesigns)
        return;
    for (int cell = 1; cell <= kBoardCells; ++cell)
        paintLetter(controls_.lblLetter(cell), controls_.lnLetter(cell), design, settings_);
    settings_.glDesignColor = controls_.lblLetter(1).textColor;
}

void Colors::eLoadKeysColors() {
    for (int key = 0; key < kKeys; ++key) {
        KeyColors& colors = keyColors_.at(static_cast<std::size_t>(key));
        colors = {settings_.glWhite, settings_.glTheme};
        if (key == 28 || isVowelKey(key) || isCommandKey(key)) {
            colors.face = rgb(30, 30, 30) + settings_.glGrey;
            colors.accent = isCommandKey(key) ? settings_.glTheme : settings_.glRed;
        }
    }
    eRestoreColor();
}

void Colors::eRestoreColor() {
    for (int key = 1; key < kKeys; ++key) {
        if (key == currentKey_)
            continue;
        controls_.shpKey(key).backColor = keyColors_.at(static_cast<std::size_t>(key)).face;
        controls_.lblKey(key).textColor = rgb(0, 0, 0);
    }
}

void Colors::leaveKeys() {
    currentKey_ = kNoKey;
    eRestoreColor();
}

void Colors::hoverKey(int key) {
    currentKey_ = key;
    eRestoreColor();
    controls_.shpKey(key).backColor = keyColors_.at(static_cast<std::size_t>(key)).accent;
    controls_.lblKey(key).textColor = settings_.glWhite;
}

void Colors::pressKey(int key) {
    hoverKey(key);
    controls_.shpKey(key).backColor = settings_.glGreen;
}

void Colors::ePutNewColor(Color color) {
    accent_ = color;
    for (Line& line : controls_.lnStrike)
        line.color = color;
    for (Shape* shape : controls_.accentShapes)
        shape->backColor = color;
    for (Label* label : controls_.accentLabels)
        label->backColor = color;
}

void Colors::tmrColor_Timer() {
    if (settings_.giGameState == kPlaying)
        ePutNewColor(settings_.glThemeNow);
    tmrColor.enabled = false;
}

void Colors::prepareTransition() {
    controls_.mColor.checked = settings_.gbColorTransition;
    lblColor.visible = settings_.gbColorTransition;
    eGetRGB(settings_.glThemeNow);
}

void Colors::mColor_Click() {
    settings_.gbColorTransition = !settings_.gbColorTransition;
    if (!settings_.gbColorTransition) {
        settings_.glThemeNow = settings_.glTheme;
        ePutNewColor(settings_.glThemeNow);
    }
    prepareTransition();
    eSaveSettings(settings_, program_.folder);
}

void Colors::eGetRGB(Color color) {
    channels_.at(0).value = redOf(color);
    channels_.at(1).value = greenOf(color);
    channels_.at(2).value = blueOf(color);
}

Color Colors::drifted() const {
    return rgb(channels_.at(0).value, channels_.at(1).value, channels_.at(2).value);
}

// Whether the colour stays dark enough for white text when the channel rises.
bool Colors::mayRise(const Channel& channel) const {
    auto risen = channels_;
    risen.at(static_cast<std::size_t>(&channel - channels_.data())).value += kDriftStep;
    return whiteTextContrast(rgb(risen.at(0).value, risen.at(1).value, risen.at(2).value)) >=
           kDriftContrast;
}

void Colors::tmrSmooth_Timer() {
    if (!settings_.gbColorTransition)
        return;
    program_.desktop.seedRandom();
    Channel& channel = channels_.at(static_cast<std::size_t>(3 * program_.desktop.random()));
    if (channel.value + kDriftStep > kDriftHigh || !mayRise(channel))
        channel.rising = false;
    if (channel.value - kDriftStep < kDriftLow)
        channel.rising = true;
    channel.value += channel.rising ? kDriftStep : -kDriftStep;
    settings_.glThemeNow = drifted();
    lblColor.caption.clear();
    for (const Channel& shown : channels_)
        lblColor.caption += u" " + inDigits(shown.value);
    ePutNewColor(settings_.glThemeNow);
}

}  // namespace quillor
