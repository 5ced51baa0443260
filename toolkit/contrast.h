// How well one colour can be told from another, what lies behind a text, and the edge
// that its letters need to be read there.
#pragma once

#include <array>
#include <vector>

#include "core/types.h"
#include "toolkit/screen.h"

namespace quillor {

/// What a text needs on its ground: large ones are those of 18 points, or of 14
/// in bold letters.
inline constexpr double kSmallTextContrast = 4.5;
inline constexpr double kLargeTextContrast = 3;

/// How light a colour is: 0 (black) to 1 (white).
double luminance(Color color);

/// Contrast of two colours as web pages measure it: 1 (the same) to 21 (black
/// on white).
double contrast(Color one, Color other);

/// Black or white, whichever stands out more from the colour: at least 4.5.
Color farthestFrom(Color color);

/// The colour, darker where white could not be read on it with that contrast (1 to 21).
Color darkEnoughForWhite(Color color, double needed);

/// `share` (0 to 1) of `over` on top of `under`.
Color mixed(Color under, Color over, double share);

/// A plain colour, or a picture, whose colours only the shell knows.
struct Ground {
    const Picture* picture = nullptr;
    Color color = 0;      // where there is no picture
    bool enabled = true;  // false: a face that shows that nothing can be pressed
};

/// What lies behind what on a screen: as it is now, and for as long as nothing changes.
class Grounds {
  public:
    explicit Grounds(const Screen& screen);
    /// What is seen behind the middle of something that stands on the screen: the next
    /// filled thing behind it, or the ground of an opaque label itself.
    Ground behind(const Label& label) const;
    Ground behind(const Line& line) const;

  private:
    struct Layer {
        int layer;
        Area place;  // on the screen
        Ground ground;
    };
    Ground at(const Control& front, Twips x, Twips y) const;

    std::vector<Layer> layers_;  // what is filled and seen, from the back to the front
};

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
