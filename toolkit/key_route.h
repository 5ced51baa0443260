// The way of a key through a screen, the same in every shell: the screen, the control
// that has the focus, the screen's last resort, an access key, then a field, a button or a list,
// and at last the screen's key press.
#pragma once

#include <optional>

#include "toolkit/focus.h"

namespace quillor {

/// A key going down, as a shell tells of it.
struct KeyPress {
    KeyEvent key;
    Text typed;               // printable text, Return or Backspace; empty for a shortcut
    char16_t sign = 0;        // what the key would type without Alt, for access keys; 0: nothing
    int id = 0;               // which key of the keyboard it is: the same for as long as it is held
    bool autoRepeat = false;  // not the first press since the key went down
};

/// One for all screens of a shell. A key that is held types into a field, moves in a list
/// or with Tab, and does nothing else: what changes the screen or acts as a command acts
/// on the first press only, and a key held across a change of screen or focus does nothing
/// until it has been let go.
class KeyRoute {
  public:
    /// What a shell's native controls do with a press that is left to them: the field that
    /// has the focus moves its caret, deletes or serves the clipboard; the list moves its
    /// selection.
    enum class Rest { None, Field, List };

    /// A key goes down on the screen in front: its way from one to the next until one of
    /// them takes it. Returns whose native control is to have it; None: nothing is left to do.
    Rest press(Screen& screen, Focus& focus, const KeyPress& press);
    /// Whether the latest press was a command, so that nobody else has a use for it.
    bool wasTaken() const { return taken_; }
    /// That key has been let go: a button that Space held down is clicked now.
    void release(int id);
    /// Text of an input method, character by character, into the field that has the focus
    /// or onto the screen.
    void commit(Screen& screen, Focus& focus, TextView text);

    /// A box or another window takes the keys.
    void letGo();
    /// The screen is closing: nothing of it is touched any more.
    void forget(const Screen& screen);

  private:
    struct Held {
        int id;
        const Screen* screen;    // where it was pressed
        const Control* focused;  // there
        bool types = false;      // it may repeat
    };
    struct Down {
        int id;
        Screen* screen;
        Focus* focus;
        Label* label;
    };
    bool mayRepeat(const Screen& screen, const Focus& focus, const KeyPress& press) const;
    bool isTaken(Screen& screen, Focus& focus, KeyEvent key);
    bool pressAccessKey(Screen& screen, const KeyPress& press);
    Rest serve(Screen& screen, Focus& focus, const KeyPress& press);
    Rest serveField(Screen& screen, TextField& field, const KeyPress& press);
    bool typeInto(Screen& screen, TextField& field, TextView typed);
    bool moveInGroup(Focus& focus, const KeyEvent& key);
    bool pressButton(Screen& screen, Focus& focus, const KeyPress& press);
    void pressLabel(Screen& screen, Label& label);
    void typeOn(Screen& screen, TextView text);
    bool goesOn(const Screen& screen) const { return visited_ == &screen && screen.enabled; }
    void letRepeat(bool types);

    std::optional<Held> held_;
    std::optional<Down> down_;         // the button that Space holds down
    const Screen* visited_ = nullptr;  // whose handlers run; null once it is closed
    bool taken_ = false;
};

}  // namespace quillor
