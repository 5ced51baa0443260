// The classic entry screen: what may be typed, what is refused, what the game gets; what
// is checked when a phrase is accepted.
#include "tests/topics/topics_fixture.h"

namespace quillor::testing {
namespace {

constexpr Color kGreyInk = rgb(200, 200, 200);

class ClassicEntry : public TopicsTest {
  protected:
    frmWord1& entry() { return open<frmWord1>(ScreenId::Word1); }
    bool isOpen() const { return program.find(ScreenId::Word1) != nullptr; }
    void setPhrase(TextView text) {
        auto& screen = as<frmWord1>(ScreenId::Word1);
        desktop.deliver([&] { screen.edit(screen.txtWord, Text(text), 0, 0); });
    }
};

TEST_F(ClassicEntry, IsInSpanish) {
    frmWord1& screen = entry();
    EXPECT_EQ(screen.title, u"Escriba su frase y tema:");
    EXPECT_EQ(screen.txtTheme.text(), u"(NINGÚN TEMA)");
    EXPECT_EQ(screen.txtWord.toolTip, u" Frase a jugar ");
    EXPECT_EQ(screen.lblOk(1).caption, u"ACEPTAR");
}

TEST_F(ClassicEntry, IsInEnglish) {
    settings().gbEnglish = true;
    frmWord1& screen = entry();
    EXPECT_EQ(screen.title, u"Write your phrase and topic:");
    EXPECT_EQ(screen.txtTheme.text(), u"(NO TOPIC)");
    EXPECT_EQ(screen.txtTheme.toolTip, u" Topic ");
    EXPECT_EQ(screen.lblOk(1).caption, u"OK");
}

TEST_F(ClassicEntry, StandsOverTheGameWhichTakesNoInput) {
    frmWord1& screen = entry();
    EXPECT_EQ(screen.over, &game());
    EXPECT_FALSE(game().enabled);
    EXPECT_EQ(screen.imgBack.image, game().itsPaper);
    EXPECT_EQ(screen.shpFond.backColor, settings().glTheme);
}

TEST_F(ClassicEntry, StartsInTheEmptyPhraseField) {
    frmWord1& screen = entry();
    EXPECT_EQ(desktop.focusOf(screen), &screen.txtWord);
    EXPECT_EQ(screen.txtWord.text(), u"");
    EXPECT_FALSE(screen.lblOk(0).enabled);
    EXPECT_FALSE(screen.lblOk(1).enabled);
}

TEST_F(ClassicEntry, ShowsTypedLettersInCapitals) {
    frmWord1& screen = entry();
    player.type(u"el niño àéîü 12");
    EXPECT_EQ(screen.txtWord.text(), u"EL NIÑO ÀÉÜ 12");
}

TEST_F(ClassicEntry, SwallowsABlankInAnEmptyField) {
    frmWord1& screen = entry();
    player.type(u"  a ");
    EXPECT_EQ(screen.txtWord.text(), u"A ");
}

TEST_F(ClassicEntry, TakesABlankBeforeTypedText) {
    frmWord1& screen = entry();
    player.type(u"ab");
    player.clickInto("txtWord", 0);
    player.type(u" ");
    EXPECT_EQ(screen.txtWord.text(), u" AB");
}

TEST_F(ClassicEntry, SwallowsWhatIsNoLetterOrDigit) {
    frmWord1& screen = entry();
    player.type(u"a?!.,-_ß€Ω'\"b");
    EXPECT_EQ(screen.txtWord.text(), u"AB");
}

TEST_F(ClassicEntry, DeletesWithBackspace) {
    frmWord1& screen = entry();
    player.type(u"abc");
    player.press(key::kBackspace);
    EXPECT_EQ(screen.txtWord.text(), u"AB");
}

TEST_F(ClassicEntry, TakesThirtyFiveCharactersOfAPhrase) {
    frmWord1& screen = entry();
    player.type(Text(36, u'a'));
    EXPECT_EQ(screen.txtWord.text(), Text(35, u'A'));
}

TEST_F(ClassicEntry, TakesTwentyTwoCharactersOfATopic) {
    frmWord1& screen = entry();
    player.clickInto("txtTheme", 0);
    player.type(Text(23, u'a'));
    EXPECT_EQ(screen.txtTheme.text(), Text(22, u'A'));
}

TEST_F(ClassicEntry, CanBeAcceptedOnlyWithMoreThanBlanks) {
    frmWord1& screen = entry();
    setPhrase(u"   ");
    EXPECT_FALSE(screen.lblOk(0).enabled);
    setPhrase(u"  x");
    EXPECT_TRUE(screen.lblOk(0).enabled);
    EXPECT_TRUE(screen.lblOk(1).enabled);
    setPhrase(u"");
    EXPECT_FALSE(screen.lblOk(1).enabled);
}

TEST_F(ClassicEntry, MovesToTheTopicOnReturn) {
    frmWord1& screen = entry();
    player.press(key::kReturn);
    EXPECT_EQ(desktop.focusOf(screen), &screen.txtTheme);
    EXPECT_TRUE(isOpen());
}

TEST_F(ClassicEntry, EmptiesThePlaceholderWhenFocusedAndPutsItBack) {
    frmWord1& screen = entry();
    player.clickInto("txtTheme", 0);
    EXPECT_EQ(screen.txtTheme.text(), u"");
    player.clickInto("txtWord", 0);
    EXPECT_EQ(screen.txtTheme.text(), u"(NINGÚN TEMA)");
    EXPECT_EQ(screen.txtTheme.textColor, kGreyInk);
}

TEST_F(ClassicEntry, ShowsATypedTopicInBlackCapitals) {
    frmWord1& screen = entry();
    player.press(key::kReturn);
    player.type(u"pájaros!");
    EXPECT_EQ(screen.txtTheme.text(), u"PÁJAROS!");
    EXPECT_EQ(screen.txtTheme.caret(), 8);
    EXPECT_EQ(screen.txtTheme.textColor, rgb(0, 0, 0));
}

TEST_F(ClassicEntry, KeepsTheCaretWhenCapitalsAreMade) {
    frmWord1& screen = entry();
    player.press(key::kReturn);
    player.type(u"ac");
    player.clickInto("txtTheme", 1);
    player.type(u"b");
    EXPECT_EQ(screen.txtTheme.text(), u"ABC");
    EXPECT_EQ(screen.txtTheme.caret(), 2);
}

TEST_F(ClassicEntry, IsGreyWhenThePlaceholderIsTypedByHand) {
    frmWord1& screen = entry();
    player.press(key::kReturn);
    player.type(u"(ningún tema)");
    EXPECT_EQ(screen.txtTheme.textColor, kGreyInk);
}

TEST_F(ClassicEntry, ShowsThatItsButtonIsHeld) {
    frmWord1& screen = entry();
    EXPECT_EQ(screen.shpOk.backColor, rgb(250, 30, 30));
    player.type(u"a");
    player.mouseDown("lblOk(0)");
    EXPECT_EQ(screen.shpOk.backColor, rgb(30, 180, 30));
    player.mouseUp("lblOk(0)");
    EXPECT_EQ(screen.shpOk.backColor, rgb(250, 30, 30));
}

TEST_F(ClassicEntry, DoesNotRunThroughTheTopicOnAHeldReturn) {
    entry();
    player.type(u"casa");
    player.press(key::kReturn);
    player.press(key::kReturn, kHeld);
    EXPECT_TRUE(isOpen());
    player.press(key::kReturn);
    EXPECT_FALSE(isOpen());
}

TEST_F(ClassicEntry, ClosesOnEscapeInEitherField) {
    for (const char* field : {"txtWord", "txtTheme"}) {
        entry();
        player.type(u"frase");
        player.clickInto(field, 0);
        player.press(key::kEscape);
        EXPECT_FALSE(isOpen());
        EXPECT_TRUE(game().enabled);
    }
    EXPECT_TRUE(games.empty());
    EXPECT_EQ(settings().gsPhrase, u"");
    EXPECT_EQ(settings().gsClassicTopic, u"");
}

TEST_F(ClassicEntry, ClosesOnEscapeOnItsButton) {
    frmWord1& screen = entry();
    player.type(u"frase");
    desktop.deliver([&] { desktop.moveFocus(screen, &screen.lblOk(1)); });
    player.press(key::kEscape);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(games.empty());
}

TEST_F(ClassicEntry, ClosesWithItsWindowAsWithEscape) {
    entry();
    player.type(u"frase");
    player.closeWindow();
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(game().enabled);
    EXPECT_TRUE(games.empty());
    EXPECT_FALSE(desktop.ended);
}

class ClassicAcceptance : public TopicsTest {
  protected:
    void SetUp() override { open<frmWord1>(ScreenId::Word1); }

