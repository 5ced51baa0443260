#include "toolkit/screen.h"

#include "core/guard.h"

namespace quillor {

void Screen::load() {
    quietly(name + "_Load", [&] { onLoad(); });
}

void Screen::unload() {
    quietly(name + "_Unload", [&] { onUnload(); });
}

void Screen::keyDown(KeyEvent& event) {
    quietly(name + "_KeyDown", [&] { onKeyDown(event); });
}

void Screen::keyPress(char16_t character) {
    quietly(name + "_KeyPress", [&] { onKeyPress(character); });
}

void Screen::closeRequest() {
    quietly(name + "_Close", [&] { onCloseRequest(); });
}

namespace {

// A handler may replace or destroy itself (a screen closes, a caption is
// wired anew), so a copy runs.
template <typename Handler>
void run(const std::string& id, const char* event, const Handler& handler) {
    if (handler)
        quietly(id + event, [copy = handler] { copy(); });
}

}  // namespace

void Screen::click(Label& label) { run(label.id, "_Click", label.onClick); }
void Screen::rightClick(Label& label) { run(label.id, "_RightClick", label.onRightClick); }
void Screen::rightClick(Picture& picture) { run(picture.id, "_RightClick", picture.onRightClick); }
void Screen::mouseDown(Label& label) { run(label.id, "_MouseDown", label.onMouseDown); }
void Screen::mouseUp(Label& label) { run(label.id, "_MouseUp", label.onMouseUp); }

void Screen::mouseMove(Control& control) {
    for (const ControlRef& ref : controls_) {
        if (&controlOf(ref) != &control)
            continue;
        const std::function<void()>* handler = nullptr;
        if (auto* const* label = std::get_if<Label*>(&ref))
            handler = &(*label)->onMouseMove;
        else if (auto* const* picture = std::get_if<Picture*>(&ref))
            handler = &(*picture)->onMouseMove;
        else if (auto* const* frame = std::get_if<Frame*>(&ref))
            handler = &(*frame)->onMouseMove;
        if (handler && *handler)
            run(control.id, "_MouseMove", *handler);
        else if (control.parent)
            mouseMove(*control.parent);
        return;
    }
}

void Screen::choose(MenuItem& item) {
    if (item.enabled)
        run(item.id, "_Click", item.onClick);
}

void Screen::tick(Timer& timer) {
    if (timer.enabled)
        run(timer.id, "_Timer", timer.onTick);
}

void Screen::edit(TextField& field, Text text, int selectionStart, int selectionLength) {
    quietly(field.id + "_Change",
            [&] { field.userEdited(std::move(text), selectionStart, selectionLength); });
}

void Screen::fieldKeyDown(TextField& field, KeyEvent& event) {
    if (field.onKeyDown)
        quietly(field.id + "_KeyDown", [&] { field.onKeyDown(event); });
}

char16_t Screen::fieldKeyPress(TextField& field, char16_t character) {
    char16_t result = character;
    if (field.onKeyPress)
        quietly(field.id + "_KeyPress", [&] { result = field.onKeyPress(character); });
    return result;
}

void Screen::focusChanged(TextField& field, bool gained) {
    run(field.id, gained ? "_GotFocus" : "_LostFocus",
        gained ? field.onGotFocus : field.onLostFocus);
}

void Screen::selectItem(ListBox& list, int index) {
    quietly(list.id + "_Click", [&] { list.select(index); });
}

void Screen::doubleClick(ListBox& list) { run(list.id, "_DblClick", list.onDoubleClick); }

void Screen::listKeyDown(ListBox& list, KeyEvent& event) {
    if (list.onKeyDown)
        quietly(list.id + "_KeyDown", [&] { list.onKeyDown(event); });
}

}  // namespace quillor
