// The tests' own machine is strict, and its time is exact.
#include "tests/support/fake_desktop.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "tests/support/player.h"

namespace quillor::testing {
namespace {

class PlainScreen : public Screen {
  public:
    PlainScreen() : Screen("frmPlain") {
        lblPress.id = "lblPress";
        frmePanel.id = "frmePanel";
        txtField.id = "txtField";
        add(frmePanel);
        add(lblPress, &frmePanel);
        add(txtField);
        for (Timer* timer : {&tmrSlow, &tmrFast})
            add(*timer);
        lblPress.onClick = [this] { ++clicks; };
    }
    void takePaper(const ImageRef&) override {}

    Frame frmePanel;
    Label lblPress;
    TextField txtField;
    Timer tmrSlow{"tmrSlow", 100, false, {}};
    Timer tmrFast{"tmrFast", 30, false, {}};
    int clicks = 0;

  protected:
    void onLoad() override {}
    void onCloseRequest() override {}
};

class Machine : public ::testing::Test {
  protected:
    Machine() { desktop.show(screen); }
    PlainScreen screen;
    FakeDesktop desktop;
    Player player{desktop};
};

TEST_F(Machine, FailsAtABoxThatNoOneScripted) {
    EXPECT_NONFATAL_FAILURE(desktop.messageBox(MessageIcon::Information, u"hola"),
                            "unscripted message \"hola\"");
    EXPECT_NONFATAL_FAILURE(desktop.question(u"¿?"), "unscripted question");
    EXPECT_NONFATAL_FAILURE(desktop.inputBox(u"answer"), "unscripted input");
}

TEST_F(Machine, FailsAtAnAnswerThatNoBoxAskedFor) {
    auto strict = std::make_unique<FakeDesktop>();
    strict->expectMessage(u"never");
    EXPECT_NONFATAL_FAILURE(strict.reset(), "never asked for: message \"never\"");
}

TEST_F(Machine, FailsAtABoxOfAnotherTextOrKind) {
    desktop.expectMessage(u"one");
    EXPECT_NONFATAL_FAILURE(desktop.messageBox(MessageIcon::Information, u"other"), "other");
    desktop.expectMessage(u"one");
    EXPECT_NONFATAL_FAILURE(desktop.messageBox(MessageIcon::Critical, u"one"), "critical");
}

TEST_F(Machine, AnswersInTheOrderOfTheScript) {
    desktop.answerQuestion(u"a?", true);
    desktop.answerQuestion(u"b?", false);
    desktop.answerInput(u"c?", u"typed");
    EXPECT_TRUE(desktop.question(u"a?"));
    EXPECT_FALSE(desktop.question(u"b?"));
    EXPECT_EQ(desktop.inputBox(u"c?"), u"typed");
}

TEST_F(Machine, FiresTimersWhenTheyAreDue) {
    std::string fired;
    screen.tmrSlow.onTick = [&] { fired += 's'; };
    screen.tmrFast.onTick = [&] { fired += 'f'; };
    screen.tmrSlow.enabled = screen.tmrFast.enabled = true;
    desktop.advance(29);
    EXPECT_EQ(fired, "");
    desktop.advance(91);
    EXPECT_EQ(fired, "fffsf");
}

TEST_F(Machine, CountsAnewWhenATimerIsStartedOrItsIntervalChanged) {
    int ticks = 0;
    screen.tmrSlow.onTick = [&] { ++ticks; };
    screen.tmrSlow.enabled = true;
    desktop.advance(90);
    desktop.deliver([&] { screen.tmrSlow.interval = 50; });
    desktop.advance(49);
    EXPECT_EQ(ticks, 0);
    desktop.advance(1);
    EXPECT_EQ(ticks, 1);
    desktop.deliver([&] { screen.tmrSlow.enabled = false; });
    desktop.advance(1000);
    EXPECT_EQ(ticks, 1);
}

TEST_F(Machine, DoesNotFireATimerWithinItsOwnTick) {
    int ticks = 0;
    screen.tmrFast.onTick = [&] {
        ++ticks;
        desktop.messageBox(MessageIcon::Information, u"box");
    };
    screen.tmrFast.enabled = true;
    desktop.expectMessage(u"box", [&] { desktop.advance(300); });
    desktop.expectMessage(u"box");
    desktop.advance(30);
    EXPECT_EQ(ticks, 1);
    desktop.advance(30);
    EXPECT_EQ(ticks, 2);
}

TEST_F(Machine, TellsTheTimeOfDayAcrossMidnight) {
    desktop.setTimeOfDay({23, 59, 58});
    desktop.advance(1999);
    EXPECT_EQ(desktop.timeOfDay().second, 59);
    desktop.advance(1);
    EXPECT_EQ(desktop.timeOfDay().hour, 0);
    EXPECT_EQ(desktop.timeOfDay().second, 0);
}

TEST_F(Machine, DeliversNothingAfterTheEnd) {
    screen.tmrFast.onTick = [&] { ++screen.clicks; };
    screen.tmrFast.enabled = true;
    desktop.end();
    desktop.advance(1000);
    player.click("lblPress");
    EXPECT_EQ(screen.clicks, 0);
}

TEST_F(Machine, LetsAPlayerClickOnlyWhatAPersonCouldClick) {
    player.click("lblPress");
    EXPECT_EQ(screen.clicks, 1);
    screen.frmePanel.visible = false;
    EXPECT_NONFATAL_FAILURE(player.click("lblPress"), "lblPress is hidden");
    screen.frmePanel.visible = true;
    screen.frmePanel.enabled = false;
    EXPECT_NONFATAL_FAILURE(player.click("lblPress"), "not enabled");
    screen.frmePanel.enabled = true;
    screen.lblPress.onClick = nullptr;
    EXPECT_NONFATAL_FAILURE(player.click("lblPress"), "cannot be clicked");
}

TEST_F(Machine, LetsAPlayerDoNothingBehindABox) {
    desktop.expectMessage(u"box", [&] {
        EXPECT_NONFATAL_FAILURE(player.press(key::kReturn), "a box stands over");
        EXPECT_NONFATAL_FAILURE(player.click("lblPress"), "a box stands over");
    });
    desktop.messageBox(MessageIcon::Information, u"box");
}

TEST_F(Machine, EditsAFieldAsAWindowDoes) {
    player.clickInto("txtField", 0);
    player.type(u"abcd");
    player.press(key::kLeft);
    player.press(key::kBackspace);
    player.press(key::kDelete);
    EXPECT_EQ(screen.txtField.text(), u"ab");
    player.selectText("txtField", 0, 2);
    player.type(u"z");
    EXPECT_EQ(screen.txtField.text(), u"z");
    EXPECT_EQ(screen.txtField.caret(), 1);
}

TEST_F(Machine, GivesEachSoundItsOwnImage) {
    for (int id = 101; id <= 107; ++id)
        desktop.playWave(desktop.sound(id));
    EXPECT_EQ(desktop.playedSounds, (std::vector<int>{101, 102, 103, 104, 105, 106, 107}));
}

}  // namespace
}  // namespace quillor::testing
