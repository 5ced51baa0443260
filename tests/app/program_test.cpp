// Opening and closing of screens, and the operations that several share.
#include "app/program.h"

#include "tests/app/app_fixture.h"

namespace quillor::testing {
namespace {

class Screens : public AppTest {};

TEST_F(Screens, AreLoadedOnceHoweverOftenTheyAreShown) {
    Screen& first = show(ScreenId::Menu);
    EXPECT_EQ(&show(ScreenId::Menu), &first);
    EXPECT_EQ(&program.load(ScreenId::Menu), &first);
}

TEST_F(Screens, MayBeLoadedWithoutBeingShown) {
    program.load(ScreenId::Menu);
    EXPECT_NE(program.find(ScreenId::Menu), nullptr);
    EXPECT_TRUE(desktop.shown.empty());
}

TEST_F(Screens, StopTheirTimersWhenClosed) {
    frmStart& screen = start();
    program.close(screen);
    EXPECT_FALSE(screen.tmrBar.enabled);
    EXPECT_EQ(program.find(ScreenId::Start), nullptr);
    program.destroyClosed();
}

TEST_F(Screens, AreClosedOnlyOnce) {
    frmStart& screen = start();
    program.close(screen);
    program.close(screen);
    EXPECT_EQ(desktop.closed, std::vector<std::string>{"frmStart"});
    program.destroyClosed();
}

TEST_F(Screens, ThatAreNotKnownCannotBeShown) {
    EXPECT_THROW(program.show(ScreenId::Word1), std::out_of_range);
    EXPECT_EQ(program.find(ScreenId::Word1), nullptr);
}

TEST_F(Screens, ThatStandOverAnotherHoldItStill) {
    frmMenu& below = menu();
    const auto paper = std::make_shared<FakeImage>("paper");
    auto& above = dynamic_cast<frmStart&>(program.showOver(ScreenId::Start, below, paper, {}));
    EXPECT_FALSE(below.enabled);
    EXPECT_EQ(above.over, &below);
    EXPECT_EQ(above.imgBack(0).image, paper);
    program.close(above);
    EXPECT_TRUE(below.enabled);
    program.destroyClosed();
}

TEST_F(Screens, AreAcceptedBeforeTheyClose) {
    frmMenu& below = menu();
    int times = 0;
    Screen& above = program.showOver(ScreenId::Start, below, {}, [&] {
        EXPECT_FALSE(below.enabled);
        ++times;
    });
    program.accept(above);
    program.accept(above);
    EXPECT_EQ(times, 1);
    EXPECT_TRUE(below.enabled);
    program.destroyClosed();
}

class Restart : public AppTest {};

TEST_F(Restart, ShowsTheStartScreenAnewAndClosesTheCaller) {
    frmMenu& caller = menu();
    settings().gsPhrase = u"OLD";
    desktop.deliver([&] { eRestartGame(program, caller); });
    EXPECT_EQ(desktop.shown, (std::vector<std::string>{"frmMenu", "frmStart"}));
    EXPECT_EQ(desktop.closed, std::vector<std::string>{"frmMenu"});
    EXPECT_EQ(settings().gsPhrase, u"");
}

TEST_F(Restart, RunsTheLoadingAgainOnAStartScreenThatIsOpen) {
    start();
    desktop.advance(200);
    folder.write("Temas/B.txt", "B\r\none\r\ntwo\r\n");
    frmMenu& caller = menu();
    desktop.deliver([&] { eRestartGame(program, caller); });
    EXPECT_EQ(settings().giTopicMax, 1);
    EXPECT_EQ(as<frmStart>(ScreenId::Start).lnGo.x2, 1950);
}

TEST_F(Restart, ReadsTheLanguageAnew) {
    frmMenu& caller = menu();
    folder.write("English.txt", "");
    desktop.deliver([&] { eRestartGame(program, caller); });
    desktop.advance(kWholeLine);
    EXPECT_EQ(as<frmMenu>(ScreenId::Menu).title, u"Quillor | Start");
}

class Clipboard : public AppTest {};

TEST_F(Clipboard, IsCopiedTo) {
    desktop.clipboardText = u"old";
    eCopyToClipboard(program, u"año");
    EXPECT_EQ(desktop.clipboardText, u"año");
    eCopyToClipboard(program, u"");
    EXPECT_EQ(desktop.clipboardText, u"");
}

TEST_F(Clipboard, IsPastedFrom) {
    desktop.clipboardText = u"--";
    EXPECT_EQ(ePasteText(program, u"abcd", u"", 2), 4);
    EXPECT_EQ(settings().gsTextResult, u"ab--cd");
}

}  // namespace
}  // namespace quillor::testing
