// Dealing a phrase: which topics qualify, which phrase comes, what the game is told.
#include "tests/topics/topics_fixture.h"
#include "topics/topics.h"

namespace quillor::testing {
namespace {

class Dealing : public TopicsTest {
  protected:
    frmWord2& selection() { return open<frmWord2>(ScreenId::Word2); }
    bool isOpen() const { return program.find(ScreenId::Word2) != nullptr; }
    /// As the game does for the ways that choose by themselves.
    void dealUnseen(std::int16_t topic) {
        settings().gbAutoChoice = true;
        desktop.deliver([&] {
            if (eChoiceTopic(program, topic, settings().giWay))
                note();
        });
    }
};

TEST_F(Dealing, GivesTheGameAPhraseAndItsTopic) {
    addTopic({u"AVES [ESPAÑOL]", u"LORO", u"GÜIRO"});
    selection();
    desktop.draws = {0.99};
    player.press(key::kReturn);
    ASSERT_EQ(games.size(), 1U);
    EXPECT_EQ(games[0].phrase, u"GUIRO");
    EXPECT_EQ(games[0].topic, u"AVES");
    EXPECT_EQ(settings().gsShownPhrase, u"GÜIRO");
    EXPECT_EQ(settings().gsLastPhrase, u"GÜIRO");
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(game().enabled);
}

TEST_F(Dealing, WorksByDoubleClickAndByBothPartsOfTheButton) {
    addTopic({u"A", u"UNO", u"DOS"});
    selection();
    player.doubleClickItem("lstTopics", 0);
    for (const char* part : {"lblOk(0)", "lblOk(1)"}) {
        selection();
        player.click(part);
    }
    EXPECT_EQ(games.size(), 3U);
}

TEST_F(Dealing, KeepsTheChosenTopic) {
    addTopic({u"A", u"UNO", u"DOS"});
    addTopic({u"B", u"TRES", u"CUATRO"});
    settings().gbAutoChoice = true;
    selection();
    player.doubleClickItem("lstTopics", 1);
    EXPECT_EQ(settings().giTopicIndex, 1);
    EXPECT_EQ(settings().giSavedTopic, 1);
    EXPECT_FALSE(settings().gbAutoChoice);
}

TEST_F(Dealing, NeverGivesTheSamePhraseTwiceInARow) {
    addTopic({u"A", u"UNO", u"DOS"});
    for (int i = 0; i < 20; ++i) {
        selection();
        player.press(key::kReturn);
    }
    for (std::size_t i = 1; i < games.size(); ++i)
        EXPECT_NE(games[i].phrase, games[i - 1].phrase);
    EXPECT_EQ(games.size(), 20U);
}

TEST_F(Dealing, SeedsBeforeEveryTry) {
    addTopic({u"A", u"UNO", u"DOS"});
    settings().gsLastPhrase = u"UNO";
    selection();
    desktop.draws = {0.0, 0.4, 0.6};
    player.press(key::kReturn);
    EXPECT_EQ(games[0].phrase, u"DOS");
    EXPECT_EQ(desktop.seedings, 3);
}

TEST_F(Dealing, DealsOnlyUpToAGap) {
    addTopic({u"A", u"UNO", u"DOS", u"TRES", u"", u"CINCO"});
    for (const double draw : {0.0, 0.34, 0.67, 0.999}) {
        settings().gsLastPhrase.clear();
        selection();
        desktop.draws = {draw};
        player.press(key::kReturn);
    }
    std::vector<Text> dealt;
    for (const auto& played : games)
        dealt.push_back(played.phrase);
    EXPECT_EQ(dealt, (std::vector<Text>{u"UNO", u"DOS", u"TRES", u"TRES"}));
}

TEST_F(Dealing, DealsFromAllFiftyPhrases) {
    std::vector<Text> lines{u"A"};
    for (int i = 1; i <= 50; ++i)
        lines.push_back(u"P" + Text(static_cast<std::size_t>(i), u'X'));
    addTopic(lines);
    selection();
    desktop.draws = {0.9999};
    player.press(key::kReturn);
    EXPECT_EQ(games[0].phrase.size(), 51U);
}

TEST_F(Dealing, SkipsPhrasesOfBlanks) {
    addTopic({u"A", u"   ", u"DOS"});
    selection();
    desktop.draws = {0.0, 0.1, 0.9};
    player.press(key::kReturn);
    EXPECT_EQ(games[0].phrase, u"DOS");
}

class TooFew : public Dealing, public ::testing::WithParamInterface<std::vector<Text>> {};

TEST_P(TooFew, IsSaidAndChangesNothing) {
    addTopic(GetParam());
    settings().gsLastPhrase = u"UNO";
    settings().giSavedTopic = 7;
    selection();
    desktop.expectMessage(u"El tema seleccionado no tiene suficientes frases, escoge otro.");
    player.press(key::kReturn);
    EXPECT_TRUE(isOpen());
    EXPECT_FALSE(game().enabled);
    EXPECT_EQ(settings().giSavedTopic, 7);
    EXPECT_EQ(settings().gsLastPhrase, u"UNO");
    EXPECT_TRUE(games.empty());
}

INSTANTIATE_TEST_SUITE_P(Topics, TooFew,
                         ::testing::Values(std::vector<Text>{u"A"}, std::vector<Text>{u"A", u"B"},
                                           std::vector<Text>{u"A", u"", u"C", u"D"},
                                           std::vector<Text>{u"A", u"B", u"", u"D"},
                                           std::vector<Text>{u"A", u"UNO", u"UNO"},
                                           std::vector<Text>{u"A", u"  ", u" "},
                                           std::vector<Text>{u"A", u"UNO", u" "}));

TEST_F(Dealing, SaysTooFewInEnglish) {
    settings().gbEnglish = true;
    addTopic({u"A", u"ONE"});
    selection();
    desktop.expectMessage(u"The selected topic does't have enough phrases, choose another one.");
    player.press(key::kReturn);
}

TEST_F(Dealing, OfATitleThatIsOnlyTheTagNamesNoTopic) {
    addTopic({u" [ESPAÑOL] ", u"UNO", u"DOS"});
    selection();
    player.press(key::kReturn);
    EXPECT_EQ(games[0].topic, u"(NINGÚN TEMA)");
    settings().gbEnglish = true;
    selection();
    player.press(key::kReturn);
    EXPECT_EQ(games[1].topic, u"(NO TOPIC)");
}

TEST_F(Dealing, HidesTheTopicsNameInTheHiddenWay) {
    addTopic({u"AVES", u"UNO", u"DOS"});
    settings().giWay = kHiddenTopic;
    dealUnseen(0);
    settings().gbEnglish = true;
    dealUnseen(0);
    EXPECT_EQ(games.at(0).topic, u"(TEMA OCULTO)");
    EXPECT_EQ(games.at(1).topic, u"(HIDDEN TOPIC)");
}

TEST_F(Dealing, TellsTheGameTheModeBeforeThePhrase) {
    addTopic({u"A", u"UNO", u"DOS"});
    selection();
    player.press(key::kRight);
    player.press(key::kReturn);
    EXPECT_EQ(games.at(0).way, kRepeat);
    EXPECT_EQ(settings().giWay, kRepeat);
    EXPECT_FALSE(settings().gbTourStarted);
}

TEST_F(Dealing, StartsATourAtItsFirstTopicOnly) {
    addTopic({u"A", u"UNO", u"DOS"});
    addTopic({u"B", u"TRES", u"CUATRO"});
    settings().giWay = kTour;
    dealUnseen(1);
    EXPECT_TRUE(settings().gbTourStarted);
    EXPECT_EQ(settings().giTourStart, 1);
    dealUnseen(0);
    EXPECT_EQ(settings().giTourStart, 1);
}

TEST_F(Dealing, ByTheGameShowsNoScreenAndKeepsTheChoice) {
    addTopic({u"A", u"UNO", u"DOS"});
    settings().giWay = kAnyTopic;
    settings().gbAutoChoice = true;
    dealUnseen(0);
    EXPECT_EQ(desktop.shown, std::vector<std::string>{"frmGame"});
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(game().enabled);
    EXPECT_TRUE(settings().gbAutoChoice);
    EXPECT_EQ(games.at(0).way, kAnyTopic);
}

TEST_F(Dealing, ByTheGameOfTooFewPhrasesSaysSo) {
    addTopic({u"A", u"UNO"});
    settings().giWay = kRepeat;
    desktop.expectMessage(u"El tema seleccionado no tiene suficientes frases, escoge otro.");
    dealUnseen(0);
    EXPECT_TRUE(games.empty());
}

TEST_F(Dealing, OfATopicThatThereIsNotIsAnError) {
    addTopic({u"A", u"UNO", u"DOS"});
    for (const std::int16_t topic : {std::int16_t{-1}, std::int16_t{1}, std::int16_t{32767}}) {
        desktop.expectCritical(u"Hay un error que impide abrir los temas.");
        dealUnseen(topic);
    }
    EXPECT_TRUE(games.empty());
}

TEST_F(Dealing, SaysTheErrorInEnglish) {
    settings().gbEnglish = true;
    desktop.expectCritical(u"There is an error that prevents the topics from opening.");
    dealUnseen(0);
}

TEST_F(Dealing, TakesAPhraseOfSixtyLettersWithoutABlank) {
    addTopic({u"A", Text(60, u'X'), u"DOS"});
    selection();
    desktop.draws = {0.0};
    player.press(key::kReturn);
    EXPECT_EQ(games[0].phrase, Text(60, u'X'));
}

TEST_F(Dealing, SaysThatAPhraseIsCut) {
    addTopic({u"A", u"AAAAAAAAAA BBBBBBBBBB CCCCCCCCCC DDDDDDDDDD", u"DOS"});
    selection();
    desktop.draws = {0.0};
    desktop.expectMessage(u"¡Hasta al tope! La frase ha sido muy larga y fue recortada.");
    player.press(key::kReturn);
    EXPECT_EQ(games.size(), 1U);
}

TEST_F(Dealing, HappensOnceWhileReturnIsHeld) {
    addTopic({u"A", u"UNO", u"DOS"});
    selection();
    player.press(key::kReturn, kHeld);
    EXPECT_TRUE(games.empty());
    EXPECT_TRUE(isOpen());
}

}  // namespace
}  // namespace quillor::testing
