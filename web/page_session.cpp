// What the page is told of becomes an event of a screen.
#include "web/page_session.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "app/menu_screen.h"
#include "app/program_screen.h"
#include "core/files.h"
#include "core/guard.h"
#include "core/settings_file.h"
#include "core/topic_library.h"
#include "game/game_screen.h"
#include "topics/topics.h"
#include "ui/progress_screen.h"
#include "ui/settings_screen.h"
#include "web/bridge.h"

namespace quillor {

namespace {

constexpr const char* kPicture = "Pic.jpg";  // the background of the player's choice

}  // namespace

Session::Session(bool english) : desktop_(shell_), program_(desktop_, {PageDisk::kFolder, disk()}) {
    shell_.send = bridge::show;
    shell_.now = bridge::milliseconds;
    shell_.accent = [this] { return program_.settings.glTheme; };
    shell_.language = [this] {
        return PageShell::Language{program_.settings.gbEnglish, program_.lang(texts::kSpokenClose)};
    };
    desktop_.attach(program_);
    prepareFolder(english);
    addSettingsScreen(program_);
    addProgressScreen(program_);
    addTopicScreens(program_);
    addGameScreens(program_);
    addTopicsEntry();
}

PageDisk& Session::disk() {
    static PageDisk disk;
    return disk;
}

void Session::prepareFolder(bool english) {
    disk().keep = bridge::keepFile;
    disk().drop = bridge::dropFile;
    if (disk().list(PageDisk::kFolder).empty() && english)
        quietly("choose the language", [this] { chooseLanguage(program_.folder, true); });
    layOutTopics({std::string(PageDisk::kBrought) + "/packs", disk()}, program_.folder);
    disk().put(std::string(PageDisk::kFolder) + "/Quillor-Manual.txt", {});
}

// The way in and out for topics, before the keys in the menu of every screen.
void Session::addTopicsEntry() {
    auto& entries = program_.viewEntries;
    entries.insert(entries.begin() + 1, {"mTopics",
                                         texts::kViewTopics,
                                         {},
                                         {},
                                         [this](ProgramScreen& screen) { showTopics(screen); },
                                         {},
                                         {}});
}

void Session::showTopics(const Screen& screen) {
    const Place picture = program_.folder / kPicture;
    if (!desktop_.topicsBox(screen, eFileExists(picture)))
        return;
    quietly("remove the picture", [&] { disk().remove(picture.path()); });
    hangUp(nullptr);
}

// Behind the menu at once; behind the start screen from the next start on.
void Session::hangUp(const ImageRef& picture) {
    if (auto* menu = dynamic_cast<frmMenu*>(program_.find(ScreenId::Menu)))
        menu->takePaper(picture);
}

void Session::tellOfLoss() {
    shell_.event([this] {
        desktop_.messageBox(MessageIcon::Critical, program_.lang(texts::kNothingIsKept));
    });
}

void Session::start() {
    shell_.event([this] { program_.show(ScreenId::Start); });
}

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
    std::optional<std::filesystem::path> picture;
    while (!names.empty()) {
        const std::size_t end = std::min(names.find(u'\n'), names.size());
        const auto file = std::filesystem::path(PageDisk::kBrought) / toPath(names.substr(0, end));
        if (file.filename() == kPicture)
            picture = file;
        else
            files.push_back(file);
        names.remove_prefix(std::min(end + 1, names.size()));
    }
    shell_.event([&] {
        if (picture)
            takePicture(*picture);
        if (!files.empty())
            screen.dropFiles(files);
    });
}

// What cannot be shown is not kept: it would be tried anew at every start.
void Session::takePicture(const std::filesystem::path& file) {
    constexpr std::size_t kMost = 64 * 1024 * 1024;
    ImageRef picture;
    quietly("take in a picture", [&] {
        const Place brought{file, disk()};
        picture = desktop_.loadPicture(brought);
        writeFile(program_.folder / kPicture, readFile(brought, kMost).value());
    });
    if (picture)
        hangUp(picture);
    else
        desktop_.messageBox(MessageIcon::Information, program_.lang(texts::kNoPicture));
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
    auto* label = screen.as<Label>(on);
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
            event(on != nullptr, [&] { screen.mouseMove(*on); });
            break;
        case Happening::Down:
            event(label != nullptr, [&] { screen.mouseDown(*label); });
            break;
        case Happening::Up:
            event(label != nullptr, [&] { screen.mouseUp(*label); });
            break;
        case Happening::Click:
            event(label != nullptr, [&] { screen.click(*label); });
            break;
        case Happening::Activate:
            event(label != nullptr, [&] {
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
    auto* field = screen.as<TextField>(on);
    auto* list = screen.as<ListBox>(on);
    const auto event = [&](bool fits, auto&& body) {
        if (fits)
            shell_.event(body);
    };
    switch (what) {
        case Happening::Edit:
            event(field != nullptr, [&] { screen.edit(*field, Text(text), a, b); });
            break;
        case Happening::Undo:
            event(field != nullptr, [&] { screen.undo(*field); });
            break;
        case Happening::Redo:
            event(field != nullptr, [&] { screen.redo(*field); });
            break;
        case Happening::Focus:
            event(on != nullptr, [&] { shown.focus().take(*on); });
            break;
        case Happening::Select:
            event(list != nullptr && a >= 0 && a < static_cast<int>(list->items.size()),
                  [&] { screen.selectItem(*list, a); });
            break;
        case Happening::Double:
            event(list != nullptr, [&] { screen.doubleClick(*list); });
            break;
        default:
            break;
    }
}

}  // namespace quillor
