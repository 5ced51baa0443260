// The life of screens: made by their factories, kept by id, set aside when closed.
#include "app/program.h"

#include <algorithm>
#include <utility>

#include "app/menu_screen.h"
#include "app/start_screen.h"
#include "core/files.h"
#include "core/text_rules.h"

namespace quillor {

Program::Program(Desktop& desktopToUse, Place programFolder)
    : desktop(desktopToUse), folder(std::move(programFolder)) {
    addScreen(ScreenId::Start,
              [](Program& program) { return std::make_unique<frmStart>(program); });
    addScreen(ScreenId::Menu, [](Program& program) { return std::make_unique<frmMenu>(program); });
}

Program::~Program() = default;

void Program::addScreen(ScreenId id, Factory factory) {
    factories_[id] = std::move(factory);
}

Screen& Program::load(ScreenId id) {
    Opened& entry = screens_[id];
    if (!entry.screen) {
        entry.screen = factories_.at(id)(*this);
        entry.screen->load();
    }
    return *entry.screen;
}

Screen& Program::show(ScreenId id) {
    Screen& screen = load(id);
    desktop.show(screen);
    return screen;
}

Screen& Program::showOver(ScreenId id, Screen& below, const ImageRef& paper,
                          std::function<void()> accepted) {
    Screen& screen = load(id);
    screen.takePaper(paper);
    screen.over = &below;
    below.enabled = false;
    Opened& entry = screens_[id];
    entry.below = &below;
    entry.accepted = std::move(accepted);
    desktop.show(screen);
    return screen;
}

void Program::accept(Screen& screen) {
    const auto entry = entryOf(screen);
    if (entry == screens_.end())
        return;
    if (const auto accepted = entry->second.accepted)
        accepted();
    close(screen);
}

Screen* Program::find(ScreenId id) const {
    const auto found = screens_.find(id);
    return found == screens_.end() ? nullptr : found->second.screen.get();
}

std::map<ScreenId, Program::Opened>::iterator Program::entryOf(const Screen& screen) {
    return std::find_if(screens_.begin(), screens_.end(), [&screen](const auto& entry) {
        return entry.second.screen.get() == &screen;
    });
}

void Program::close(Screen& screen) {
    const auto entry = entryOf(screen);
    if (entry == screens_.end())
        return;
    // Out of the table first: what unloading opens may be the same screen anew.
    Opened closing = std::move(entry->second);
    screens_.erase(entry);
    for (Timer* timer : screen.timers())
        timer->enabled = false;
    if (closing.below)
        closing.below->enabled = true;
    screen.unload();
    desktop.close(screen);
    closed_.push_back(std::move(closing.screen));
}

void Program::note(bool saved, const TextPair& what) {
    if (!saved && std::find(unsaved.begin(), unsaved.end(), &what) == unsaved.end())
        unsaved.push_back(&what);
}

void Program::end() {
    keepPlayed();
    desktop.end();
}

void Program::keepPlayed() {
    if (const std::vector<Played> played = std::exchange(played_, {}); !played.empty())
        note(addToProgress(folder, played), texts::kProgressUnsaved);
}

int ePasteText(Program& program, TextView text, TextView selected, int caret) {
    PastedText pasted = ePasteText(text, selected, caret, program.desktop.clipboard());
    program.settings.gsTextResult = std::move(pasted.text);
    return pasted.caret;
}

void openManual(Program& program) {
    const auto manual = program.folder / "Quillor-Manual.txt";
    if (isFile(manual))
        program.desktop.open(manual);
    else
        program.desktop.messageBox(MessageIcon::Information, program.lang(texts::kHelpMissing));
}

void eCopyToClipboard(Program& program, TextView text) {
    program.desktop.setClipboard(text);
}

void eRestartGame(Program& program, Screen& caller) {
    if (Screen* start = program.find(ScreenId::Start))
        program.close(*start);
    program.show(ScreenId::Start);
    program.close(caller);
}

}  // namespace quillor
