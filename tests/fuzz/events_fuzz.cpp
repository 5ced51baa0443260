// A stream of bytes as everything that can happen to the program: keys, mouse, time, boxes
// and menus answered while the clock runs, windows of any shape, files that are dropped, and
// its end at any moment, after which it starts anew on the same files.
#include <limits>
#include <memory>

#include "core/memory_disk.h"
#include "core/settings_file.h"
#include "game/game_screen.h"
#include "tests/fuzz/bytes.h"
#include "tests/support/fake_desktop.h"
#include "topics/topics.h"
#include "ui/progress_screen.h"
#include "ui/settings_screen.h"

namespace quillor::testing {

namespace {

// Answers by what the bytes say next, and lets time pass before.
class AnyDesktop : public FakeDesktop {
  public:
    explicit AnyDesktop(Bytes& bytes) : bytes_(bytes) {}

    void messageBox(MessageIcon, TextView) override { wait(); }
    void aboutBox(TextView, TextView) override { wait(); }
    bool question(TextView, bool) override {
        wait();
        return bytes_.below(2) != 0;
    }
    Text inputBox(TextView) override {
        wait();
        return bytes_.below(4) == 0 && game ? game->gsPhrase : bytes_.text();
    }
    void popUp(Screen& screen, MenuItem& menu, const Control*) override {
        keys.letGo();
        wait();
        MenuItem* item = &menu;
        while (item && !item->children.empty())
            item = item->children.at(bytes_.below(item->children.size()));
        if (item && item->enabled && isOpen(screen))
            deliver([&] { screen.choose(*item); });
    }
    void wait() {
        constexpr std::array<int, 8> kTimes{0, 1, 15, 100, 400, 1'000, 20'000, 700'000};
        keys.letGo();
        advance(kTimes.at(bytes_.below(kTimes.size())));
    }

    const GameSettings* game = nullptr;

  private:
    Bytes& bytes_;
};

class Run {
  public:
    explicit Run(Bytes& bytes) : bytes_(bytes) {
        disk_.put("/program/Temas/A.txt", "ANIMALES [ESPA\xD1OL]\r\nEL PING\xDC\x49NO\r\nGATO\r\n");
        disk_.put("/program/Temas/B.txt", bytes.file(bytes.byte()));
        disk_.put("/program/Quillor-Config.ini", bytes.file(bytes.byte()));
        disk_.put("/elsewhere/C.txt", bytes.file(bytes.byte()));
        if (bytes.below(2) != 0)
            disk_.put("/program/English.txt", "");
    }

    void play() {
        while (!bytes_.empty()) {
            start();
            while (!bytes_.empty() && !desktop_->ended && !isKilled())
                event();
            program_.reset();
        }
    }

  private:
    void start() {
        desktop_ = std::make_unique<AnyDesktop>(bytes_);
        program_ = std::make_unique<Program>(*desktop_, folder_);
        desktop_->game = &program_->settings;
        desktop_->onIdle = [this] { program_->destroyClosed(); };
        addSettingsScreen(*program_);
        addProgressScreen(*program_);
        addTopicScreens(*program_);
        addGameScreens(*program_);
        desktop_->deliver([this] { program_->show(ScreenId::Start); });
    }

    bool isKilled() { return bytes_.byte() == std::numeric_limits<std::uint8_t>::max(); }

    void event() {
        if (!desktop_->front() || bytes_.below(4) == 0)
            return desktop_->wait();
        Screen& screen = *desktop_->front();
        switch (bytes_.below(8)) {
            case 0:
                return mouse(screen);
            case 1:
                return list(screen);
            case 2:
                desktop_->deliver([&] { screen.closeRequest(); });
                return;
            case 3:
                desktop_->deliver([&] { screen.fit(1 + bytes_.byte(), 1 + bytes_.byte()); });
                return;
            case 4:
                desktop_->deliver([&] { screen.dropFiles({"/elsewhere/C.txt"}); });
                return;
            case 5:
                return surroundings(screen);
            default:
                return key(screen);
        }
    }

