// What a guessed letter does to the keyboard, the board and the strike boxes; and the
// hint of the first-letter option: a letter that occurs once.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class GuessesTest : public GameTest {
  protected:
    Keyboard& keyboard() { return game().keyboard; }
    Text counter() { return game().board.lblCont.caption; }
    Text strikes() {
        Text text;
        for (const Label& box : game().strikes.lblStrike)
            text += box.caption;
        return text;
    }
    bool offered(int key) {
        return keyboard().lblKey(key).visible && keyboard().shpKey(key).visible;
    }
    Color flash() { return game().accent.color(); }
};

TEST_F(GuessesTest, AreOfferedAsLettersAndDigitsInOrder) {
    play(u"WORLD");
    Text captions;
    for (int key = 1; key <= 37; ++key)
        captions += keyboard().lblKey(key).caption;
    EXPECT_EQ(captions, u"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ1234567890");
    EXPECT_EQ(keyboard().lblKey(38).caption, u"123");
    EXPECT_EQ(keyboard().lblKey(39).caption, u"(x)");
    EXPECT_EQ(keyboard().lblKey(40).caption, u"WRITE");
    EXPECT_EQ(keyboard().lblKey(38).toolTip, u" Numbers ");
    EXPECT_EQ(keyboard().lblKey(40).toolTip, u" Write answer ");
}

TEST_F(GuessesTest, UncoverEveryAccentedFormAtOnce) {
    play(u"ÁRBOL ALTO");
    player.type(u"a");
    EXPECT_EQ(counter(), u"2/9");
    EXPECT_TRUE(isFound(game(), 1));
    EXPECT_TRUE(isFound(game(), 7));
    EXPECT_EQ(game().board.lblLetter(1).caption, u"Á");
    EXPECT_EQ(settings.giLettersFound, 2);
    EXPECT_EQ(flash(), settings.glGreen);
}

TEST_F(GuessesTest, KeepTheEnyeApartFromTheN) {
    play(u"CAÑÓN");
    player.type(u"n");
    EXPECT_EQ(counter(), u"1/5");
    player.type(u"ñ");
    EXPECT_EQ(counter(), u"2/5");
    EXPECT_FALSE(offered(14));
    EXPECT_FALSE(offered(15));
}

TEST_F(GuessesTest, TakeTheKeyOffTheKeyboard) {
    play(u"ROUTE 66");
    player.type(u"r6x");
    EXPECT_FALSE(offered(19));
    EXPECT_FALSE(offered(33));
    EXPECT_FALSE(offered(25));
    EXPECT_TRUE(offered(1));
}

TEST_F(GuessesTest, WorkByMouseOnTheScreenKeys) {
    play(u"ROUTE 66");
    player.click("lblKey(19)");
    EXPECT_EQ(counter(), u"1/7");
    EXPECT_FALSE(offered(19));
}

TEST_F(GuessesTest, OfDigitsStandOnAPanelOfTheirOwn) {
    play(u"ROUTE 66");
    EXPECT_FALSE(Player::sees(keyboard().lblKey(33)));
    player.click("lblKey(38)");
    EXPECT_TRUE(Player::sees(keyboard().lblKey(33)));
    player.click("lblKey(33)");
    EXPECT_EQ(counter(), u"2/7");
    player.click("lblKey(39)");
    EXPECT_FALSE(Player::sees(keyboard().lblKey(28)));
}

TEST_F(GuessesTest, ThatAreWrongFillTheFirstFreeBox) {
    play(u"WORLD");
    player.type(u"xz");
    EXPECT_EQ(strikes(), u"XZ");
    EXPECT_EQ(game().strikes.lblStrike(1).caption, u"Z");
    EXPECT_EQ(settings.giStrikes, 2);
    EXPECT_EQ(flash(), settings.glRed);
    EXPECT_EQ(counter(), u"0/5");
}

TEST_F(GuessesTest, RepeatedCostNothingAndFlashYellow) {
    play(u"WORLD");
    player.type(u"wx");
    player.type(u"w");
    EXPECT_EQ(flash(), settings.glYellow);
    desktop.advance(500);
    player.type(u"X");
    EXPECT_EQ(flash(), settings.glYellow);
    EXPECT_EQ(settings.giStrikes, 1);
    EXPECT_EQ(counter(), u"1/5");
}

