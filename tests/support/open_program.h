// The whole program without a window: folder, machine, program and player.
#pragma once

#include "app/program.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/faulty_disk.h"
#include "tests/support/player.h"
#include "tests/support/temp_folder.h"

namespace quillor::testing {

/// The folder may be filled before the program starts.
struct OpenProgram {
    TempFolder folder;
    FaultyDisk disk;
    FakeDesktop desktop;
    Program program{desktop, {folder.path(), disk}};
    Player player{desktop};

    OpenProgram() {
        desktop.onIdle = [this] { program.destroyClosed(); };
    }

    GameSettings& settings() { return program.settings; }

    /// Shows a screen as an event of its own.
    Screen& show(ScreenId id) {
        desktop.deliver([&] { program.show(id); });
        return *program.find(id);
    }

    template <typename T>
    T& as(ScreenId id) {
        return dynamic_cast<T&>(*program.find(id));
    }
};

}  // namespace quillor::testing
