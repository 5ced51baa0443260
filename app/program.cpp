// The life of screens: made by their factories, kept by id, set aside when closed.
#include "app/program.h"

#include <utility>

#include "app/menu_screen.h"
#include "app/start_screen.h"

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
    auto& screen = screens_[id];
    if (!screen) {
        screen = factories_.at(id)(*this);
        screen->load();
    }
    return *screen;
}

Screen& Program::show(ScreenId id) {
    Screen& screen = load(id);
    desktop.show(screen);
    return screen;
}

Screen* Program::find(ScreenId id) const {
    const auto found = screens_.find(id);
    return found == screens_.end() ? nullptr : found->second.get();
}

void Program::close(Screen& screen) {
    for (auto entry = screens_.begin(); entry != screens_.end(); ++entry) {
        if (entry->second.get() != &screen)
            continue;
        // Out of the table first: what unloading opens may be the same screen anew.
        std::unique_ptr<Screen> closing = std::move(entry->second);
        screens_.erase(entry);
        for (Timer* timer : closing->timers())
            timer->enabled = false;
        closing->unload();
        desktop.close(*closing);
        closed_.push_back(std::move(closing));
        return;
    }
}

void Program::end() {
    desktop.end();
}

}  // namespace quillor
