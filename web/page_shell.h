// All open screens, and the rule by which events run: one at a time, and after each the
// script is told what has become of the screens.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "toolkit/key_route.h"
#include "toolkit/nested_events.h"
#include "toolkit/preferences.h"
#include "toolkit/scheme.h"
#include "toolkit/timer_clock.h"
#include "web/shown_screen.h"

namespace quillor {

class PageShell {
  public:
    KeyRoute keys;
    /// Called when no handler of any screen is running any more.
    std::function<void()> onIdle;
    /// Takes what the script is to do.
    std::function<void(const Messages&)> send;
    /// Milliseconds since whenever, which never run backwards.
    std::function<std::int64_t()> now;
    /// What boxes and menus are coloured by.
    std::function<Color()> accent;
    /// What the page itself says, in the interface's language as it is now.
    struct Language {
        bool english = false;
        Text close;  // the button of a dialog's bar
        bool operator==(const Language&) const = default;
    };
    std::function<Language()> language;

    /// Runs one event's handlers. Events may nest: a timer ticks while a box is open.
    template <typename Body>
    void event(Body&& body) {
        if (ended_)
            return;
        events_.run(std::forward<Body>(body));
        settle();
    }
    /// Something that waits inside a handler: a box or a menu. Events meanwhile count as
    /// outermost ones.
    template <typename Body>
    auto modally(Body&& body) {
        keys.letGo();
        tellNow();
        return events_.modally(std::forward<Body>(body));
    }

    void show(Screen& screen);
    void close(Screen& screen);
    /// Null when there is none, or it is closed.
    ShownScreen* find(int number) const;
    ShownScreen* find(const Screen& screen) const;

    /// The window's inner size, in pixels.
    void setRoom(double width, double height);
    void apply(const Preferences& wanted);
    const Preferences& preferences() const { return preferences_; }

    /// Has the timers tick that are due.
    void tick();
    /// Tells the script what has changed, in the middle of an event.
    void tellNow();
    /// No event is delivered any more.
    void end() { ended_ = true; }

  private:
    void settle();
    void refresh();
    double pixelsOfTwip() const;
    void tellFronts(Messages& messages);
    void tellColorsOnce(Messages& messages);
    void tellLanguageOnce(Messages& messages);
    void setAlarm(Messages& messages);

    std::vector<std::unique_ptr<ShownScreen>> screens_;  // in the order of their opening
    std::vector<std::unique_ptr<ShownScreen>> closed_;   // until no handler is running
    std::vector<int> toldClosed_;                        // numbers that the script must forget
    int numbers_ = 0;
    double width_ = 0;
    double height_ = 0;
    Preferences preferences_;
    Scheme scheme_;
    TimerClock clock_;
    std::optional<std::int64_t> alarm_;
    std::optional<std::pair<Scheme, Color>> colors_;  // as told last
    std::optional<Language> language_;                // the same
    int front_ = 0;
    NestedEvents events_;
    bool telling_ = false;
    bool again_ = false;
    bool ended_ = false;
};

}  // namespace quillor
