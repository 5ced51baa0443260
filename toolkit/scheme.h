// The colours in which a screen is shown to someone who has asked the system for high contrast
// or for a dark scheme. Whoever has asked for neither sees the screen's own.
#pragma once

#include "toolkit/contrast.h"
#include "toolkit/preferences.h"

namespace quillor {

/// What texts need in high contrast.
inline constexpr double kHighContrast = 7;

class Scheme {
  public:
    Scheme() = default;
    explicit Scheme(const Preferences& preferences)
        : dark_(preferences.dark), high_(preferences.highContrast) {}

    bool isUsual() const { return !dark_ && !high_; }
    bool isHighContrast() const { return high_; }

    /// The colour of something filled.
    Color ground(Color face) const;
    /// Of a text or a line on a ground, both as the screen has them. What cannot be told from
    /// it well enough is made lighter or darker.
    Color ink(Color ink, Color face) const;
    /// Of an edge around something: seen well in high contrast, and faint otherwise.
    Color edge(Color edge, Color face) const;

    /// What a text needs that usually needs so much.
    double needed(double usual) const;

    bool operator==(const Scheme&) const = default;

  private:
    bool dark_ = false;
    bool high_ = false;
};

/// Whether it is a picture of the player's, which is shown in all schemes but high contrast.
bool isPhoto(const Ground& ground, const Scheme& scheme);
/// Of the ground as it is shown: of the player's picture, or of the notebook page, or its only
/// colour.
ColorRange shownRange(const Ground& ground, const Scheme& scheme);

/// How a label's caption, or a line, is shown on what is behind it.
struct Inked {
    Color ink = 0;
    bool enabled = true;   // false: by itself, or by the face that it stands on
    ColorRange grounds{};  // behind it, as they are shown
    double needed = 0;     // of contrast to them

    /// What it takes around it to be told from them.
    Edge edge() const { return edgeFor(ink, grounds, needed); }
    bool operator==(const Inked&) const = default;
};
Inked inked(const Grounds& grounds, const Label& label, const Scheme& scheme);
Inked inked(const Grounds& grounds, const Line& line, const Scheme& scheme);

}  // namespace quillor
