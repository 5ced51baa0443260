// A player's hands: acts on screens only in ways that a person at the window
// could, and fails the test where a person could not.
#pragma once

#include <functional>
#include <string>

#include "tests/support/fake_desktop.h"

namespace quillor::testing {

struct Modifiers {
    bool control = false;
    bool shift = false;
    bool alt = false;
    bool autoRepeat = false;
};
inline constexpr Modifiers kControl{true, false, false, false};
inline constexpr Modifiers kHeld{false, false, false, true};

class Player {
  public:
    explicit Player(FakeDesktop& desktop) : desktop_(desktop) {}

    /// The screen in front. Throws std::logic_error when none is open.
    Screen& screen() const;

    // Each by its id on the screen in front.
    void click(const std::string& id);
    void rightClick(const std::string& id);
    void hover(const std::string& id);
    /// Presses the mouse on it and lets it go elsewhere.
    void mouseDown(const std::string& id);
    void mouseUp(const std::string& id);
    /// Puts the focus and the caret, in characters, into a field.
    void clickInto(const std::string& fieldId, int caret);
    void selectText(const std::string& fieldId, int start, int length);
    void selectItem(const std::string& listId, int index);
    void doubleClickItem(const std::string& listId, int index);

    /// Types text key by key, into the field that has the focus if one has.
    void type(TextView text);
    /// Presses a key that types no text, or one with Control, and lets it go.
    void press(int keyCode, Modifiers modifiers = {});
    /// Holds a key that types a character, or one that types none: it repeats so many
    /// times, and `meanwhile` runs before it does.
    void hold(char16_t character, int repeats, const std::function<void()>& meanwhile = {});
    void holdKey(int keyCode, int repeats, const std::function<void()>& meanwhile = {});
    /// Presses Alt and the key of an access key.
    void pressAccessKey(char16_t sign);
    /// An input method hands over a whole text.
    void compose(TextView text);
    /// Opens the screen's menu by its key and chooses an entry by its id.
    void chooseMenu(const std::string& itemId);
    void closeWindow();

    /// Whether a person sees the control.
    static bool sees(const Control& control) { return isSeen(control); }

  private:
    Control& control(const std::string& id) const;
    template <typename T>
    T& usable(const std::string& id, const char* action) const;
    void send(const KeyPress& press);
    void sendHeld(KeyPress press, int repeats, const std::function<void()>& meanwhile);
    void editKey(TextField& field, const KeyEvent& event);
    void moveKey(ListBox& list, const KeyEvent& event);

    FakeDesktop& desktop_;
};

}  // namespace quillor::testing
