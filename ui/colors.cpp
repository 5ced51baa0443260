// The drift keeps white text on the accent readable.
#include "ui/colors.h"

#include <utility>

#include "core/numbers.h"
#include "toolkit/contrast.h"

namespace quillor {

namespace {

constexpr int kDriftStep = 3;
constexpr int kDriftLow = 61;
constexpr int kDriftHigh = 240;
// White text needs 3; the rest is room for a channel that must leave its floor.
constexpr double kDriftContrast = 3.1;

constexpr Twips kPenShare = 11;  // letters are this often as high as their line is thick

// An odd design inks in colour; from 2 on, the ink fills the cell.
bool isFilled(int design) {
    return design >= 2;
}
Color inkOf(int design, const GameSettings& settings) {
    return design % 2 == 1 ? settings.glTheme : settings.glBlack;
}

}  // namespace

Color letterColor(int design, const GameSettings& settings) {
    return isFilled(design) ? settings.glWhite : inkOf(design, settings);
}

void paintLetter(Label& letter, Line& underline, int design, const GameSettings& settings) {
    const bool filled = isFilled(design);
    const Color ink = inkOf(design, settings);
    const Twips below = letter.bottom() - underline.y1;
    underline.color = ink;
    underline.thickness = filled ? 2 * below : letter.height / kPenShare;
    underline.roundEnds = !filled;
    letter.textColor = letterColor(design, settings);
    letter.backColor = ink;
    letter.opaque = filled;
}

double whiteTextContrast(Color background) {
    return contrast(rgb(250, 250, 250), background);
}

Accent::Accent(Program& program, std::function<void(Color)> paint)
    : program_(program), settings_(program.settings), paint_(std::move(paint)) {
    tmrColor.id = "tmrColor";
    tmrColor.interval = 400;
    tmrColor.onTick = [this] { tmrColor_Timer(); };
    tmrSmooth.id = "tmrSmooth";
    tmrSmooth.interval = 100;
    tmrSmooth.onTick = [this] { tmrSmooth_Timer(); };
}

void Accent::ePutNewColor(Color color) {
    color_ = color;
    paint_(color);
}

void Accent::flash(Color color) {
    ePutNewColor(color);
    tmrColor.enabled = true;
}

void Accent::tmrColor_Timer() {
    if (settings_.giGameState == kPlaying)
        ePutNewColor(settings_.glThemeNow);
    tmrColor.enabled = false;
}

void Accent::prepareTransition() {
    lblColor.visible = settings_.gbColorTransition;
    tmrSmooth.enabled = settings_.gbColorTransition;
    eGetRGB(settings_.glThemeNow);
}

void Accent::switchTransition() {
    if (!settings_.gbColorTransition) {
        settings_.glThemeNow = settings_.glTheme;
        ePutNewColor(settings_.glThemeNow);
    }
    prepareTransition();
}

void Accent::eGetRGB(Color color) {
    channels_.at(0).value = redOf(color);
    channels_.at(1).value = greenOf(color);
    channels_.at(2).value = blueOf(color);
}

Color Accent::drifted() const {
    return rgb(channels_.at(0).value, channels_.at(1).value, channels_.at(2).value);
}

// Whether the colour stays dark enough for white text when the channel rises.
bool Accent::mayRise(const Channel& channel) const {
    auto risen = channels_;
    risen.at(static_cast<std::size_t>(&channel - channels_.data())).value += kDriftStep;
    return whiteTextContrast(rgb(risen.at(0).value, risen.at(1).value, risen.at(2).value)) >=
           kDriftContrast;
}

void Accent::tmrSmooth_Timer() {
    if (program_.desktop.preferences().reducedMotion)
        return;
    Channel& channel = channels_.at(static_cast<std::size_t>(3 * program_.desktop.draw()));
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
