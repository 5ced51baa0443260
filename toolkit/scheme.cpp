// Greys change sides in the dark; colours stay what they are, only darker or lighter.
#include "toolkit/scheme.h"

#include <algorithm>

#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr Color kBlack = rgb(0, 0, 0);
constexpr Color kWhite = rgb(255, 255, 255);
constexpr int kDarkest = 28;  // of a dark scheme: black itself is for high contrast

bool isGrey(Color color) {
    constexpr int kSpread = 32;  // of its components
    const auto [least, most] = std::minmax({redOf(color), greenOf(color), blueOf(color)});
    return most - least <= kSpread;
}

int lightness(Color grey) {
    return (redOf(grey) + greenOf(grey) + blueOf(grey)) / 3;
}

Color grey(int light) {
    return rgb(light, light, light);
}

// The ink, further from the ground until they have that contrast. A light one stays light where
// white is enough: the captions of one menu are not of two inks.
Color farEnough(Color ink, Color ground, double needed) {
    constexpr double kStep = 1.0 / 32;
    const bool staysLight =
        luminance(ink) > luminance(ground) && contrast(kWhite, ground) >= needed;
    const Color end = staysLight ? kWhite : farthestFrom(ground);
    Color found = ink;
    for (double share = kStep; share <= 1 && contrast(found, ground) < needed; share += kStep)
        found = mixed(ink, end, share);
    return found;
}

}  // namespace

double Scheme::needed(double usual) const {
    if (high_)
        return kHighContrast;
    return dark_ ? std::max(usual, kSmallTextContrast) : usual;
}

Color Scheme::ground(Color face) const {
    if (isUsual())
        return face;
    if (!isGrey(face))
        return darkEnoughForWhite(face, needed(kSmallTextContrast));
    const bool light = lightness(face) >= 128;
    if (high_)
        return light == dark_ ? kBlack : kWhite;
    return grey(kDarkest + (255 - lightness(face)) * 17 / 20);
}

Color Scheme::ink(Color ink, Color face) const {
    if (isUsual())
        return ink;
    const bool turned = dark_ && isGrey(face) && isGrey(ink);
    return farEnough(turned ? grey(255 - lightness(ink)) : ink, ground(face),
                     needed(kSmallTextContrast));
}

Color Scheme::edge(Color edge, Color face) const {
    if (isUsual() || high_)
        return ink(edge, face);
    return isGrey(edge) ? grey(kDarkest + 255 - lightness(edge)) : edge;
}

bool isPhoto(const Ground& ground, const Scheme& scheme) {
    return ground.picture != nullptr && ground.picture->image != nullptr &&
           !scheme.isHighContrast();
}

ColorRange shownRange(const Ground& ground, const Scheme& scheme) {
    if (isPhoto(ground, scheme))
        return ground.picture->image->range();
    const Color color = scheme.ground(ground.picture != nullptr ? style::kPaper : ground.color);
    return {color, color};
}

namespace {

Inked inkedOn(const Ground& ground, Color color, Color face, const Scheme& scheme) {
    Inked shown;
    shown.grounds = shownRange(ground, scheme);
    shown.ink =
        isPhoto(ground, scheme) ? color : scheme.ink(color, ground.picture ? style::kPaper : face);
    return shown;
}

}  // namespace

Inked inked(const Grounds& grounds, const Label& label, const Scheme& scheme) {
    const Ground ground = grounds.behind(label);
    const bool enabled = label.enabled && ground.enabled;
    Inked shown = inkedOn(ground, enabled ? label.textColor : style::kInk,
                          enabled ? ground.color : style::kDisabledFace, scheme);
    shown.enabled = enabled;
    shown.needed = scheme.needed(contrastNeeded(label.font));
    return shown;
}

Inked inked(const Grounds& grounds, const Line& line, const Scheme& scheme) {
    const Ground ground = grounds.behind(line);
    Inked shown = inkedOn(ground, line.color, ground.color, scheme);
    shown.needed = scheme.needed(kLargeTextContrast);
    return shown;
}

}  // namespace quillor
