// The program, a player who does anything, and a machine that answers anything.
#include "tests/game/random_session.h"

#include <algorithm>
#include <array>

#include "core/memory_disk.h"
#include "core/settings_file.h"
#include "core/text_codec.h"
#include "game/game_screen.h"
#include "tests/game/game_invariants.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/player.h"
#include "topics/topics.h"
#include "ui/progress_screen.h"
#include "ui/settings_screen.h"

namespace quillor::testing {

namespace {

constexpr int kLoading = 1000;  // ms that the start screen takes

// Answers every box by the number of the event that opened it; meanwhile time
// passes.
class BusyDesktop : public FakeDesktop {
  public:
    GameSettings* settings = nullptr;
    unsigned detail = 0;

    void messageBox(MessageIcon, TextView) override { passTime(); }
    void aboutBox(TextView, TextView) override { passTime(); }
    bool question(TextView, bool) override {
        passTime();
        return detail % 3 != 0;
    }
    Text inputBox(TextView) override {
        const Text typed = answers().at(detail % answers().size());
        passTime();
        return typed;
    }

  private:
    std::vector<Text> answers() const {
        return {settings->gsPhrase,       lowerCase(settings->gsPhrase), u"WRONG", u"", u"  ",
                settings->gsPhrase + u" "};
    }
    void passTime() {
        constexpr std::array<int, 7> kOpen{0, 0, 0, 0, 20, 400, 3'000};
        // Now and then long enough for any clock to run out.
        advance(detail % 101 == 0 ? 700'000 : kOpen.at(detail / 8 % kOpen.size()));
    }
};

class Session {
  public:
    explicit Session(const ProgramSetup& setup) : setup_(setup) {
        desktop_.settings = &program_.settings;
        desktop_.onIdle = [this] { program_.destroyClosed(); };
        addSettingsScreen(program_);
        addProgressScreen(program_);
        addTopicScreens(program_);
        addGameScreens(program_);
        fillFolder();
        desktop_.deliver([this] { program_.show(ScreenId::Start); });
    }

    Outcome play(const std::vector<Event>& events) {
        Outcome outcome;
        for (std::size_t i = 0; i < events.size() && outcome.problem.empty(); ++i) {
            play(events[i]);
            outcome.problem = invariants_.problem();
            outcome.event = i;
            if (desktop_.ended)
                break;
        }
        outcome.games = invariants_.gamesEnded();
        outcome.guesses = invariants_.guesses();
        return outcome;
    }

  private:
    void fillFolder() {
        if (setup_.english)
            disk_.put(folder_ / "English.txt", "");
        for (std::size_t i = 0; i < setup_.topics.size(); ++i)
            disk_.put(
                folder_ / (setup_.english ? "Topics" : "Temas") / (std::to_string(i) + ".txt"),
                setup_.topics[i]);
        eSaveSettings(setup_.saved, folder_);
    }

    void play(const Event& event) {
        desktop_.detail = event.detail;
        invariants_.beforeEvent();
        bool mayHaveSaved = event.act != Act::Guess && event.act != Act::Wait;
        const std::string& front = player_.screen().name;
        if (front == "frmStart")
            desktop_.advance(kLoading);
        else if (front == "frmMenu")
            leaveMenu(event);
        else if (front == "frmWord1" && event.act == Act::Enter)
            enterPhrase(event);
        else
            act(event);
        invariants_.afterEvent(mayHaveSaved);
    }

    void leaveMenu(const Event& event) {
        if (event.detail % 4 == 0)
            player_.click("lblOption(3)");
        else
            player_.click(setup_.classic ? "lblOption(1)" : "lblOption(0)");
    }

    // The phrases of the library serve in classic mode as well.
    void enterPhrase(const Event& event) {
        const TopicLibrary& library = program_.settings.gaTopicLines;
        if (!library.empty()) {
            const Topic& topic = library.at(event.detail % library.size());
            player_.type(topic.at(1 + event.detail % 7));
        }
        clickOn("lblOk(1)");
    }

    void act(const Event& event) {
        switch (event.act) {
            case Act::Guess:
                return guess(event);
            case Act::Enter:
                return player_.press(key::kReturn, {false, false, false, event.detail % 8 == 0});
            case Act::Answer:
                return type(u'!');
            case Act::Wait:
                return wait(event);
            case Act::Click:
                return click(event);
            case Act::Hover:
                return hover(event);
            case Act::Shortcut:
                return player_.press("EMRTASLO"[event.detail % 8], kControl);
            case Act::Menu:
                return chooseMenu(event);
            case Act::FunctionKey:
                return player_.press(event.detail % 2 ? key::kF2 : key::kF3);
            case Act::SelectionKey:
                return player_.press(
                    std::array{key::kLeft, key::kRight, key::kEscape}.at(event.detail % 3));
            case Act::BehindScreens:
                return actBehindScreens(event);
            case Act::CloseWindow:
                return player_.closeWindow();
        }
    }

    bool gameInFront() const { return player_.screen().name == "frmGame"; }

    void guess(const Event& event) {
        constexpr TextView kTyped = u"aeiosrnltcdbmpuvqhgfjkwxyzñ1234567890EAORIÑ'é?";
        type(kTyped.at(event.detail % kTyped.size()));
    }

    void type(char16_t character) {
        if (gameInFront())
            invariants_.willGuess(character);
        player_.type(Text(1, character));
    }

    void wait(const Event& event) {
        constexpr std::array<int, 7> kTimes{15, 20, 100, 400, 1'000, 5'000, 15'000};
        desktop_.advance(event.detail % 101 == 0 ? 200'000
                                                 : kTimes.at(event.detail % kTimes.size()));
    }

    static bool clickable(const Label& label) {
        for (const Control* control = &label; control; control = control->parent)
            if (!control->visible || !control->enabled)
                return false;
        return label.onClick != nullptr;
    }

    void clickOn(const std::string& id) {
        for (const ControlRef& ref : player_.screen().controls())
            if (auto* const* label = std::get_if<Label*>(&ref);
                label && (*label)->id == id && clickable(**label))
                return player_.click(id);
    }

    void click(const Event& event) {
        std::vector<const Label*> labels;
        for (const ControlRef& ref : player_.screen().controls())
            if (auto* const* label = std::get_if<Label*>(&ref); label && clickable(**label))
                labels.push_back(*label);
        if (labels.empty())
            return;
        const Label& chosen = *labels.at(event.detail % labels.size());
        if (gameInFront() && chosen.id.starts_with("lblKey") && chosen.caption.size() == 1)
            invariants_.willGuess(chosen.caption.front());
        player_.click(chosen.id);
    }

    void hover(const Event& event) {
        const auto& controls = player_.screen().controls();
        Control& chosen = controlOf(controls.at(event.detail % controls.size()));
        if (Player::sees(chosen) && chosen.enabled)
            player_.hover(chosen.id);
    }

    void chooseMenu(const Event& event) {
        auto* game = dynamic_cast<frmGame*>(&player_.screen());
        if (!game)
            return;
        std::vector<MenuItem*> items;
        for (MenuItem* item : game->menu.mMenu.children)
            if (item->enabled && item->onClick)
                items.push_back(item);
        if (game->menu.mAuto.enabled)
            for (MenuItem* item : game->menu.mAuto.children)
                if (item->enabled && item->onClick)
                    items.push_back(item);
        player_.chooseMenu(items.at(event.detail % items.size())->id);
    }

    // None of it may have any effect: the invariants would notice.
    void actBehindScreens(const Event& event) {
        auto* game = dynamic_cast<frmGame*>(program_.find(ScreenId::Game));
        if (!game || gameInFront())
            return;
        KeyEvent press;
        press.code = std::array{key::kReturn, key::kF2, key::kF3}.at(event.detail % 3);
        desktop_.deliver([&] { game->keyDown(press); });
        desktop_.deliver([&] { game->keyPress(u'E'); });
        desktop_.deliver([&] { game->click(game->playButton.lblPlay(0)); });
        desktop_.deliver([&] { game->choose(game->menu.mHide); });
        desktop_.deliver([&] { game->closeRequest(); });
    }

    const ProgramSetup& setup_;
    MemoryDisk disk_;
    const Place folder_{"/program", disk_};
    BusyDesktop desktop_;
    Program program_{desktop_, folder_};
    Player player_{desktop_};
    GameInvariants invariants_{program_};
};

}  // namespace

Outcome playSession(const ProgramSetup& setup, const std::vector<Event>& events) {
    return Session(setup).play(events);
}

}  // namespace quillor::testing
