// Opening and closing of screens, and the operations that several share.
#include "app/program.h"

#include "app/phrase_taker.h"
#include "app/shared_operations.h"
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

TEST_F(Screens, ThatTakeNoPhraseAreNoPhraseTakers) {
    EXPECT_THROW(phraseTaker(program), std::bad_cast);
    show(ScreenId::Game);
    EXPECT_THROW(phraseTaker(program), std::bad_cast);
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

class CutPhrase : public AppTest {};

TEST_F(CutPhrase, LaysOutAndFoldsThePhrase) {
    settings().gsPhrase = u"Ünica ópera añil";
    eCutPhrase(program);
    EXPECT_EQ(settings().gsShownPhrase, u"Ünica ópera   añil");
    EXPECT_EQ(settings().gsCutPhrase, settings().gsShownPhrase);
    EXPECT_EQ(settings().gsPhrase, u"UNICA OPERA AÑIL");
}

TEST_F(CutPhrase, SaysOnceThatAPhraseIsTooLong) {
    settings().gbEnglish = true;
    settings().gsPhrase = u"aaaaaaaaaa bbbbbbbbbb cccccccccc dddddddddd éé";
    desktop.expectMessage(u"Up to the top! The phrase has been very long and was cut.");
    eCutPhrase(program);
    EXPECT_EQ(settings().gsPhrase, u"AAAAAAAAAA BBBBBBBBBB CCCCCCCCCC DDDDDDDDDD EE");
    EXPECT_EQ(settings().gsShownPhrase.back(), u' ');
}

TEST_F(CutPhrase, SaysSoInSpanish) {
    settings().gsPhrase = u"aaaaaaaaaa bbbbbbbbbb cccccccccc dddddddddd";
    desktop.expectMessage(u"¡Hasta al tope! La frase ha sido muy larga y fue recortada.");
    eCutPhrase(program);
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
