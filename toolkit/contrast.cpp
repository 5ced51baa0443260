#include "toolkit/contrast.h"

#include <algorithm>
#include <cmath>

namespace quillor {

namespace {

constexpr double kFlare = 0.05;  // light that even black gives back

double linear(int component) {
    const double share = component / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(Color color) {
    return 0.2126 * linear(redOf(color)) + 0.7152 * linear(greenOf(color)) +
           0.0722 * linear(blueOf(color));
}

}  // namespace

double contrast(Color one, Color other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + kFlare) / (darker + kFlare);
}

}  // namespace quillor
