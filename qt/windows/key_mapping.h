// Keys of the keyboard as virtual key codes, and what counts as a character.
#pragma once

#include <QKeyEvent>

#include "toolkit/key_route.h"

namespace quillor {

/// The code of the key and not of its shifted sign; 0 for a key that has no
/// code on every keyboard.
int virtualKeyCode(const QKeyEvent& event);

/// All but `autoRepeat`, which a RepeatFinder knows.
KeyPress toKeyPress(const QKeyEvent& event);
/// Which key of the keyboard it is, whatever it types.
int keyId(const QKeyEvent& event);

/// Finds the presses of a key that is held where the toolkit has not: X11 tells of them
/// as of a release and a press at the same moment, which may come one by one.
class RepeatFinder {
  public:
    /// Remembers which key was let go, and when.
    void release(const QKeyEvent& event);
    /// Whether this press is one of a key that is held.
    bool isRepeat(const QKeyEvent& press) const;

  private:
    int id_ = 0;        // of the key that was let go last
    quint64 time_ = 0;  // when, in ms; 0: not told
};

/// The characters that the key types: printable text, Return or Backspace.
/// Empty for shortcuts and function keys.
QString typedText(const QKeyEvent& event);

}  // namespace quillor
