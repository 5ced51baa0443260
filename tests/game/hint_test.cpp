// The hint of the first-letter option: a letter that occurs once.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

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
