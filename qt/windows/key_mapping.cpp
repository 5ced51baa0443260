// A table for keys with names; letters, digits and F keys are counted.
#include "qt/windows/key_mapping.h"

#include <algorithm>
#include <utility>

#include "qt/system/platform.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

// By numbers those that no screen asks for.
constexpr std::pair<int, int> kNamedKeys[] = {
    {Qt::Key_Backspace, key::kBackspace},
    {Qt::Key_Tab, key::kTab},
    {Qt::Key_Backtab, key::kTab},
    {Qt::Key_Return, key::kReturn},
    {Qt::Key_Enter, key::kReturn},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_Escape, key::kEscape},
    {Qt::Key_Space, key::kSpace},
    {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34},
    {Qt::Key_End, key::kEnd},
    {Qt::Key_Home, key::kHome},
    {Qt::Key_Left, key::kLeft},
    {Qt::Key_Up, key::kUp},
    {Qt::Key_Right, key::kRight},
    {Qt::Key_Down, key::kDown},
    {Qt::Key_Insert, 45},
    {Qt::Key_Delete, key::kDelete},
    {Qt::Key_Menu, key::kContextMenu},
};

bool isPrintable(const QString& text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(),
                                          [](QChar c) { return c.isPrint() || c.isSurrogate(); });
}

}  // namespace

int virtualKeyCode(const QKeyEvent& event) {
    const int key = event.key();
    if (key >= Qt::Key_0 && key <= Qt::Key_9) {
        const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
        return (keypad ? key::kKeypad0 : '0') + key - Qt::Key_0;
    }
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        return 'A' + key - Qt::Key_A;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return key::kF1 + key - Qt::Key_F1;
    for (const auto& [qtKey, code] : kNamedKeys)
        if (key == qtKey)
            return code;
    // With Shift, or without it on some keyboards, the digits' keys type signs.
    const int digit = platform::digitOfKey(event.nativeScanCode(), event.nativeVirtualKey());
    return digit < 0 ? 0 : '0' + digit;
}

int keyId(const QKeyEvent& event) {
    const quint32 key = event.nativeScanCode();
    return key ? static_cast<int>(key) : event.key();
}

void RepeatFinder::release(const QKeyEvent& event) {
    id_ = keyId(event);
    time_ = event.timestamp();
}

bool RepeatFinder::isRepeat(const QKeyEvent& press) const {
    constexpr quint64 kSameMoment = 3;  // ms; no finger is as quick
    return press.isAutoRepeat() ||
           (platform::tellsWhenKeysMove() && time_ > 0 && keyId(press) == id_ &&
            press.timestamp() >= time_ && press.timestamp() - time_ <= kSameMoment);
}

KeyPress toKeyPress(const QKeyEvent& event) {
    KeyPress press;
    press.key.code = virtualKeyCode(event);
    press.key.shift = event.modifiers().testFlag(Qt::ShiftModifier) ||
                      event.key() == Qt::Key_Backtab;  // which is Tab with Shift
    press.key.control = event.modifiers().testFlag(Qt::ControlModifier);
    press.key.alt = event.modifiers().testFlag(Qt::AltModifier);
    press.typed = fromQt(typedText(event));
    press.sign = event.text().size() == 1 ? event.text().front().unicode() : u'\0';
    press.id = keyId(event);
    return press;
}

QString typedText(const QKeyEvent& event) {
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = event.modifiers().testFlag(Qt::AltModifier);
    // Both together are the right-hand Alt key of many keyboards.
    const bool shortcut = control != alt && !(alt && platform::altTypesCharacters());
    if (shortcut)
        return {};
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return QString(QChar(kCharReturn));
    if (event.key() == Qt::Key_Backspace)
        return QString(QChar(kCharBackspace));
    return isPrintable(event.text()) ? event.text() : QString();
}

}  // namespace quillor
