// What differs from system to system; each has its own platform_*.cpp.
#pragma once

#include <QString>
#include <QStringList>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <span>

#include "toolkit/preferences.h"

class QWidget;

namespace quillor::platform {

/// Finds out what the person has asked the system for, as far as it tells, and passes it on:
/// at once or as soon as the system has answered, in the application's thread.
void readPreferences(std::function<void(const Preferences&)> told);

/// From now on the memory of a large picture goes back to the system when the picture goes.
/// To be called before any other is asked for.
void giveLargeMemoryBack();

/// The command line without the program's own name.
QStringList arguments(int argc, char** argv);

/// Writes to standard output, or to standard error. A program that Windows starts has
/// neither: the console is asked for that it was started from.
void print(const QString& text, bool isError);

/// Whether somebody reads what is written to standard error: a terminal, or another
/// program. A desktop that started this one does not.
bool isHeard();

/// Whether a key pressed together with Alt alone types a character.
bool altTypesCharacters();

/// Whether the event of a key tells when the key was moved, and not when the program has
/// come to it: after a sound, many at once.
bool tellsWhenKeysMove();

/// The digit, 0 to 9, of a key in the row above the letters, by what the system
/// calls that key; -1 for any other.
int digitOfKey(unsigned scanCode, unsigned virtualKey);

/// Hand a file, or an address that is fully encoded, to the system's handler.
void openFile(const std::filesystem::path& file);
void openEncodedAddress(const QString& address);

/// The user's own folder for this program's data; it may not exist yet.
std::filesystem::path userDataFolder();

/// Shows the system's own about box. False where the system has none.
bool showSystemAbout(QWidget* parent, const QString& title, const QString& text);

/// The sound 101..107 as a whole WAVE image, which stays for the whole run;
/// empty when there is none of that number.
std::span<const std::byte> carriedSound(int id);

}  // namespace quillor::platform
