// What lies behind a text, and the edge that its letters need to be read there.
#pragma once

#include <array>

#include "toolkit/contrast.h"
#include "toolkit/screen.h"

namespace quillor {

/// A plain colour, or a picture, whose colours only the shell knows.
struct Ground {
    const Picture* picture = nullptr;
    Color color = 0;      // where there is no picture
    bool enabled = true;  // false: a face that shows that nothing can be pressed
};

/// What is seen behind the middle of something that stands on the screen: the next
/// filled thing behind it, or the ground of an opaque label itself.
Ground groundBehind(const Screen& screen, const Label& label);
Ground groundBehind(const Screen& screen, const Line& line);

/// What a text in this font needs: kSmallTextContrast or kLargeTextContrast.
double contrastNeeded(const Font& font);

struct Edge {
    Color color = 0;   // black or white
    double share = 0;  // its opacity, 0 (no edge) to 1

    bool operator==(const Edge&) const = default;
};

/// The darkest and the lightest colour of something; all between may be in it too.
using ColorRange = std::array<Color, 2>;

/// The edge with which letters or lines of this ink have at least that contrast
/// (at most 4.5) to what is next to them on such a ground; the closer the ink is
/// to it, the stronger.
Edge edgeFor(Color ink, const ColorRange& ground, double needed);

}  // namespace quillor
