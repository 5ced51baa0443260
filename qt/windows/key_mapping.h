// Keys of the keyboard as virtual key codes, and what counts as a character.
#pragma once

#include <QKeyEvent>

#include "toolkit/keys.h"

namespace quillor {

/// 0 for a key that has no code on every keyboard.
int virtualKeyCode(const QKeyEvent& event);

KeyEvent toKeyEvent(const QKeyEvent& event);

/// The characters that the key types: printable text, Return or Backspace.
/// Empty for shortcuts and function keys.
QString typedText(const QKeyEvent& event);

}  // namespace quillor
