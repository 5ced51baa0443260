// One screen of the program: its controls, timers and menus, and the events
// that the shell, or a test in its place, delivers to it.
#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/control_array.h"
#include "toolkit/controls.h"
#include "toolkit/sheets.h"

namespace quillor {

class Screen {
  public:
    explicit Screen(std::string screenName) : name(std::move(screenName)) {}
    virtual ~Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    const std::string name;  // e.g. "frmGame"
    Text title;
    Twips width = 0;
    Twips height = 0;
    bool enabled = true;               // false while a screen stands over it
    const Screen* over = nullptr;      // the screen that this one stands over, if any
    const Control* focused = nullptr;  // as Focus has moved it; null: none

    /// What fills the window: the screen, or a page that it stands in the middle of. Of no
    /// size where a screen has one layout only.
    const Sheet& sheet() const { return sheet_; }
    /// Stands the controls, and gives the screen its size, as it suits a room of that width
    /// and height, in any unit. For the shell, before the screen is first shown and whenever
    /// the room changes.
    void fit(double roomWidth, double roomHeight);

    /// From back to front; a control stands in front of its frame.
    const std::vector<ControlRef>& controls() const { return controls_; }
    const std::vector<Timer*>& timers() const { return timers_; }

    /// A control as what it is; null when it is of another kind, or not of this screen.
    template <typename T>
    T* as(const Control* control) const {
        const ControlRef* ref = control ? find(*control) : nullptr;
        T* const* found = ref ? std::get_if<T*>(ref) : nullptr;
        return found ? *found : nullptr;
    }

    /// The control that has the focus when the screen opens, and that gets it
    /// back when the focused one is hidden; null: none.
    virtual Control* initialFocus() { return nullptr; }
    /// Whether files may be dropped on the screen now.
    virtual bool takesFiles() const { return false; }
    /// Asks the shell to move the focus to a control after this event.
    void setFocus(Control& control) { focusRequest_ = &control; }
    /// The pending wish of setFocus, which this call clears; null: none.
    Control* takeFocusRequest() { return std::exchange(focusRequest_, nullptr); }

    /// The picture behind the screen, handed on from screen to screen.
    virtual void takePaper(const ImageRef& paper) = 0;

    // What happens to a screen. Each runs the screen's own handler under the
    // guard: an unexpected error ends the handler, not the program. A screen
    // that is not enabled takes no input but its timers', and a control that is not, none.
    // That its frames are enabled and visible is for the shell to see to.
    void load();
    void unload();
    void keyDown(KeyEvent& event);
    void keyUnused(KeyEvent& event);  // neither the screen nor the control has taken it
    void keyPress(char16_t character);
    void closeRequest();  // the title bar's close button
    void click(Label& label);
    /// Ends at the first handler from the control to its frames, and failing that at the
    /// screen's menu; fields and lists keep it to themselves.
    void rightClick(Control& control);
    void rightClickBeside();  // where there is no control
    void mouseDown(Label& label);
    void mouseUp(Label& label);
    void mouseMove(Control& control);  // ends at the first handler from the control to its frames
    void choose(MenuItem& item);
    void tick(Timer& timer);
    void edit(TextField& field, Text text, int selectionStart, int selectionLength);
    void fieldKeyDown(TextField& field, KeyEvent& event);
    /// The character to type in place of this one; 0: none.
    char16_t fieldKeyPress(TextField& field, char16_t character);
    void type(TextField& field, char16_t character);  // a printable one, or Backspace
    void undo(TextField& field);
    void redo(TextField& field);
    void focusChanged(TextField& field, bool gained);
    void selectItem(ListBox& list, int index);  // -1: none
    void doubleClick(ListBox& list);
    /// Files that were dropped on the screen; nothing where it takes none.
    void dropFiles(const std::vector<std::filesystem::path>& files);
    void labelKeyDown(Label& label, KeyEvent& event);
    void listKeyDown(ListBox& list, KeyEvent& event);

  protected:
    /// The layouts that it has, which live as long as the screen; none: just one.
    virtual std::span<const Sheet> sheets() const { return {}; }
    /// Puts everything in its place on that sheet: called again for each other one, also
    /// while a game goes on.
    virtual void arrange(const Sheet&) {}

    virtual void onLoad() = 0;
    virtual void onUnload() {}
    virtual void onKeyDown(KeyEvent&) {}
    virtual void onKeyUnused(KeyEvent&) {}
    virtual void onKeyPress(char16_t) {}
    /// A right click that no control has taken.
    virtual void onContextMenu() {}
    virtual void onFilesDropped(const std::vector<std::filesystem::path>&) {}
    virtual void onCloseRequest() = 0;

    /// Puts a control in front of those added before it.
    template <typename T>
    T& add(T& control, Frame* parent = nullptr) {
        control.parent = parent;
        control.layer = static_cast<int>(controls_.size());
        controls_.emplace_back(&control);
        return control;
    }
    template <typename T, int First, int Last>
    void add(ControlArray<T, First, Last>& array, Frame* parent = nullptr) {
        for (T& control : array)
            add(control, parent);
    }
    void add(Timer& timer) { timers_.push_back(&timer); }

  private:
    void input(const Control& control, const char* event, const std::function<void()>& handler);
    const ControlRef* find(const Control& control) const;

    std::vector<ControlRef> controls_;
    std::vector<Timer*> timers_;
    Control* focusRequest_ = nullptr;
    Sheet sheet_;
};

}  // namespace quillor
