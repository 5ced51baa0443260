// What a screen is made of. Controls are plain values: a handler changes them,
// and the shell shows the difference after the event.
#pragma once

#include <array>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "core/types.h"
#include "toolkit/edit_history.h"
#include "toolkit/keys.h"

namespace quillor {

struct Frame;
struct MenuItem;

/// Which of the program's typefaces a text is drawn in.
enum class Face {
    Plain,      // the system's own, for messages and fields
    Display,    // the rounded bold display font
    Comic,      // the figure's face
    Webdings,   // symbols: the shell draws the picture that the letter stands for
    Wingdings,  // the same
};

struct Font {
    Face face = Face::Plain;
    float size = 10;  // points (20 twips)
    bool bold = false;

    bool operator==(const Font&) const = default;
};

enum class Align { Left, Center, Right };

/// A rectangle, in twips.
struct Area {
    Twips left = 0;
    Twips top = 0;
    Twips width = 0;
    Twips height = 0;

    Twips right() const { return left + width; }
    Twips bottom() const { return top + height; }
    bool operator==(const Area&) const = default;
};

/// A short movement of a control that ends where the control stands.
enum class Motion {
    Appear,  // it comes into its place
    Shake,   // to and fro
};

/// What every control has. Lengths are twips, relative to the parent.
struct Control {
    std::string id;           // its name in the code, e.g. "lblKey(5)"; unique on its screen
    Frame* parent = nullptr;  // null: stands on the screen itself
    int layer = std::numeric_limits<int>::max();  // on its screen, from 0 at the back
    Twips left = 0;
    Twips top = 0;
    Twips width = 0;
    Twips height = 0;
    bool visible = true;
    bool enabled = true;
    int group = 0;  // controls of one: arrow keys go from one to the next, Tab leaves; 0: none
    Text toolTip;
    Text spokenName;  // accessible name where the caption is a symbol or there is none
    Motion motion = Motion::Appear;
    int motions = 0;  // made so far; a shell shows each new one, unless motion is not wanted

    void move(Motion way) {
        motion = way;
        ++motions;
    }
    void place(Twips x, Twips y, Twips w, Twips h) {
        left = x;
        top = y;
        width = w;
        height = h;
    }
    Twips right() const { return left + width; }
    Twips bottom() const { return top + height; }
};

/// Whether the control and all the frames that it stands on are visible.
bool isSeen(const Control& control);
/// Whether they are visible and enabled.
bool isUsable(const Control& control);
/// Where it stands on the screen.
Area areaOnScreen(const Control& control);

/// What a label is to someone who cannot see it.
enum class LabelRole {
    Plain,         // read, not pressed
    Button,        // pressed by click, by Space, or as the screen says
    CheckBox,      // a button whose `checked` is spoken
    RadioButton,   // the same, one of several
    Notification,  // spoken when `said` is raised, never drawn
    Reader,        // read, and reached by Tab: its own keys lead about in it
};

struct Label : Control {
    Text caption;          // a single "&" marks the access key behind it, "&&" is the sign
    bool literal = false;  // the caption is data: each "&" is the sign, and there is no access key
    Font font;
    Color textColor = 0;
    Color backColor = 0;
    bool opaque = false;     // fills its rectangle with backColor
    Twips cornerRadius = 0;  // of that rectangle
    Align align = Align::Center;
    bool wordWrap = false;
    LabelRole role = LabelRole::Plain;
    bool checked = false;
    bool tabStop = true;       // for buttons: reached by Tab
    int said = 0;              // for notifications: how often something was said
    MenuItem* menu = nullptr;  // what pressing it pops up

    std::function<void()> onClick;  // left button released over it, Space, or assistive press
    std::function<void()> onRightClick;
    std::function<void()> onMouseDown;  // left button
    std::function<void()> onMouseUp;
    std::function<void()> onMouseMove;         // also when the mouse enters it
    std::function<void(KeyEvent&)> onKeyDown;  // while it has the focus
};

/// Whether it is a button of any kind, which may have the focus.
bool isButton(const Label& label);
/// Whether it may have the focus.
bool takesFocus(const Label& label);
/// Whether pressing it does something now.
bool isPressable(const Label& label);

enum class ShapeKind { RoundedRectangle, Oval };

struct Shape : Control {
    ShapeKind kind = ShapeKind::RoundedRectangle;
    Color backColor = 0;
    bool filled = true;
    Color borderColor = 0;
    Twips borderWidth = 0;  // 0: no border
    Twips radius = 120;     // of rounded corners
};

/// Its place is x1..y2; the rectangle of Control is unused.
struct Line : Control {
    Twips x1 = 0;
    Twips y1 = 0;
    Twips x2 = 0;
    Twips y2 = 0;
    Color color = 0;
    Twips thickness = 30;
    bool roundEnds = true;  // which reach beyond the points by half the thickness

