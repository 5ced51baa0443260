// Phrases and topics that no one should write, and someone will.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class OddPhrasesTest : public GameTest {
  protected:
    // Sixty letters, none of them missing in the first 42.
    static Text sixtyLetters() {
        Text phrase;
        for (int i = 0; i < 60; ++i)
            phrase += static_cast<char16_t>(u'A' + i % 20);
        return phrase;
    }
};

TEST_F(OddPhrasesTest, OfSixtyLettersAreWonByLetters) {
    play(sixtyLetters());
    EXPECT_EQ(game().board.lblCont.caption, u"0/42");
    player.type(u"ABCDEFGHIJKLMNOPQRST");
    EXPECT_EQ(settings.giGameState, kWon);
    EXPECT_EQ(settings.giLettersFound, 42);
}

TEST_F(OddPhrasesTest, OfSixtyLettersAreWonByAnswer) {
    play(sixtyLetters());
    answer(sixtyLetters());
    EXPECT_EQ(settings.giGameState, kWon);
}

TEST_F(OddPhrasesTest, OfSixtyLettersAreLostLikeOthers) {
    play(sixtyLetters());
    player.type(u"UVWXYZ");
    EXPECT_EQ(settings.giGameState, kDead);
    EXPECT_EQ(settings.giScoreStep, -1000);
    EXPECT_TRUE(Player::sees(game().webSearch.lblFinder(0)));
}

TEST_F(OddPhrasesTest, OfSixtyLettersTakeAHint) {
    saved.gbFirstLetter = true;
    Text phrase = sixtyLetters();
    phrase.at(50) = u'Z';
    play(phrase);
    EXPECT_EQ(settings.giGameState, kPlaying);
    EXPECT_TRUE(settings.gbHintUsed);
    player.type(u"ABCDEFGHIJKLMNOPQRST");
    EXPECT_EQ(settings.giGameState, kWon);
}

TEST_F(OddPhrasesTest, WithCharactersThatNoKeyOffersAreWonByAnswer) {
    play(u"IT'S 50% OFF");
    player.type(u"itsof05");
    EXPECT_EQ(settings.giGameState, kPlaying);
    EXPECT_EQ(game().board.lblCont.caption, u"8/10");
    answer(u"it's 50% off");
    EXPECT_EQ(settings.giGameState, kWon);
}

TEST_F(OddPhrasesTest, WithCharactersThatNoKeyOffersMayGetThemByAHint) {
    saved.gbFirstLetter = true;
    play(u"AA'BB");
    EXPECT_TRUE(isFound(game(), 3));
    player.type(u"ab");
    EXPECT_EQ(settings.giGameState, kWon);
}

TEST_F(OddPhrasesTest, OfOneLetterAreWonByIt) {
    play(u"Q");
    EXPECT_EQ(game().board.lblCont.caption, u"0/1");
    player.type(u"q");
    EXPECT_EQ(settings.giGameState, kWon);
    EXPECT_EQ(settings.giScoreStep, 880);
}

TEST_F(OddPhrasesTest, TooLongForTheBoardAreCutWithAMessage) {
    expectBox(texts::kPhraseCut);
    play(u"ONE SENTENCE THAT IS MUCH TOO LONG FOR ALL THE ROWS OF THE BOARD");
    EXPECT_EQ(settings.giGameState, kPlaying);
    answer(u"one sentence that is much too long for all the rows of the board");
    EXPECT_EQ(settings.giGameState, kWon);
}

TEST_F(OddPhrasesTest, WhoseLettersLieBeyondTheBoardEndLikeOthers) {
    expectBox(texts::kPhraseCut);
    play(Text(60, u' ') + u"A");
    EXPECT_EQ(game().board.lblCont.caption, u"0/0");
    loseGame();
    EXPECT_EQ(settings.giGameState, kDead);
    EXPECT_TRUE(Player::sees(game().webSearch.lblFinder(0)));
    EXPECT_FALSE(game().menu.mWrite.enabled);
    waitForScore();
    EXPECT_EQ(settings.giScore, 0);
}

class OddTopicsTest : public GameTest {
  protected:
    void openSelection(TextView topic) {
        addTopic(topic);
        openArcade();
        player.press(key::kReturn);
    }
};

TEST_F(OddTopicsTest, WithTwoEqualPhrasesDealThemOnce) {
    openSelection(u"T\r\nSAME\r\nSAME");
    player.press(key::kReturn);
    EXPECT_EQ(settings.gsPhrase, u"SAME");
    player.type(u"same");
    player.press(key::kReturn);
    expectBox(texts::kTooFewPhrases);
    player.press(key::kReturn);
    EXPECT_EQ(player.screen().name, "frmWord2");
    player.press(key::kEscape);
    EXPECT_EQ(settings.giGameState, kIdle);
}

TEST_F(OddTopicsTest, WithBlanksOnlyAreRefused) {
    openSelection(u"T\r\n   \r\n  \r\n ");
    expectBox(texts::kTooFewPhrases);
    player.press(key::kReturn);
    EXPECT_EQ(player.screen().name, "frmWord2");
}

TEST_F(OddTopicsTest, WithOnePhraseAreRefused) {
    openSelection(u"T\r\nALONE");
    expectBox(texts::kTooFewPhrases);
    player.press(key::kReturn);
    EXPECT_EQ(settings.gsPhrase, u"");
}

TEST_F(OddTopicsTest, AreRefusedAlsoWhenTheGameDealsByItself) {
    addTopic(u"T\r\nSAME\r\nSAME");
    openArcade();
    player.press('A', kControl);
    player.press(key::kReturn);
    EXPECT_EQ(settings.gsPhrase, u"SAME");
    player.type(u"same");
    expectBox(texts::kTooFewPhrases);
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kIdle);
    EXPECT_EQ(player.screen().name, "frmGame");
    EXPECT_TRUE(game().enabled);
}

TEST_F(OddTopicsTest, WithAGapDealOnlyWhatStandsBeforeIt) {
    addTopic(u"T\r\nA1\r\nA2\r\nA3\r\n\r\nB5");
    openArcade();
    player.press('A', kControl);
    std::set<Text> dealt;
    for (int i = 0; i < 40; ++i) {
        player.press(key::kReturn);
        dealt.insert(settings.gsPhrase);
        answer(settings.gsPhrase);
    }
    EXPECT_EQ(dealt, (std::set<Text>{u"A1", u"A2", u"A3"}));
}

TEST_F(OddTopicsTest, NamedByTheSpanishTagAloneHaveNoName) {
    openSelection(u"[ESPAÑOL]\r\nONE\r\nTWO");
    player.press(key::kReturn);
    EXPECT_EQ(game().board.lblTopic.caption, u"(NO TOPIC)");
}

TEST_F(OddTopicsTest, LoseTheSpanishTagInTheGame) {
    openSelection(u"Frutas [español]\r\nONE\r\nTWO");
    player.press(key::kReturn);
    EXPECT_EQ(game().board.lblTopic.caption, u"FRUTAS");
}

TEST_F(OddTopicsTest, MissingAltogetherAreAnError) {
    openArcade();
    settings.gaTopicLines.clear();
    settings.giTopicIndex = 0;
    player.press('A', kControl);
    desktop.expectCritical(texts::kTopicsError.english);
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kIdle);
    EXPECT_TRUE(game().enabled);
}

}  // namespace
}  // namespace quillor::testing
