// The program: owns the one record, opens and closes screens; and what several of
// them do with the machine.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "app/view_entry.h"
#include "core/disk.h"
#include "core/game_settings.h"
#include "core/progress.h"
#include "core/texts.h"
#include "toolkit/desktop.h"
#include "toolkit/screen.h"

namespace quillor {

enum class ScreenId { Start, Menu, Game, Settings, Word1, Word2, Inventor, OpenTopic, Progress };

class Program {
  public:
    /// Everything that the program keeps is in the program folder.
    Program(Desktop& desktop, Place programFolder);
    ~Program();

    using Factory = std::function<std::unique_ptr<Screen>(Program&)>;
    /// Says how a screen is made. The start screen and the menu are known.
    void addScreen(ScreenId id, Factory factory);

    /// The entries of the menu "View" of every screen, in their order. To be added to
    /// before the first screen is made.
    std::vector<ViewEntry> viewEntries = commonViewEntries();

    /// Takes topic files in; returns whether the player wants the game restarted for them.
    std::function<bool(const std::vector<std::filesystem::path>&)> takeTopics;
    /// Topic files that the program was started with: the menu takes them in.
    std::vector<std::filesystem::path> topicsToTake;

    /// What could not be saved, each once and the oldest first. The game's tip line tells
    /// it and takes it away; no operation that saves says anything itself.
    std::vector<const TextPair*> unsaved;
    /// Notes what `saved` says: whether that was saved.
    void note(bool saved, const TextPair& what);

    GameSettings settings;
    Desktop& desktop;
    const Place folder;

    /// The text of a pair in the interface's language.
    Text lang(const TextPair& pair) const { return eLang(settings, pair); }

    /// Makes and loads a screen without showing it; one that is loaded already
    /// is returned as it is. Throws std::out_of_range when no one said how it is
    /// made; so does `show`.
    Screen& load(ScreenId id);
    Screen& show(ScreenId id);
    /// Shows a screen over another one, on whose paper it stands and which takes
    /// no input until it has closed. `accepted` runs when it is accepted.
    Screen& showOver(ScreenId id, Screen& below, const ImageRef& paper,
                     std::function<void()> accepted);
    /// A screen that stands over another one has done its work: runs what was
    /// wished for then, and closes it.
    void accept(Screen& screen);
    /// The loaded screen, or null.
    Screen* find(ScreenId id) const;
    /// Unloads and hides a screen; it is destroyed by `destroyClosed`. One that
    /// is not loaded is left alone.
    void close(Screen& screen);
    /// Ends the run at once. No screen is unloaded: nothing is saved at the end but what
    /// has been played.
    void end();

    /// Remembers what has been played, until it is kept among the player's results. That
    /// waits for the disk, so it is not done while an ending is on show.
    void notePlayed(Played played) { played_.push_back(std::move(played)); }
    void keepPlayed();

    /// Destroys the screens that have been closed. For the shell, once no
    /// handler of theirs is running any more.
    void destroyClosed() { closed_.clear(); }

  private:
    struct Opened {
        std::unique_ptr<Screen> screen;
        Screen* below = nullptr;         // takes no input meanwhile
        std::function<void()> accepted;  // empty where it stands over none
    };
    std::map<ScreenId, Opened>::iterator entryOf(const Screen& screen);

    std::map<ScreenId, Factory> factories_;
    std::map<ScreenId, Opened> screens_;
    std::vector<std::unique_ptr<Screen>> closed_;
    std::vector<Played> played_;  // not kept yet
};

/// The web search: what is sought stands behind it.
inline constexpr TextView kSearchEngine = u"http://www.bing.com/search?q=";

/// The clipboard's text in place of every occurrence of the selected text, or
/// at the caret when nothing is selected; the new text is in `gsTextResult`.
/// Returns the new caret position.
int ePasteText(Program& program, TextView text, TextView selected, int caret);

/// Hands the manual to the system's handler; where it is missing a box says so.
void openManual(Program& program);

void eCopyToClipboard(Program& program, TextView text);

/// Shows the start screen anew, so that its whole loading sequence runs again,
/// and closes the calling screen.
void eRestartGame(Program& program, Screen& caller);

}  // namespace quillor
