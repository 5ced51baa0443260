// After each step the screen may be closed, or the key used up.
#include "qt/windows/key_router.h"

#include "core/text_rules.h"
#include "qt/windows/field_view.h"
#include "qt/windows/key_mapping.h"
#include "qt/windows/label_views.h"
#include "qt/windows/list_view.h"
#include "qt/windows/page.h"
#include "qt/windows/qt_values.h"
#include "toolkit/caption.h"

namespace quillor {

namespace {

bool isReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool isTab(const QKeyEvent& event) {
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

}  // namespace

void KeyRouter::press(QKeyEvent& event) {
    link_.keyEvent([&](Screen& screen) { press(event, screen); });
}

// Any handler on the way may close the screen.
void KeyRouter::press(QKeyEvent& event, Screen& screen) {
    KeyEvent key = toKeyEvent(event);
    screen.keyDown(key);
    if (key.handled || !link_.isOpen())
        return;
    ControlView* view = page_.focusedView();
    if (handledByControl(view, event, screen) || !link_.isOpen())
        return;
    if (pressAccessKey(event))
        return;
    if (isTab(event))
        page_.focusNextPrevChild(event.key() == Qt::Key_Tab);
    else if (auto* field = dynamic_cast<FieldView*>(view))
        field->type(event);
    else if (!pressButton(view, event)) {
        if (auto* list = dynamic_cast<ListView*>(view))
            list->press(event);
        if (link_.isOpen())
            typeOnScreen(typedText(event), screen);
    }
}

bool KeyRouter::handledByControl(ControlView* view, QKeyEvent& event, Screen& screen) {
    KeyEvent key = toKeyEvent(event);
    if (auto* field = dynamic_cast<FieldView*>(view))
        screen.fieldKeyDown(field->field(), key);
    else if (auto* list = dynamic_cast<ListView*>(view))
        screen.listKeyDown(list->list(), key);
    return key.handled;
}

bool KeyRouter::pressAccessKey(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (modifiers != Qt::AltModifier || event.isAutoRepeat())
        return false;
    // Shortcuts are typed in the letters of the keyboard; a sign as it stands.
    const bool letter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
    const QString typed = letter ? QString(QChar(event.key())) : event.text();
    if (typed.size() != 1)
        return false;
    for (ControlView* view : page_.views()) {
        auto* label = dynamic_cast<LabelView*>(view);
        if (!label || !label->isPressable())
            continue;
        if (accessKey(label->label()) == upperCase(typed[0].unicode())) {
            label->press();
            return true;
        }
    }
    return false;
}

bool KeyRouter::pressButton(ControlView* view, QKeyEvent& event) {
    auto* button = dynamic_cast<ButtonView*>(view);
    if (!button)
        return false;
    if (event.key() == Qt::Key_Space)
        button->spaceDown(event);
    else if (isReturn(event) && !event.isAutoRepeat())
        button->press();
    else
        return false;
    return true;
}

void KeyRouter::typeOnScreen(const QString& text) {
    link_.event([&](Screen& screen) { typeOnScreen(text, screen); });
}

void KeyRouter::typeOnScreen(const QString& text, Screen& screen) {
    for (const QChar c : text)
        if (link_.isOpen())
            screen.keyPress(c.unicode());
}

}  // namespace quillor
