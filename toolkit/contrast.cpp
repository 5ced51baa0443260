#include "toolkit/contrast.h"

#include <algorithm>
#include <cmath>

namespace quillor {

namespace {

constexpr Color kBlack = rgb(0, 0, 0);
constexpr Color kWhite = rgb(255, 255, 255);
constexpr double kFlare = 0.05;  // light that even black gives back

double linear(int component) {
    const double share = component / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

}  // namespace

double luminance(Color color) {
    return 0.2126 * linear(redOf(color)) + 0.7152 * linear(greenOf(color)) +
           0.0722 * linear(blueOf(color));
}

double contrast(Color one, Color other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + kFlare) / (darker + kFlare);
}

Color farthestFrom(Color color) {
    return contrast(color, kBlack) > contrast(color, kWhite) ? kBlack : kWhite;
}

Color darkEnoughForWhite(Color color, double needed) {
    while (contrast(color, kWhite) < needed)
        color = rgb(redOf(color) * 19 / 20, greenOf(color) * 19 / 20, blueOf(color) * 19 / 20);
    return color;
}

Color mixed(Color under, Color over, double share) {
    const auto mix = [share](int one, int other) {
        return static_cast<int>(std::lround(one + (other - one) * share));
    };
    return rgb(mix(redOf(under), redOf(over)), mix(greenOf(under), greenOf(over)),
               mix(blueOf(under), blueOf(over)));
}

}  // namespace quillor
