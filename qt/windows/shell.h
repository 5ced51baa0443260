// All open windows, and the rule by which events run: one at a time, and after
// each the windows show what has become of their screens.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "qt/paint/font_book.h"
#include "qt/paint/paper.h"
#include "qt/windows/key_mapping.h"
#include "qt/windows/motions.h"
#include "qt/windows/window_memory.h"
#include "toolkit/contrast.h"
#include "toolkit/focus.h"
#include "toolkit/key_route.h"
#include "toolkit/nested_events.h"
#include "toolkit/preferences.h"
#include "toolkit/scheme.h"

namespace quillor {

class Page;
class PageWindow;

class Shell {
  public:
    explicit Shell(FontBook& fontBook);
    ~Shell();
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    FontBook& fonts;
    PaperCache papers;
    Preferences preferences;  // as last applied
    Scheme scheme;            // the same, for colours
    /// The player wants other things of the system now: all windows follow.
    void apply(const Preferences& wanted);
    /// Where the window is kept between runs; none: it opens anew each time.
    std::optional<WindowMemory> memory;
    KeyRoute keys;
    RepeatFinder repeats;
    /// Called when no handler of any screen is running any more.
    std::function<void()> onIdle;

    /// What an event comes from. Most ticks change nothing, and what only a player can have
    /// changed, such as a widget's own text, need not be looked at after one. Other
    /// preferences change everything.
    enum class Cause { Player, Clock, Preferences };

    /// Runs one event's handlers. Events may nest: a timer ticks while a box
    /// is open. After `end` it does nothing.
    template <typename Body>
    void event(Body&& body, Cause cause = Cause::Player) {
        if (ended_)
            return;
        events_.run(std::forward<Body>(body));
        settle(cause);
    }

    /// The same for the press of a key.
    template <typename Body>
    void keyEvent(Body&& body) {
        const bool outer = std::exchange(byKey_, true);
        event(std::forward<Body>(body));
        byKey_ = outer;
    }
    bool isKeyEvent() const { return byKey_; }

    /// Whether a button shows that it has the focus: once Tab has been used,
    /// until the mouse is.
    bool showsFocus = false;

    /// Pages and windows appear, and disappear, at the end of the event.
    void show(Screen& screen);
    void close(Screen& screen);
    /// Null when the screen is not open.
    Page* find(const Screen* screen) const;
    bool isOpen(const Screen& screen) const { return find(&screen) != nullptr; }

    /// The page that takes the player's input, whose window a box stands over;
    /// null: none is open.
    Page* front() const;

    /// Puts the window that takes the player's input in front of all others, as far as
    /// the desktop lets it: some want a token for it.
    void comeToFront(const std::string& token);

    /// What moves now. While a sound is played no event is delivered: then `paintMotions` takes
    /// it a step further and paints it at once.
    Motions motions;
    void paintMotions();

    /// Brings all pages in step with their screens, and onto the display.
    void showNow();

    /// Something that runs an event loop of its own inside a handler: a box or
    /// a menu. Events inside it count as outermost ones.
    template <typename Body>
    auto modally(Body&& body) {
        keys.letGo();
        showNow();
        return events_.modally(std::forward<Body>(body));
    }
    bool isModal() const { return events_.isModal(); }

    /// Of the window that the large screens share; there is none before the first of them.
    bool isFullScreen() const;
    void setFullScreen(bool on);

    /// No event is delivered any more; every event loop ends.
    void end();
    bool hasEnded() const { return ended_; }

  private:
    PageWindow& windowFor(const Screen& screen);
    void settle(Cause cause);
    void refresh(Cause cause);
    void turnPages();
    void deleteClosed();

    std::vector<Page*> pages_;            // in the order of their opening
    std::vector<Page*> closed_;           // until no handler is running
    std::vector<PageWindow*> dialogs_;    // until they have no page
    std::unique_ptr<PageWindow> window_;  // of all screens that stand over no other
    NestedEvents events_;
    bool byKey_ = false;
    bool syncing_ = false;
    bool again_ = false;
    bool preferencesDiffer_ = false;  // from those that the pages show
    bool ended_ = false;
};

/// How a control's widget reaches its screen, for as long as there is one.
class ScreenLink {
  public:
    ScreenLink(Shell& shell, Screen& screen)
        : shell_(shell), screen_(&screen), focus_(screen), grounds_(screen) {}

    Shell& shell() const { return shell_; }
    /// Not to be asked for anything but its control once the screen is closed.
    Focus& focus() { return focus_; }

    /// Runs `body(screen)` as one event; does nothing once the screen is closed.
    template <typename Body>
    void event(Body&& body) {
        if (screen_)
            shell_.event([&] { std::forward<Body>(body)(*screen_); });
    }

    /// The same for the tick of a timer.
    template <typename Body>
    void tickEvent(Body&& body) {
        if (screen_)
            shell_.event([&] { std::forward<Body>(body)(*screen_); }, Shell::Cause::Clock);
    }

    template <typename Body>
    void keyEvent(Body&& body) {
        if (screen_)
            shell_.keyEvent([&] { std::forward<Body>(body)(*screen_); });
    }

    /// Null once it is closed.
    const Screen* screen() const { return screen_; }
    bool isOpen() const { return screen_ != nullptr; }
    void cut() { screen_ = nullptr; }

    /// As of the latest `lookBehind`, for those who show what has changed since then.
    const Grounds& grounds() const { return grounds_; }
    void lookBehind() { grounds_ = Grounds(*screen_); }

  private:
    Shell& shell_;
    Screen* screen_;
    Focus focus_;
    Grounds grounds_;
};

/// Tells the toolkit about our own roles; once is enough, more do no harm.
void installAccessibility();

}  // namespace quillor
