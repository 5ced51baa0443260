// The machine as a test sees it: time, dice and the answers to every box are
// the test's own, and what the program asked for is kept to look at.
#pragma once

#include <array>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/random.h"
#include "toolkit/desktop.h"
#include "toolkit/focus.h"
#include "toolkit/key_route.h"
#include "toolkit/nested_events.h"
#include "toolkit/timer_clock.h"

namespace quillor::testing {

/// What `loadPicture` gives: it remembers its file.
struct FakeImage : Image {
    explicit FakeImage(std::filesystem::path path) : file(std::move(path)) {}
    std::filesystem::path file;
};

/// A box that no one scripted fails the test; so does, at the end, an answer
/// that no box has asked for.
class FakeDesktop : public Desktop {
  public:
    using Callback = std::function<void()>;

    FakeDesktop();
    ~FakeDesktop() override;

    // The boxes to come, in their order. `whileOpen` runs before the box is
    // answered, for instance to let time pass.
    void expectMessage(TextView text, Callback whileOpen = {});
    void expectCritical(TextView text, Callback whileOpen = {});
    void answerQuestion(TextView text, bool yes, Callback whileOpen = {});
    void answerInput(TextView prompt, TextView typed, Callback whileOpen = {});
    void expectAbout(TextView title, TextView text);
    /// The entry, by its id, to choose from the next menu that pops up.
    void chooseFromPopUp(std::string itemId) { menuChoice_ = std::move(itemId); }

    bool boxOpen() const { return boxesOpen_ > 0; }
    std::size_t answersLeft() const { return boxes_.size(); }

    /// Lets time pass: fires the timers of the open screens when they are due. A
    /// timer whose tick has opened a box is not fired again while the box is open.
    void advance(int milliseconds);
    /// Sets the time of day, which then goes on with the virtual time.
    void setTimeOfDay(TimeOfDay time);

    /// Delivers one event to a screen; afterwards closed screens are destroyed,
    /// focus wishes are granted and timers looked at. Nothing happens any more
    /// once the run has ended.
    void deliver(const Callback& event);
    /// Called when no event is running any more.
    Callback onIdle;

    /// The last shown screen that is still open; null when there is none.
    Screen* front() const { return openScreens_.empty() ? nullptr : openScreens_.back(); }
    bool isOpen(const Screen& screen) const { return focus_.contains(&screen); }
    /// The control that has the focus in an open screen; null: none.
    Control* focusOf(const Screen& screen) const;
    /// Of an open screen. Throws std::out_of_range for any other.
    Focus& focus(const Screen& screen) { return focus_.at(&screen); }
    void moveFocus(const Screen& screen, Control* control) { focus(screen).take(*control); }
    KeyRoute keys;

    // What the machine is like.
    bool fontInstalled = true;
    bool soundsCarried = true;
    bool picturesFit = true;   // false: every picture is larger than it can use
    std::deque<double> draws;  // served first; then the seeded generator
    Text clipboardText;
    bool fullScreen = false;
    Preferences asked;           // of the system, by the player
    bool noPreselected = false;  // in the last question

    // What has been asked of it.
    std::vector<std::filesystem::path> openedFiles;
    std::vector<Text> openedAddresses;
    std::vector<int> playedSounds;        // ids
    std::vector<std::string> shown;       // screens' names
    std::vector<std::string> closed;      // the same
    std::vector<std::string> popUps;      // menus' ids
    const Control* popUpUnder = nullptr;  // what the last of them opened below
    int programStarts = 0;
    int seedings = 0;
    bool ended = false;

    // Desktop
    void messageBox(MessageIcon icon, TextView text) override;
    bool question(TextView text, bool yesLoses = false) override;
    Text inputBox(TextView prompt) override;
    void aboutBox(TextView title, TextView text) override;
    Text clipboard() override { return clipboardText; }
    void setClipboard(TextView text) override { clipboardText = text; }
    bool fontPresent(TextView) override { return fontInstalled; }
    ImageRef loadPicture(const Place& file) override;
    void open(const std::filesystem::path& file) override { openedFiles.push_back(file); }
    void openAddress(TextView page, TextView sought) override {
        openedAddresses.push_back(Text(page).append(sought));
    }
    std::span<const std::byte> sound(int id) override;
    void playWave(std::span<const std::byte> image) override;
    Preferences preferences() const override { return asked; }
    TimeOfDay timeOfDay() override;
    double random() override;
    void seedRandom() override;
    void show(Screen& screen) override;
    void close(Screen& screen) override;
    void popUp(Screen& screen, MenuItem& menu, const Control* under) override;
    bool isFullScreen() const override { return fullScreen; }
    void setFullScreen(bool on) override { fullScreen = on; }
    void startProgram() override { ++programStarts; }
    void end() override { ended = true; }

  private:
    struct Box {
        std::string kind;
        Text text;
        Text reply;
        Callback whileOpen;
    };
    Text answer(const std::string& kind, TextView text);
    void settle();

    std::deque<Box> boxes_;
    int boxesOpen_ = 0;
    std::string menuChoice_;
    TimerClock clock_;
    std::int64_t now_ = 0;       // ms since the test began
    std::int64_t dayStart_ = 0;  // what the time of day was at that moment, in ms
    Random random_{1};
    NestedEvents events_;
    std::vector<Screen*> openScreens_;
    std::map<const Screen*, Focus> focus_;
    std::array<std::byte, 7> sounds_;
};

}  // namespace quillor::testing
