// What a screen reader is told of a menu's entries.
#pragma once

namespace quillor {

/// From now on entries of menus are announced as what they are: plain, checked,
/// one of several, or the way to a further menu. Calling it again does nothing.
void installEntryAccessibility();

}  // namespace quillor