TEST_F(GuessesTest, OfTheFifthMistakeAgainCostNothing) {
    play(u"WORLD");
    player.type(u"xzabc");
    player.type(u"c");
    EXPECT_EQ(settings.giStrikes, 5);
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(GuessesTest, TheSixthWrongOneKills) {
    play(u"WORLD");
    player.type(u"xzabcf");
    EXPECT_EQ(game().strikes.lblStrike(5).caption, u"F");
    EXPECT_EQ(settings.giStrikes, 6);
    EXPECT_EQ(settings.giGameState, kDead);
    EXPECT_EQ(game().status.lblStatus.caption, u"DEAD!");
}

TEST_F(GuessesTest, TheLastLetterWins) {
    play(u"BEE");
    player.type(u"eb");
    EXPECT_EQ(settings.giGameState, kWon);
    EXPECT_EQ(game().status.lblStatus.caption, u"VICTORY!");
    EXPECT_FALSE(settings.gbAnswerWritten);
}

TEST_F(GuessesTest, FlashFades) {
    play(u"BEE");
    player.type(u"e");
    desktop.advance(399);
    EXPECT_EQ(flash(), settings.glGreen);
    desktop.advance(1);
    EXPECT_EQ(flash(), settings.glThemeNow);
}

TEST_F(GuessesTest, AreIgnoredOutsidePlay) {
    openArcade();
    player.type(u"a1ñ");
    EXPECT_EQ(settings.giStrikes, 0);
    EXPECT_TRUE(offered(1));
    EXPECT_FALSE(Player::sees(keyboard().lblKey(1)));
}

TEST_F(GuessesTest, AreIgnoredAfterTheEnd) {
    play(u"BEE");
    player.type(u"be");
    const Text before = strikes();
    player.type(u"xyz");
    game().click(keyboard().lblKey(25));
    EXPECT_EQ(strikes(), before);
    EXPECT_TRUE(offered(25));
}

TEST_F(GuessesTest, OfOtherCharactersAreIgnored) {
    play(u"BEE");
    player.type(u".,-_áçÜ?\u03b1");
    EXPECT_EQ(settings.giStrikes, 0);
    EXPECT_EQ(counter(), u"0/3");
}

TEST_F(GuessesTest, ShowAllKeysAgainInTheNextGame) {
    play(u"BEE");
    player.type(u"xbe");
    deal();
    for (int key = 1; key <= 40; ++key)
        EXPECT_TRUE(offered(key)) << key;
    EXPECT_EQ(strikes(), u"");
    EXPECT_EQ(settings.giStrikes, 0);
}

TEST_F(GuessesTest, HaveTipsOnTheirBoxes) {
    openArcade();
    EXPECT_EQ(game().strikes.lblStrike(0).toolTip, u" First mistake ");
    EXPECT_EQ(game().strikes.lblStrike(5).toolTip, u" Sixth mistake ");
}

class HintTest : public GameTest {
  protected:
    HintTest() { saved.gbFirstLetter = true; }

    Text found() {
        Text text;
        for (int cell = 1; cell <= static_cast<int>(game().round.cells.size()); ++cell)
            if (isFound(game(), cell))
                text += game().board.lblLetter(cell).caption;
        return text;
    }
};

TEST_F(HintTest, PicksTheFirstCharacterThatOccursOnce) {
    play(u"CASA ROJA");
    EXPECT_EQ(found(), u"C");
    EXPECT_TRUE(settings.gbHintUsed);
    EXPECT_FALSE(game().keyboard.lblKey(3).visible);
}

TEST_F(HintTest, PassesOverCharactersThatOccurTwiceAfterFolding) {
    play(u"ÁRBOL ALTO");
    EXPECT_EQ(found(), u"R");
}

TEST_F(HintTest, MayPickADigit) {
    play(u"AA1BB");
    EXPECT_EQ(found(), u"1");
}

TEST_F(HintTest, FindsNoUnrepeatedLetter) {
    expectBox(texts::kHintNone);
    play(u"ABBA");
    EXPECT_EQ(texts::kHintNone.english, u"No unrepeating letters to help you.");
    EXPECT_FALSE(settings.gbHintUsed);
    EXPECT_EQ(settings.giGameState, kPlaying);
    EXPECT_EQ(found(), u"");
}

TEST_F(HintTest, FindsThePhraseTooShort) {
    expectBox(texts::kHintTooShort);
    play(u"OK");
    EXPECT_EQ(texts::kHintTooShort.english, u"The phrase is too short to help you.");
    EXPECT_FALSE(settings.gbHintUsed);
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(HintTest, ShowsItsLetterEvenAmongHiddenOnes) {
    saved.gbHiddenLetters = true;
    play(u"BEEF");
    EXPECT_EQ(found(), u"B");
    player.type(u"E");
    EXPECT_EQ(found(), u"B??");
}

TEST_F(HintTest, IsSilentAndWithoutColour) {
    saved.gbUseSounds = true;
    play(u"BEEF");
    EXPECT_EQ(game().accent.color(), settings.glThemeNow);
    desktop.advance(1000);
    EXPECT_EQ(desktop.playedSounds, (std::vector<int>{102}));
}

TEST_F(HintTest, EndsWithThePlayersNextGuess) {
    play(u"BEEF");
    EXPECT_EQ(game().accent.color(), settings.glThemeNow);
    player.type(u"F");
    EXPECT_EQ(game().accent.color(), settings.glGreen);
}

TEST_F(HintTest, WinsAPhraseOfOneLetterAndBlanks) {
    play(u"  B  ");
    EXPECT_EQ(settings.giGameState, kWon);
    EXPECT_EQ(game().status.lblStatus.caption, u"VICTORY!");
    EXPECT_FALSE(game().menu.mWrite.enabled);
    EXPECT_FALSE(game().clock.tmrTime.enabled);
    EXPECT_EQ(settings.giGamesPlayed, 1);
    EXPECT_TRUE(Player::sees(game().webSearch.lblFinder(0)));
}

TEST_F(HintTest, ThatWinsStartsNoClockAndLeavesThePlayButtonUsable) {
    saved.gbAgainstClock = true;
    play(u"  B  ");
    EXPECT_FALSE(Player::sees(game().clock.lblTime));
    desktop.advance(600'000);
    EXPECT_EQ(settings.giGameState, kWon);
    deal();
    EXPECT_EQ(settings.gsPhrase, u"SPARE PHRASE");
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(HintTest, IsGivenByTheOptionOfTheMoment) {
    play(u"CASA ROJA");
    player.press('L', kControl);
    player.type(u"CASROJ");
    deal();
    EXPECT_EQ(found(), u"");
    EXPECT_FALSE(settings.gbHintUsed);
}

}  // namespace

}  // namespace quillor::testing
