// The short list of things that screens ask of the machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

#include "core/disk.h"
#include "core/types.h"
#include "toolkit/controls.h"
#include "toolkit/preferences.h"
#include "toolkit/screen.h"

namespace quillor {

enum class MessageIcon { Information, Critical };

/// The time of day. A restarted or corrected system clock may jump.
struct TimeOfDay {
    int hour = 0;
    int minute = 0;
    int second = 0;

    bool operator==(const TimeOfDay&) const = default;
};

/// Injected by reference into everything that needs it. Calls that show a box
/// return when it has been answered; timers go on meanwhile, so the caller
/// looks at the state again before it acts.
class Desktop {
  public:
    virtual ~Desktop() = default;

    virtual void messageBox(MessageIcon icon, TextView text) = 0;
    /// Yes or No; closing the box is No. Where Yes loses something, Return means No.
    virtual bool question(TextView text, bool yesLoses = false) = 0;
    /// What was typed; empty when the box was cancelled.
    virtual Text inputBox(TextView prompt) = 0;
    virtual void aboutBox(TextView title, TextView text) = 0;

    /// Empty when the clipboard holds no text.
    virtual Text clipboard() = 0;
    virtual void setClipboard(TextView text) = 0;

    /// Whether text in that font would really be drawn in it.
    virtual bool fontPresent(TextView name) = 0;
    /// Null when it is larger than the program can use. Throws
    /// std::runtime_error when it is no picture.
    virtual ImageRef loadPicture(const Place& file) = 0;

    /// Hands a file, or the address of a page with what is sought there behind it
    /// as it was written, to the system's handler. Says nothing when it fails.
    virtual void open(const std::filesystem::path& file) = 0;
    virtual void openAddress(TextView page, TextView sought) = 0;

    /// A carried sound, 101..107, as a whole WAVE image; empty when it cannot be had.
    virtual std::span<const std::byte> sound(int id) = 0;
    /// Plays a WAVE image to its end; returns at once where it cannot be played.
    virtual void playWave(std::span<const std::byte> image) = 0;

    /// As they are now; the player may change them at any time.
    virtual Preferences preferences() const = 0;

    virtual TimeOfDay timeOfDay() = 0;
    /// Uniform in [0, 1), from the one generator.
    virtual double random() = 0;
    /// Seeds the generator from the clock.
    virtual void seedRandom() = 0;
    /// A draw of its own, freshly seeded; in [0, 1).
    double draw() {
        seedRandom();
        return random();
    }

    /// Shows a loaded screen; the screen stays with its owner.
    virtual void show(Screen& screen) = 0;
    /// Hides a screen for good; it is destroyed after the current event.
    virtual void close(Screen& screen) = 0;
    /// Pops up the menu below the given control of the screen; without one, at
    /// the mouse, or at the focused control when it was asked for by key.
    /// Returns after an entry was chosen and has run.
    virtual void popUp(Screen& screen, MenuItem& menu, const Control* under = nullptr) = 0;

    /// Whether the program's window fills the display.
    virtual bool isFullScreen() const = 0;
    virtual void setFullScreen(bool on) = 0;

    /// Starts the program's own executable anew.
    virtual void startProgram() = 0;
    /// Ends the run: control returns to the caller, no further event is delivered.
    virtual void end() = 0;
};

}  // namespace quillor
