// What the page's script is told of screens, and when.
#include "web/page_shell.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/plain_screen.h"

namespace quillor {
namespace {

TEST(Messages, AreTextThatABrowserReads) {
    Messages out;
    out.beginObject().key("a").text(u"\"ñ\xD800\\").key("b").beginList().number(1.5).number(-2);
    out.none().flag(true).color(rgb(1, 2, 255)).endList().endObject();
    EXPECT_EQ(out.written(),
              R"({"a":"\u0022\u00f1\ud800\u005c","b":[1.5,-2,null,true,"#0102ff"]})");
}

class Page : public ::testing::Test {
  protected:
    Page() {
        shell.send = [this](const Messages& messages) { told.push_back(messages.written()); };
        shell.now = [this] { return now; };
        shell.accent = [] { return rgb(20, 140, 220); };
        shell.language = [] { return PageShell::Language{true, u"Close"}; };
        screen.addButton(button, "lblA", 0, 0).caption = u"A";
    }
    void open() {
        shell.event([this] { shell.show(screen); });
    }
    /// What the latest event has told.
    const std::string& latest() const { return told.back(); }
    static bool has(const std::string& all, const std::string& part) {
        return all.find(part) != std::string::npos;
    }

    PageShell shell;
    PlainScreen screen;
    Label button;
    std::int64_t now = 0;
    std::vector<std::string> told;
};

TEST_F(Page, IsToldOfAScreenWithAllItsControls) {
    open();
    EXPECT_TRUE(has(latest(), R"("tell":"open","screen":1,"name":"frmPlain")")) << latest();
    EXPECT_TRUE(has(latest(), R"("id":"lblA","kind":"button")")) << latest();
    EXPECT_TRUE(has(latest(), R"("caption":"A")")) << latest();
    EXPECT_TRUE(has(latest(), R"("tell":"front","screen":1)")) << latest();
}

TEST_F(Page, IsToldAfterwardsOnlyOfWhatDiffers) {
    open();
    shell.event([] {});
    EXPECT_EQ(latest(), "[]");
    shell.event([this] { button.left = 60; });
    EXPECT_EQ(latest(), R"([{"tell":"set","screen":1,"control":0,"place":[60,0,900,300]}])");
}

TEST_F(Page, GivesLettersAnEdgeThatAreTooSmallOnAPhoneForTheirGround) {
    button.font = {Face::Display, 17, true};
    button.textColor = rgb(250, 250, 250);
    button.backColor = rgb(250, 30, 30);
    button.opaque = true;
    shell.setRoom(1320, 810);
    open();
    EXPECT_TRUE(has(latest(), R"("share":0)")) << latest();
    shell.setRoom(440, 270);
    EXPECT_TRUE(has(latest(), R"("edge":"#000000","share":0.)")) << latest();
}

TEST_F(Page, IsToldOfTheFocusAndOfTheNextAlarm) {
    open();
    Timer timer{"tmr", 40, true, {}};
    screen.add(timer);
    shell.event([this] { screen.setFocus(button); });
    EXPECT_TRUE(has(latest(), R"({"tell":"focus","screen":1,"control":0})")) << latest();
    EXPECT_TRUE(has(latest(), R"({"tell":"alarm","after":40})")) << latest();
}

TEST_F(Page, TicksWhenATimerIsDueAlsoWhileABoxIsOpen) {
    int ticks = 0;
    Timer timer{"tmr", 40, true, [&ticks] { ++ticks; }};
    screen.add(timer);
    open();
    shell.event([&] {
        shell.modally([&] {
            now = 40;
            shell.tick();
        });
    });
    EXPECT_EQ(ticks, 1);
}

TEST_F(Page, ClosesAScreenAndForgetsItOnceNoHandlerRuns) {
    open();
    bool idle = false;
    shell.onIdle = [&idle] { idle = true; };
    shell.event([&] {
        shell.close(screen);
        EXPECT_FALSE(idle);
    });
    EXPECT_TRUE(idle);
    EXPECT_TRUE(has(latest(), R"({"tell":"close","screen":1})")) << latest();
    EXPECT_EQ(shell.find(1), nullptr);
}

TEST_F(Page, TellsColorsAnewInAnotherScheme) {
    open();
    shell.apply({.dark = true});
    EXPECT_TRUE(has(latest(), R"("tell":"colors")")) << latest();
    EXPECT_TRUE(has(latest(), R"("tell":"set","screen":1,"control":0)")) << latest();
}

TEST_F(Page, IsToldNothingOnceTheRunHasEnded) {
    open();
    const std::size_t before = told.size();
    shell.end();
    shell.event([this] { button.left = 60; });
    EXPECT_EQ(told.size(), before);
}

}  // namespace
}  // namespace quillor
