// Starts the program in a page, and hands it what happens there.
#include <memory>
#include <string>

#include <emscripten.h>

#include "app/program.h"
#include "app/program_screen.h"
#include "core/files.h"
#include "core/guard.h"
#include "core/settings_file.h"
#include "core/text_codec.h"
#include "core/topic_library.h"
#include "game/game_screen.h"
#include "topics/topics.h"
#include "ui/progress_screen.h"
#include "ui/settings_screen.h"
#include "web/bridge.h"
#include "web/page_desktop.h"
#include "web/page_disk.h"
#include "web/page_shell.h"

namespace quillor {

namespace {

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

class Session {
  public:
    explicit Session(bool english)
        : desktop_(shell_), program_(desktop_, {PageDisk::kFolder, disk()}) {
        shell_.send = bridge::show;
        shell_.now = bridge::milliseconds;
        shell_.accent = [this] { return program_.settings.glTheme; };
        shell_.language = [this] {
            return PageShell::Language{program_.settings.gbEnglish,
                                       program_.lang(texts::kSpokenClose)};
        };
        desktop_.attach(program_);
        prepareFolder(english);
        addSettingsScreen(program_);
        addProgressScreen(program_);
        addTopicScreens(program_);
        addGameScreens(program_);
        addTopicsEntry();
    }

    static PageDisk& disk() {
        static PageDisk disk;
        return disk;
    }
    PageShell& shell() { return shell_; }

    void start() {
        shell_.event([this] { program_.show(ScreenId::Start); });
    }

    int happen(Happening what, ShownScreen* shown, int control, int a, int b, TextView text);

  private:
    void prepareFolder(bool english) {
        disk().keep = bridge::keepFile;
        disk().drop = bridge::dropFile;
        if (disk().list(PageDisk::kFolder).empty() && english)
            quietly("choose the language", [this] { chooseLanguage(program_.folder, true); });
        layOutTopics({std::string(PageDisk::kBrought) + "/packs", disk()}, program_.folder);
        disk().put(std::string(PageDisk::kFolder) + "/Quillor-Manual.txt", {});
    }

    // The way in and out for topics, before the keys in the menu of every screen.
    void addTopicsEntry() {
        auto& entries = program_.viewEntries;
        entries.insert(entries.begin() + 1, {"mTopics",
                                             texts::kViewTopics,
                                             {},
                                             {},
                                             [this](ProgramScreen& screen) { showTopics(screen); },
                                             {},
                                             {}});
    }

    void showTopics(Screen& screen) {
        std::vector<std::pair<Text, std::string>> files;
        const Place folder = topicFolder(program_.settings, program_.folder);
        for (const Place& file : topicFiles(folder))
            files.emplace_back(fromPath(file.path().filename()), std::string());
        desktop_.topicsBox(screen, files);
    }

    int happenTo(Happening what, ShownScreen& shown, int control, int a, int b, TextView text);
    void edit(Happening what, ShownScreen& shown, Control* on, int a, int b, TextView text);
    int press(ShownScreen& shown, int code, int bits, int id, TextView text);
    void bring(Screen& screen, TextView names);
    void tellOfLoss() {
        shell_.event([this] {
            desktop_.messageBox(MessageIcon::Critical, program_.lang(texts::kNothingIsKept));
        });
    }

