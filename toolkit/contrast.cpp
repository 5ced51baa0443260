// Contrast and luminance as web pages measure them.
#include "toolkit/contrast.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <span>

namespace quillor {

namespace {

constexpr Color kBlack = rgb(0, 0, 0);
constexpr Color kWhite = rgb(255, 255, 255);
constexpr double kFlare = 0.05;  // light that even black gives back

using Lights = std::array<double, 256>;

Lights makeLights() {
    Lights lights{};
    for (std::size_t i = 0; i < lights.size(); ++i) {
        const double share = static_cast<double>(i) / 255;
        lights[i] = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    }
    return lights;
}

// How much light a component gives, 0 to 1. The edge of one caption asks hundreds of times.
double linear(int component) {
    static const Lights kLights = makeLights();
    return kLights.at(static_cast<std::size_t>(component));
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

namespace {

// Of a control on its screen.
Area placeOf(const Control& control) {
    Area place{control.left, control.top, control.width, control.height};
    for (const Frame* frame = control.parent; frame; frame = frame->parent) {
        place.left += frame->left;
        place.top += frame->top;
    }
    return place;
}

bool covers(const Area& area, Twips x, Twips y) {
    return x >= area.left && x < area.right() && y >= area.top && y < area.bottom();
}

// What a control puts behind those in front of it.
std::optional<Ground> groundOf(const ControlRef& ref) {
    if (const auto* const* picture = std::get_if<Picture*>(&ref))
        return Ground{.picture = *picture};
    if (const auto* const* shape = std::get_if<Shape*>(&ref); shape && (*shape)->filled)
        return Ground{.color = (*shape)->backColor, .enabled = (*shape)->enabled};
    if (const auto* const* frame = std::get_if<Frame*>(&ref); frame && (*frame)->opaque)
        return Ground{.color = (*frame)->backColor};
    if (const auto* const* label = std::get_if<Label*>(&ref); label && (*label)->opaque)
        return Ground{.color = (*label)->backColor};
    return std::nullopt;
}

double leastContrast(Color ink, std::span<const Color> grounds, Color edge, double share) {
    double least = contrast(ink, edge);
    for (const Color ground : grounds)
        least = std::min(least, contrast(ink, mixed(ground, edge, share)));
    return least;
}

// The least opacity from which on an edge in that colour is enough; none: nothing is.
std::optional<double> shareNeeded(Color ink, std::span<const Color> grounds, Color edge,
                                  double needed) {
    constexpr double kStep = 1.0 / 32;
    double share = 1;
    if (leastContrast(ink, grounds, edge, share) < needed)
        return std::nullopt;
    while (share > 0 && leastContrast(ink, grounds, edge, share - kStep) >= needed)
        share -= kStep;
    return share;
}

}  // namespace

Grounds::Grounds(const Screen& screen) {
    for (const ControlRef& ref : screen.controls()) {
        const Control& control = controlOf(ref);
        if (const auto ground = groundOf(ref); ground && isSeen(control))
            layers_.push_back({control.layer, placeOf(control), *ground});
    }
}

Ground Grounds::behind(const Label& label) const {
    if (label.opaque)
        return {.color = label.backColor};
    return at(label, label.left + label.width / 2, label.top + label.height / 2);
}

Ground Grounds::behind(const Line& line) const {
    return at(line, (line.x1 + line.x2) / 2, (line.y1 + line.y2) / 2);
}

// At a point of the control's parent.
Ground Grounds::at(const Control& front, Twips x, Twips y) const {
    const Area place = placeOf(front);
    x += place.left - front.left;
    y += place.top - front.top;
    const auto found = std::find_if(layers_.rbegin(), layers_.rend(), [&](const Layer& each) {
        return each.layer < front.layer && covers(each.place, x, y);
    });
    return found == layers_.rend() ? Ground{.color = rgb(255, 255, 255)} : found->ground;
}

double contrastNeeded(const Font& font) {
    const bool symbol = font.face == Face::Webdings || font.face == Face::Wingdings;
    const bool large = font.size >= 18 || (font.bold && font.size >= 14);
    return symbol || large ? kLargeTextContrast : kSmallTextContrast;
}

Edge edgeFor(Color ink, const ColorRange& ground, double needed) {
    const double light = luminance(ink);
    const bool between = luminance(ground[0]) < light && light < luminance(ground[1]);
    const std::array<Color, 3> grounds{ground[0], ground[1], between ? ink : ground[0]};
    const double without =
        std::min({contrast(ink, grounds[0]), contrast(ink, grounds[1]), contrast(ink, grounds[2])});
    if (without >= needed)
        return {};
    Edge best{farthestFrom(ink), 1};
    for (const Color color : {rgb(0, 0, 0), rgb(255, 255, 255)})
        if (const auto share = shareNeeded(ink, grounds, color, needed);
            share && *share < best.share)
            best = {color, *share};
    const double lack = (needed - without) / (needed - 1);
    best.share += (1 - best.share) * lack;
    return best;
}

}  // namespace quillor
