// One script, walked through by the tests' player and in real windows: after
// every step both show the same.
#include <gtest/gtest.h>

#include "game/game_screen.h"
#include "tests/qt/walkers.h"
#include "topics/topics.h"
#include "ui/progress_screen.h"
#include "ui/settings_screen.h"

namespace quillor::testing {

namespace {

class BothShells : public ::testing::Test {
  protected:
    BothShells() {
        for (Program* program : {&run_.program, &windows_.program}) {
            addSettingsScreen(*program);
            addProgressScreen(*program);
            addTopicScreens(*program);
            addGameScreens(*program);
            setPalette(program->settings);
            program->settings.gbEnglish = true;
        }
    }
    void start(ScreenId id) {
        run_.show(id);
        windows_.show(id);
        compare("at first");
    }
    /// Takes one step in both shells, with what the boxes are answered.
    void step(const std::string& what, const std::function<void(Walker&)>& act) {
        act(player_);
        act(windows_);
        compare(what);
    }
    void compare(const std::string& when) { EXPECT_EQ(player_.shown(), windows_.shown()) << when; }
    std::string front() { return run_.player.screen().name; }

  private:
    OpenProgram run_;
    PlayerWalker player_{run_};
    WindowWalker windows_;
};

TEST_F(BothShells, ShowTheSameOnTheMenuAndTheSettings) {
    start(ScreenId::Menu);
    step("Tab", [](Walker& shell) { shell.press(key::kTab); });
    step("Tab held", [](Walker& shell) { shell.holdKey(key::kTab, 2); });
    step("Settings", [](Walker& shell) { shell.hold(u's', 3); });
    EXPECT_EQ(front(), "frmOptions");
    step("an option", [](Walker& shell) { shell.hold(u'd', 2); });
    step("an option by its access key", [](Walker& shell) { shell.access(u'I'); });
    step("a design", [](Walker& shell) { shell.press('3', {false, true}); });
    step("a click", [](Walker& shell) { shell.click("lblCheck(4)"); });
    step("a button by Space", [](Walker& shell) { shell.type(u" "); });
    step("Back", [](Walker& shell) { shell.holdKey(key::kBackspace, 3); });
    EXPECT_EQ(front(), "frmMenu");
}

TEST_F(BothShells, ShowTheSameInTheInventor) {
    start(ScreenId::Menu);
    step("the inventor", [](Walker& shell) { shell.hold(u'i', 4); });
    EXPECT_EQ(front(), "frmInventor");
    step("a name", [](Walker& shell) { shell.type(u"zoo: x"); });
    step("undo", [](Walker& shell) { shell.press('Z', kControl); });
    step("redo", [](Walker& shell) { shell.press('Y', kControl); });
    step("erasing", [](Walker& shell) { shell.holdKey(key::kBackspace, 9); });
    EXPECT_EQ(front(), "frmInventor");
    step("composing", [](Walker& shell) { shell.compose(u"el\nzoo\n"); });
    step("Return", [](Walker& shell) { shell.holdKey(key::kReturn, 2); });
    for (const TextView phrase : {u"lion", u"big ape"}) {
        step("a phrase", [&](Walker& shell) { shell.type(phrase); });
        step("Home", [](Walker& shell) { shell.press(key::kHome); });
        step("Delete", [](Walker& shell) { shell.holdKey(key::kDelete, 1); });
        step("added", [](Walker& shell) { shell.press(key::kReturn); });
    }
    step("the list", [](Walker& shell) { shell.holdKey(key::kTab, 2); });
    step("up", [](Walker& shell) { shell.press(key::kUp); });
    step("deleted", [](Walker& shell) { shell.holdKey(key::kDelete, 3); });
}

TEST_F(BothShells, ShowTheSameInWholeGamesByKeyboardAlone) {
    const auto press = [this](const char* what, int code) {
        step(what, [code](Walker& shell) { shell.press(code); });
    };
    const auto type = [this](TextView text) {
        step("letters", [text](Walker& shell) { shell.type(text); });
    };
    start(ScreenId::Menu);
    press("to classic mode", key::kDown);
    type(u" ");
    EXPECT_EQ(front(), "frmGame");
    for (const TextView letters : {u"sol", u"bcdfgh"}) {
        type(u" ");
        EXPECT_EQ(front(), "frmWord1");
        type(u"sol");
        press("the topic", key::kReturn);
        press("accepted", key::kReturn);
        EXPECT_EQ(front(), "frmGame");
        press("a row down", key::kDown);
        press("a key on", key::kRight);
        press("the board", key::kEnd);
        type(letters);
        step("out of the keys", [](Walker& shell) { shell.press(key::kTab, {false, true}); });
        step("to the button", [](Walker& shell) {
            for (int i = 0;
                 i < 9 &&
                 shell.shown().find(R"(lblPlay(0) "PLAY ANOTHER" "" 0 focus)") == std::string::npos;
                 ++i)
                shell.press(key::kTab);
        });
    }
    press("back", key::kEscape);
    EXPECT_EQ(front(), "frmMenu");
}

TEST_F(BothShells, ShowTheSameOnEverySettingByKeyboardAlone) {
    start(ScreenId::Settings);
    for (int i = 0; i < 4; ++i) {
        step("switched", [](Walker& shell) { shell.type(u" "); });
        step("the next", [](Walker& shell) { shell.press(key::kDown); });
    }
    step("the designs", [](Walker& shell) { shell.press(key::kTab, {false, true}); });
    for (int i = 0; i < 4; ++i) {
        step("chosen", [](Walker& shell) { shell.type(u" "); });
        step("the next", [](Walker& shell) { shell.press(key::kRight); });
    }
    step("back", [](Walker& shell) { shell.press(key::kEscape); });
    EXPECT_EQ(front(), "frmMenu");
}

TEST_F(BothShells, ShowTheSameInAClassicGame) {
    start(ScreenId::Menu);
    step("classic", [](Walker& shell) { shell.hold(u'c', 1); });
    EXPECT_EQ(front(), "frmGame");
    step("play", [](Walker& shell) { shell.holdKey(key::kReturn, 3); });
    EXPECT_EQ(front(), "frmWord1");
    step("composing", [](Walker& shell) { shell.compose(u" el sol"); });
    step("typing on", [](Walker& shell) { shell.hold(u's', 2); });
    step("the topic", [](Walker& shell) { shell.holdKey(key::kReturn, 2); });
    step("a topic", [](Walker& shell) { shell.type(u"r&b"); });
    step("accepted", [](Walker& shell) { shell.press(key::kReturn); });
    EXPECT_EQ(front(), "frmGame");
    step("a letter that is right", [](Walker& shell) { shell.type(u"s"); });
    step("a letter that is wrong", [](Walker& shell) { shell.hold(u'x', 3); });
    step("a key", [](Walker& shell) { shell.click("lblKey(5)"); });
    step("the answer's last letters", [](Walker& shell) { shell.type(u"ol"); });
}

}  // namespace

}  // namespace quillor::testing
