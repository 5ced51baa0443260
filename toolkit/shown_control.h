// What a shell has shown of a control, and what differs from it now.
#pragma once

#include <variant>

#include "toolkit/controls.h"

namespace quillor {

/// Of a caption, an entry or a name: more than fits on any display. Longer ones, which
/// come out of files, would hold up whoever sets them in type.
inline constexpr std::size_t kMostShown = 1000;

// What is seen of each kind beside its place. Captions, texts and entries are
// empty while the control is not seen, and end at kMostShown.

struct ShownLabel {
    Text caption;
    bool literal = false;
    Font font;
    Color textColor = 0;
    Color backColor = 0;
    bool opaque = false;
    Twips cornerRadius = 0;
    Align align = Align::Center;
    bool wordWrap = false;

    bool operator==(const ShownLabel&) const = default;
};

struct ShownShape {
    ShapeKind kind = ShapeKind::RoundedRectangle;
    Color backColor = 0;
    bool filled = true;
    Color borderColor = 0;
    Twips borderWidth = 0;
    Twips radius = 0;

    bool operator==(const ShownShape&) const = default;
};

struct ShownLine {
    Twips x1 = 0;
    Twips y1 = 0;
    Twips x2 = 0;
    Twips y2 = 0;
    Color color = 0;
    Twips thickness = 0;
    bool roundEnds = true;

    bool operator==(const ShownLine&) const = default;
};

struct ShownPicture {
    ImageRef image;
    std::string drawing;
    Area drawn;

    bool operator==(const ShownPicture&) const = default;
};

struct ShownFrame {
    Color backColor = 0;
    bool opaque = false;

    bool operator==(const ShownFrame&) const = default;
};

struct ShownField {
    Font font;
    Color textColor = 0;
    Color backColor = 0;
    Text text;
    int caret = 0;
    int selectionLength = 0;

    bool operator==(const ShownField&) const = default;
};

struct ShownList {
    Font font;
    std::vector<Text> items;
    int listIndex = -1;

    bool operator==(const ShownList&) const = default;
};

using ShownLook = std::variant<ShownLabel, ShownShape, ShownLine, ShownPicture, ShownFrame,
                               ShownField, ShownList>;

/// As a value: a shell keeps one for each control and brings it up to date
/// after each event. A new one is an invisible control without words in no
/// place.
struct ShownControl {
    Area area;             // relative to its frame, or to the screen
    bool visible = false;  // by itself; a frame hides what stands on it
    bool enabled = true;   // the same
    Text name;             // as it is spoken; empty while the control is not seen
    Text toolTip;          // the same
    bool checked = false;
    int said = 0;
    ShownLook look;

    struct Changes {
        bool place = false;
        bool words = false;  // name or tool tip
        bool state = false;  // visible or enabled
        bool checked = false;
        bool look = false;
        bool any() const { return place || words || state || checked || look; }
        Changes& operator|=(const Changes& others);
    };
    /// Takes over what has become of the control, which is always the same one.
    Changes update(const ControlRef& ref);
};

}  // namespace quillor
