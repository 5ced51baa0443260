// One visit of the page: the program, its shell and its machine, and all that happens to them.
#pragma once

#include <filesystem>

#include "app/program.h"
#include "web/page_desktop.h"
#include "web/page_disk.h"
#include "web/page_shell.h"

namespace quillor {

/// What happens in the page; the script has the same names in the same order.
enum class Happening {
    Room,         // a, b: the window's inner size in pixels
    Preferences,  // a: bits, contrast, dark and reduced motion; b: text size in percent
    Tick,
    Press,    // control: key code; a: bits, shift, control, alt and repeat; b: which key;
              // text: its sign, then what it types
    Release,  // b: which key
    Commit,   // text
    LetGo,
    Over,  // the mouse, over a control
    Down,
    Up,
    Click,
    Activate,  // pressed without a mouse or a key of ours
    Right,     // control -1: beside all
    Edit,      // a: where the selection begins; b: its length; text
    Undo,
    Redo,
    Focus,
    Select,  // a: which entry
    Double,
    Close,  // the player wants the screen closed
    Files,  // text: names of files that were brought along, a line each
    Lost,   // storage takes nothing
};

/// The program in one page, from its files to its end.
class Session {
  public:
    /// `english`: what a player who has no files yet is spoken to in.
    explicit Session(bool english);

    /// All files, which are there before the session is.
    static PageDisk& disk();
    PageShell& shell() { return shell_; }

    void start();
    /// Delivers an event. `shown` and `control` are where it happened, null and -1 where that
    /// does not matter. Of a key that was pressed it returns who deals with it now, else 0.
    int happen(Happening what, ShownScreen* shown, int control, int a, int b, TextView text);

  private:
    void prepareFolder(bool english);
    void addTopicsEntry();
    void showTopics(const Screen& screen);
    int happenTo(Happening what, ShownScreen& shown, int control, int a, int b, TextView text);
    void edit(Happening what, ShownScreen& shown, Control* on, int a, int b, TextView text);
    int press(ShownScreen& shown, int code, int bits, int id, TextView text);
    void bring(Screen& screen, TextView names);
    void takePicture(const std::filesystem::path& file);
    void hangUp(const ImageRef& picture);
    void tellOfLoss();

    PageShell shell_;
    PageDesktop desktop_;
    Program program_;
};

}  // namespace quillor