    void span(Twips fromX, Twips fromY, Twips toX, Twips toY) {
        x1 = fromX;
        y1 = fromY;
        x2 = toX;
        y2 = toY;
    }
};

/// A decoded picture; only the shell knows what is inside.
class Image {
  public:
    virtual ~Image() = default;
    /// The darkest and the lightest of its colours that can be seen from a distance.
    virtual std::array<Color, 2> range() const { return {rgb(0, 0, 0), rgb(255, 255, 255)}; }
};
using ImageRef = std::shared_ptr<const Image>;

/// Shows its image cropped to fill, never distorted; without an image, the
/// program's own notebook page and what is drawn on it.
struct Picture : Control {
    ImageRef image;
    std::string drawing;  // a file name in resources/pictures without its ending; may be empty
    Area drawn;           // where it lies on the picture; of no size: all over
    std::function<void()> onRightClick;
    std::function<void()> onMouseMove;
};

/// A panel that other controls stand on. Transparent unless `opaque`.
struct Frame : Control {
    Color backColor = 0;
    bool opaque = false;
    std::function<void()> onMouseMove;
};

/// One line of text to type.
struct TextField : Control {
    Font font;
    Color textColor = 0;
    Color backColor = rgb(255, 255, 255);
    int maxLength = 0;  // characters; 0: no limit

    std::function<void(KeyEvent&)> onKeyDown;
    /// The character to let through in place of the typed one; 0 swallows it.
    std::function<char16_t(char16_t)> onKeyPress;
    std::function<void()> onChange;  // by the player or by setText
    std::function<void()> onGotFocus;
    std::function<void()> onLostFocus;

    const Text& text() const { return text_; }
    int caret() const { return caret_; }  // where the selection begins, in characters
    int selectionLength() const { return selectionLength_; }
    Text selectedText() const;

    /// Sets the text, in one line and cut to maxLength; the caret is held within it and
    /// nothing is selected. Raises onChange when the text differs. Outside of what the
    /// player does in this field it cannot be undone, nor can anything before it.
    void setText(Text text);
    void setCaret(int caret) { select(caret, 0); }
    /// Both are held within the text.
    void select(int start, int length);
    void selectAll() { select(0, static_cast<int>(text_.size())); }

    // What the player does in the field; each raises onChange when the text differs.

    /// The text as the player has left it. What has been put into it is taken in one
    /// line and cut so that the whole is no longer than maxLength.
    void userEdited(Text text, int selectionStart, int selectionLength);
    /// Puts one character in place of the selection; nothing where there is no room.
    void type(char16_t character);
    /// Deletes the selection, or the character before the caret.
    void eraseBack();
    void undo();
    void redo();

    /// While it lives, whatever happens to the text is one step of the player's, to be
    /// undone at once; within another one it is part of that.
    class Step {
      public:
        explicit Step(TextField& field);
        ~Step();
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

      private:
        TextField& field_;
    };

  private:
    EditState state() const { return {text_, caret_, selectionLength_}; }
    void take(EditState state);
    void goTo(EditState state);

    Text text_;
    int caret_ = 0;
    int selectionLength_ = 0;
    EditHistory history_;
    EditState before_;  // the innermost steps' common beginning
    int steps_ = 0;     // how many live
};

/// A single-column list with at most one selected entry.
struct ListBox : Control {
    Font font;
    Color selectionColor = rgb(20, 140, 220);  // shown darker where its text needs that
    std::vector<Text> items;

    std::function<void()> onClick;  // an entry was selected, by the player or by select
    std::function<void()> onDoubleClick;
    std::function<void(KeyEvent&)> onKeyDown;

    int listIndex() const { return listIndex_; }  // -1: none
    /// Selects an entry and raises onClick. Throws std::out_of_range for a
    /// position outside -1..items-1; -1 selects nothing and raises nothing.
    void select(int index);
    /// Removes an entry; nothing is selected after it.
    void removeItem(int index);
    void clear();

  private:
    int listIndex_ = -1;
};

/// An entry of a menu; with children it is a submenu.
struct MenuItem {
    std::string id;
    Text caption;   // empty: a separator
    Text shortcut;  // as shown beside the caption, e.g. "Ctrl+E"; the screen handles the key
    bool checkable = false;
    bool radio = false;  // checkable; of those in one menu at most one is checked
    bool checked = false;
    bool enabled = true;
    std::vector<MenuItem*> children;
    std::function<void()> onClick;
};

/// Served at a resolution of about 15 ms: a shorter interval counts as that.
inline constexpr int kTimerResolution = 15;

struct Timer {
    std::string id;
    int interval = 0;  // ms
    bool enabled = false;
    std::function<void()> onTick;

    int servedInterval() const { return interval < kTimerResolution ? kTimerResolution : interval; }
};

using ControlRef = std::variant<Label*, Shape*, Line*, Picture*, Frame*, TextField*, ListBox*>;

/// The part that all kinds share.
inline Control& controlOf(const ControlRef& ref) {
    return *std::visit([](auto* control) -> Control* { return control; }, ref);
}

/// The character behind the caption's first single "&", in capitals; 0: none.
char16_t accessKey(TextView caption);
/// The caption as it is read: without the marks of access keys.
Text plainCaption(TextView caption);

// The same for a label; one that is literal has no marks.
char16_t accessKey(const Label& label);
Text plainCaption(const Label& label);

}  // namespace quillor