    frmWord1& screen() { return as<frmWord1>(ScreenId::Word1); }
    bool isOpen() const { return program.find(ScreenId::Word1) != nullptr; }
    void paste(TextView phrase) {
        desktop.deliver([&] { screen().edit(screen().txtWord, Text(phrase), 0, 0); });
    }
};

TEST_F(ClassicAcceptance, GivesTheGamePhraseAndTopic) {
    player.type(u"el jalapeño");
    player.press(key::kReturn);
    player.type(u"comida");
    player.press(key::kReturn);
    ASSERT_EQ(games.size(), 1U);
    EXPECT_EQ(games[0].phrase, u"EL JALAPEÑO");
    EXPECT_EQ(games[0].topic, u"COMIDA");
    EXPECT_EQ(settings().gsClassicTopic, u"COMIDA");
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(game().enabled);
}

TEST_F(ClassicAcceptance, WorksByBothPartsOfTheButton) {
    for (const char* part : {"lblOk(0)", "lblOk(1)"}) {
        open<frmWord1>(ScreenId::Word1);
        player.type(u"frase");
        player.click(part);
        EXPECT_FALSE(isOpen());
    }
    EXPECT_EQ(games.size(), 2U);
}

TEST_F(ClassicAcceptance, TrimsAndFoldsThePhraseAndLaysItOut) {
    paste(u"  ópera única añil  ");
    player.click("lblOk(0)");
    EXPECT_EQ(settings().gsPhrase, u"OPERA UNICA AÑIL");
    EXPECT_EQ(settings().gsShownPhrase, u"ÓPERA ÚNICA   AÑIL");
    EXPECT_EQ(settings().gsCutPhrase, settings().gsShownPhrase);
}

TEST_F(ClassicAcceptance, GivesThePlaceholderForAnUntouchedTopic) {
    player.type(u"frase");
    player.click("lblOk(0)");
    EXPECT_EQ(games[0].topic, u"(NINGÚN TEMA)");
    EXPECT_EQ(settings().gsClassicTopic, u"(NINGÚN TEMA)");
    open<frmWord1>(ScreenId::Word1);
    EXPECT_EQ(screen().txtTheme.text(), u"(NINGÚN TEMA)");
    EXPECT_EQ(screen().txtTheme.textColor, rgb(200, 200, 200));
}

TEST_F(ClassicAcceptance, GivesThePlaceholderForATopicLeftEmpty) {
    player.type(u"frase");
    player.press(key::kReturn);
    player.press(key::kReturn);
    EXPECT_EQ(games[0].topic, u"(NINGÚN TEMA)");
}

TEST_F(ClassicAcceptance, OffersTheTopicAgain) {
    player.type(u"frase");
    player.press(key::kReturn);
    player.type(u"ríos");
    player.press(key::kReturn);
    open<frmWord1>(ScreenId::Word1);
    EXPECT_EQ(screen().txtTheme.text(), u"RÍOS");
    EXPECT_EQ(screen().txtWord.text(), u"");
    player.clickInto("txtTheme", 0);
    EXPECT_EQ(screen().txtTheme.text(), u"RÍOS");
}

TEST_F(ClassicAcceptance, RefusesPastedCharactersThatAreNotAllowed) {
    paste(u"HOLA!");
    desktop.expectMessage(u"Tu frase tiene caracteres no permitidos; sólo letras y números.");
    player.click("lblOk(0)");
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(screen().txtWord.text(), u"HOLA!");
    EXPECT_EQ(settings().gsPhrase, u"");
    EXPECT_TRUE(games.empty());
}

TEST_F(ClassicAcceptance, RefusesInEnglish) {
    settings().gbEnglish = true;
    paste(u"\tHELLO");
    desktop.expectMessage(u"Your phrase has characters not allowed; only letters and numbers.");
    player.click("lblOk(0)");
    EXPECT_TRUE(isOpen());
}

TEST_F(ClassicAcceptance, DoesNothingOnReturnWithoutAPhrase) {
    player.press(key::kReturn);
    player.press(key::kReturn);
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(games.empty());
}

TEST_F(ClassicAcceptance, HappensOnceHoweverLongReturnIsHeld) {
    player.type(u"frase");
    player.press(key::kReturn);
    for (int i = 0; i < 5; ++i)
        player.press(key::kReturn, kHeld);
    EXPECT_TRUE(isOpen());
    player.press(key::kReturn);
    EXPECT_EQ(games.size(), 1U);
    EXPECT_FALSE(isOpen());
}

TEST_F(ClassicAcceptance, LeavesTheWayAndTheTourAlone) {
    settings().giWay = kTour;
    settings().giTourStart = 3;
    player.type(u"frase");
    player.click("lblOk(0)");
    EXPECT_EQ(settings().giWay, kTour);
    EXPECT_EQ(settings().giTourStart, 3);
    EXPECT_FALSE(settings().gbTourStarted);
}

TEST_F(ClassicAcceptance, SaysThatATooLongPhraseIsCut) {
    paste(u"aaaaaaaa bbbbbbbb cccccccc dddddddd");
    desktop.expectMessage(u"¡Hasta al tope! La frase ha sido muy larga y fue recortada.");
    player.click("lblOk(0)");
    EXPECT_EQ(games[0].phrase, u"AAAAAAAA BBBBBBBB CCCCCCCC DDDDDDDD");
}

}  // namespace

}  // namespace quillor::testing