    void key(Screen& screen) {
        constexpr std::array kCodes{key::kBackspace, key::kTab,  key::kReturn, key::kEscape,
                                    key::kSpace,     key::kHome, key::kEnd,    key::kLeft,
                                    key::kUp,        key::kDown, key::kDelete, key::kF2};
        KeyPress press;
        const unsigned modifiers = bytes_.byte();
        press.key.control = modifiers % 16 == 1;
        press.key.shift = modifiers % 16 == 2;
        press.key.alt = modifiers % 16 == 3;
        press.autoRepeat = modifiers > 240;
        const std::size_t what = bytes_.below(3);
        if (what == 0) {
            press.key.code = kCodes.at(bytes_.below(kCodes.size()));
            if (press.key.code == key::kReturn || press.key.code == key::kBackspace)
                press.typed = Text(1, static_cast<char16_t>(press.key.code));
        } else {
            press.key.code = 'A' + static_cast<int>(bytes_.below(26));
            press.typed =
                Text(1, what == 1 ? static_cast<char16_t>(press.key.code) : bytes_.unit());
        }
        press.sign = press.typed.empty() ? u'\0' : press.typed.front();
        press.id = press.key.code;
        if (press.key.control || press.key.alt)
            press.typed.clear();
        Focus& focus = desktop_->focus(screen);
        if (press.key.code == key::kTab)
            return desktop_->deliver([&] { press.key.shift ? focus.previous() : focus.next(); });
        desktop_->deliver([&] { desktop_->keys.press(screen, focus, press); });
        if (bytes_.below(4) != 0)
            desktop_->deliver([&] { desktop_->keys.release(press.id); });
    }

    // What a hand can reach: seen, and enabled with all its frames.
    void mouse(Screen& screen) {
        std::vector<Control*> within;
        for (const ControlRef& ref : screen.controls()) {
            Control& control = controlOf(ref);
            if (isUsable(control))
                within.push_back(&control);
        }
        if (within.empty())
            return;
        Control& control = *within.at(bytes_.below(within.size()));
        const std::size_t what = bytes_.below(4);
        desktop_->deliver([&] { screen.mouseMove(control); });
        if (what == 0)
            return desktop_->deliver([&] { screen.rightClick(control); });
        auto* label = screen.as<Label>(&control);
        if (!label)
            return desktop_->deliver([&] { desktop_->focus(screen).take(control); });
        const auto still = [&] { return desktop_->front() == &screen; };
        desktop_->deliver([&] { screen.mouseDown(*label); });
        if (still())
            desktop_->deliver([&] { screen.mouseUp(*label); });
        if (still() && what != 1)
            desktop_->deliver([&] { screen.click(*label); });
    }

    void list(Screen& screen) {
        for (const ControlRef& ref : screen.controls()) {
            auto* list = screen.as<ListBox>(&controlOf(ref));
            if (!list || !isUsable(*list))
                continue;
            const int item = static_cast<int>(bytes_.below(list->items.size() + 1)) - 1;
            desktop_->deliver([&] { screen.selectItem(*list, item); });
            if (desktop_->front() == &screen && bytes_.below(2) != 0)
                desktop_->deliver([&] { screen.doubleClick(*list); });
            return;
        }
    }

    void surroundings(Screen& screen) {
        switch (bytes_.below(3)) {
            case 0:
                desktop_->clipboardText = bytes_.text();
                return;
            case 1:
                desktop_->asked.reducedMotion = bytes_.below(2) != 0;
                return;
            default:
                desktop_->deliver(
                    [&] { desktop_->keys.commit(screen, desktop_->focus(screen), bytes_.text()); });
        }
    }

    Bytes& bytes_;
    MemoryDisk disk_;
    const Place folder_{"/program", disk_};
    std::unique_ptr<AnyDesktop> desktop_;
    std::unique_ptr<Program> program_;
};

}  // namespace

}  // namespace quillor::testing

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quillor::testing::Bytes bytes(data, size);
    quillor::testing::Run(bytes).play();
    return 0;
}
