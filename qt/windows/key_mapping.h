// Keys of the keyboard as virtual key codes, and what counts as a character.
#pragma once

#include <QKeyEvent>

#include "toolkit/key_route.h"

namespace quillor {

/// The code of the key and not of its shifted sign; 0 for a key that has no
/// code on every keyboard.
int virtualKeyCode(const QKeyEvent& event);

KeyPress toKeyPress(const QKeyEvent& event);
/// Which key of the keyboard it is, whatever it types.
int keyId(const QKeyEvent& event);

/// The characters that the key types: printable text, Return or Backspace.
/// Empty for shortcuts and function keys.
QString typedText(const QKeyEvent& event);

}  // namespace quillor
