// Each event: does the screen take it, is there a handler, and the guard around it.
#include "toolkit/screen.h"

#include "core/guard.h"

namespace quillor {

namespace {

// Empty where the control is of a kind that has none.
std::function<void()> mouseMoveHandler(const ControlRef& ref) {
    return std::visit(
        [](const auto* control) -> std::function<void()> {
            if constexpr (requires { control->onMouseMove; })
                return control->onMouseMove;
            else
                return {};
        },
        ref);
}

std::function<void()> rightClickHandler(const ControlRef& ref) {
    return std::visit(
        [](const auto* control) -> std::function<void()> {
            if constexpr (requires { control->onRightClick; })
                return control->onRightClick;
            else
                return {};
        },
        ref);
}

}  // namespace

void Screen::fit(double roomWidth, double roomHeight) {
    const std::span<const Sheet> possible = sheets();
    if (possible.empty() || roomWidth <= 0 || roomHeight <= 0)
        return;
    const Sheet fitting = sheetFor(possible, roomWidth, roomHeight);
    if (fitting == sheet_)
        return;
    sheet_ = fitting;
    quietly(name + "_Arrange", [&] { arrange(sheet_); });
}

void Screen::load() {
    quietly(name + "_Load", [&] { onLoad(); });
}

void Screen::unload() {
    quietly(name + "_Unload", [&] { onUnload(); });
}

void Screen::keyDown(KeyEvent& event) {
    if (enabled)
        quietly(name + "_KeyDown", [&] { onKeyDown(event); });
}

void Screen::keyUnused(KeyEvent& event) {
    if (enabled)
        quietly(name + "_KeyUnused", [&] { onKeyUnused(event); });
}

void Screen::keyPress(char16_t character) {
    if (enabled)
        quietly(name + "_KeyPress", [&] { onKeyPress(character); });
}

void Screen::closeRequest() {
    if (enabled)
        quietly(name + "_Close", [&] { onCloseRequest(); });
}

void Screen::input(const Control& control, const char* event,
                   const std::function<void()>& handler) {
    if (!enabled || !control.enabled || !handler)
        return;
    // A copy runs: the handler may close the screen or wire the control anew.
    quietly(control.id + event, [copy = handler] { copy(); });
}

void Screen::click(Label& label) {
    input(label, "_Click", label.onClick);
}
void Screen::mouseDown(Label& label) {
    input(label, "_MouseDown", label.onMouseDown);
}
void Screen::mouseUp(Label& label) {
    input(label, "_MouseUp", label.onMouseUp);
}

const ControlRef* Screen::find(const Control& control) const {
    for (const ControlRef& ref : controls_)
        if (&controlOf(ref) == &control)
            return &ref;
    return nullptr;
}

void Screen::mouseMove(Control& control) {
    const ControlRef* ref = find(control);
    if (!ref)
        return;
    if (const std::function<void()> handler = mouseMoveHandler(*ref))
        input(control, "_MouseMove", handler);
    else if (control.parent)
        mouseMove(*control.parent);
}

void Screen::rightClick(Control& control) {
    const ControlRef* ref = find(control);
    if (!ref || std::holds_alternative<TextField*>(*ref) || std::holds_alternative<ListBox*>(*ref))
        return;
    const std::function<void()> handler = rightClickHandler(*ref);
    if (handler && control.enabled)
        input(control, "_RightClick", handler);
    else if (control.parent)
        rightClick(*control.parent);
    else
        rightClickBeside();
}

void Screen::rightClickBeside() {
    if (enabled)
        quietly(name + "_ContextMenu", [&] { onContextMenu(); });
}

void Screen::choose(MenuItem& item) {
    if (enabled && item.enabled && item.onClick)
        quietly(item.id + "_Click", [copy = item.onClick] { copy(); });
}

void Screen::tick(Timer& timer) {
    if (timer.enabled && timer.onTick)
        quietly(timer.id + "_Timer", [copy = timer.onTick] { copy(); });
}

void Screen::edit(TextField& field, Text text, int selectionStart, int selectionLength) {
    if (enabled)
        quietly(field.id + "_Change",
                [&] { field.userEdited(std::move(text), selectionStart, selectionLength); });
}

void Screen::fieldKeyDown(TextField& field, KeyEvent& event) {
    if (!enabled || !field.onKeyDown)
        return;
    const TextField::Step step(field);
    quietly(field.id + "_KeyDown", [&] { field.onKeyDown(event); });
}

char16_t Screen::fieldKeyPress(TextField& field, char16_t character) {
    char16_t result = character;
    if (enabled && field.onKeyPress)
        quietly(field.id + "_KeyPress", [&] { result = field.onKeyPress(character); });
    return result;
}

void Screen::type(TextField& field, char16_t character) {
    if (!enabled)
        return;
    quietly(field.id + "_Change", [&] {
        if (character == kCharBackspace)
            field.eraseBack();
        else if (character >= u' ')
            field.type(character);
    });
}

void Screen::undo(TextField& field) {
    if (enabled)
        quietly(field.id + "_Change", [&] { field.undo(); });
}

void Screen::redo(TextField& field) {
    if (enabled)
        quietly(field.id + "_Change", [&] { field.redo(); });
}

void Screen::focusChanged(TextField& field, bool gained) {
    input(field, gained ? "_GotFocus" : "_LostFocus",
          gained ? field.onGotFocus : field.onLostFocus);
}

void Screen::selectItem(ListBox& list, int index) {
    if (enabled && list.enabled)
        quietly(list.id + "_Click", [&] { list.select(index); });
}

void Screen::doubleClick(ListBox& list) {
    input(list, "_DblClick", list.onDoubleClick);
}

void Screen::dropFiles(const std::vector<std::filesystem::path>& files) {
    if (enabled && takesFiles())
        quietly(name + "_DropFiles", [&] { onFilesDropped(files); });
}

void Screen::labelKeyDown(Label& label, KeyEvent& event) {
    if (enabled && label.enabled && label.onKeyDown)
        quietly(label.id + "_KeyDown", [&] { label.onKeyDown(event); });
}

void Screen::listKeyDown(ListBox& list, KeyEvent& event) {
    if (enabled && list.enabled && list.onKeyDown)
        quietly(list.id + "_KeyDown", [&] { list.onKeyDown(event); });
}

}  // namespace quillor