    PageShell shell_;
    PageDesktop desktop_;
    Program program_;
};

// The bits of what is told back: who deals with the key now, and whether it was a command.
int Session::press(ShownScreen& shown, int code, int bits, int id, TextView text) {
    constexpr int kTaken = 4;
    KeyPress press;
    press.key = {code, (bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, false};
    press.autoRepeat = (bits & 8) != 0;
    press.id = id;
    press.sign = text.empty() || text.front() == u' ' ? u'\0' : text.front();
    press.typed = text.substr(std::min<std::size_t>(1, text.size()));
    int answer = kTaken;
    shell_.event([&] {
        const KeyRoute::Rest rest = shell_.keys.press(shown.screen(), shown.focus(), press);
        answer = static_cast<int>(rest) + (shell_.keys.wasTaken() ? kTaken : 0);
    });
    return answer;
}

void Session::bring(Screen& screen, TextView names) {
    std::vector<std::filesystem::path> files;
    while (!names.empty()) {
        const std::size_t end = std::min(names.find(u'\n'), names.size());
        files.push_back(std::filesystem::path(PageDisk::kBrought) / toPath(names.substr(0, end)));
        names.remove_prefix(std::min(end + 1, names.size()));
    }
    shell_.event([&] { screen.dropFiles(files); });
}

int Session::happen(Happening what, ShownScreen* shown, int control, int a, int b, TextView text) {
    switch (what) {
        case Happening::Room:
            shell_.setRoom(a, b);
            return 0;
        case Happening::Preferences:
            shell_.apply({(a & 1) != 0, (a & 2) != 0, (a & 4) != 0, b / 100.0});
            return 0;
        case Happening::Tick:
            shell_.tick();
            return 0;
        case Happening::Release:
            shell_.event([&] { shell_.keys.release(b); });
            return 0;
        case Happening::LetGo:
            shell_.event([&] { shell_.keys.letGo(); });
            return 0;
        case Happening::Lost:
            tellOfLoss();
            return 0;
        default:
            break;
    }
    return shown ? happenTo(what, *shown, control, a, b, text) : 0;
}

int Session::happenTo(Happening what, ShownScreen& shown, int control, int a, int b,
                      TextView text) {
    Screen& screen = shown.screen();
    const ControlRef* ref = shown.at(control);
    Control* on = ref ? &controlOf(*ref) : nullptr;
    Label* label = screen.as<Label>(on);
    const auto event = [&](bool fits, auto&& body) {
        if (fits)
            shell_.event(body);
    };
    switch (what) {
        case Happening::Press:
            return press(shown, control, a, b, text);
        case Happening::Commit:
            event(true, [&] { shell_.keys.commit(screen, shown.focus(), text); });
            break;
        case Happening::Over:
            event(on, [&] { screen.mouseMove(*on); });
            break;
        case Happening::Down:
            event(label, [&] { screen.mouseDown(*label); });
            break;
        case Happening::Up:
            event(label, [&] { screen.mouseUp(*label); });
            break;
        case Happening::Click:
            event(label, [&] { screen.click(*label); });
            break;
        case Happening::Activate:
            event(label, [&] {
                screen.mouseDown(*label);
                screen.mouseUp(*label);
                screen.click(*label);
            });
            break;
        case Happening::Right:
            event(true, [&] { on ? screen.rightClick(*on) : screen.rightClickBeside(); });
            break;
        case Happening::Close:
            event(true, [&] { screen.closeRequest(); });
            break;
        case Happening::Files:
            bring(screen, text);
            break;
        default:
            edit(what, shown, on, a, b, text);
    }
    return 0;
}

// What is typed into fields and chosen in lists.
void Session::edit(Happening what, ShownScreen& shown, Control* on, int a, int b, TextView text) {
    Screen& screen = shown.screen();
    TextField* field = screen.as<TextField>(on);
    ListBox* list = screen.as<ListBox>(on);
    const auto event = [&](bool fits, auto&& body) {
        if (fits)
            shell_.event(body);
    };
    switch (what) {
        case Happening::Edit:
            event(field, [&] { screen.edit(*field, Text(text), a, b); });
            break;
        case Happening::Undo:
            event(field, [&] { screen.undo(*field); });
            break;
        case Happening::Redo:
            event(field, [&] { screen.redo(*field); });
            break;
        case Happening::Focus:
            event(on, [&] { shown.focus().take(*on); });
            break;
        case Happening::Select:
            event(list && a >= 0 && a < static_cast<int>(list->items.size()),
                  [&] { screen.selectItem(*list, a); });
            break;
        case Happening::Double:
            event(list, [&] { screen.doubleClick(*list); });
            break;
        default:
            break;
    }
}

std::unique_ptr<Session>& session() {
    static std::unique_ptr<Session> session;
    return session;
}

}  // namespace

}  // namespace quillor

using quillor::PageDisk;

extern "C" {

/// A file that storage holds, or that the page brings along, by its whole path.
EMSCRIPTEN_KEEPALIVE void page_put(const char* path, const char* bytes, int length) {
    quillor::Session::disk().put(path, std::string(bytes, static_cast<std::size_t>(length)));
}

EMSCRIPTEN_KEEPALIVE void page_forget(const char* path) {
    quillor::Session::disk().forget(path);
}

EMSCRIPTEN_KEEPALIVE void page_prepare(int english) {
    quillor::session() = std::make_unique<quillor::Session>(english != 0);
}

EMSCRIPTEN_KEEPALIVE void page_start() {
    quillor::session()->start();
}

EMSCRIPTEN_KEEPALIVE int page_event(int what, int screen, int control, int a, int b,
                                    const char16_t* text) {
    quillor::Session& session = *quillor::session();
    return session.happen(static_cast<quillor::Happening>(what), session.shell().find(screen),
                          control, a, b, text ? quillor::TextView(text) : quillor::TextView());
}
}
