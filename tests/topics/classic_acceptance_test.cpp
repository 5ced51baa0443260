// Accepting a phrase: what is checked, and what the record and the game get.
#include "tests/topics/topics_fixture.h"

namespace quillor::testing {
namespace {

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
