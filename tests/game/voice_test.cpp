// What a player hears who does not see the game.
#include "tests/support/game_test.h"
#include "topics/inventor.h"

namespace quillor::testing {
namespace {

class Voice : public GameTest {
  protected:
    const Label& spoken() { return dynamic_cast<const ProgramScreen&>(player.screen()).lblSpoken; }
    bool heard(TextView part) { return spoken().caption.find(part) != Text::npos; }
    std::string focused() {
        const Control* control = desktop.focusOf(player.screen());
        return control ? control->id : "";
    }
};

TEST_F(Voice, SaysTheNewPhraseByItsTopicLettersAndGaps) {
    play(u"RED SEA");
    EXPECT_EQ(spoken().caption, u"TOPIC: MY TOPIC. Letters: 6. _ _ _ , _ _ _ ");
}

TEST_F(Voice, SaysTheSameWordsAgainEachTime) {
    play(u"WORLD");
    player.type(u"x");
    const int before = spoken().said;
    player.type(u"x");
    player.type(u"x");
    EXPECT_EQ(spoken().said, before + 2);
}

TEST_F(Voice, SaysTheAnswerWithItsAccentsAndWhatItWasWorth) {
    play(u"PINGÜINO");
    player.type(u"pinguo");
    EXPECT_TRUE(heard(u"VICTORY! The answer: PINGÜINO. Points of this game: "));
    EXPECT_TRUE(heard(u". Score: "));
    EXPECT_FALSE(heard(u"bonus"));
}

TEST_F(Voice, SaysPointsLostAndTheNewScore) {
    play(u"WORLD");
    loseGame();
    EXPECT_TRUE(heard(u"DEAD! The answer: WORLD. Points of this game: -1000. Score: 0"));
}

TEST_F(Voice, SaysTheBonus) {
    play(u"WORLD");
    answer(u"world");
    EXPECT_TRUE(heard(u". 50% bonus"));
}

TEST_F(Voice, SaysNoPointsInAClassicGameAndNoScoreWhereItIsInfinite) {
    playClassic(u"WORLD");
    player.type(u"world");
    EXPECT_TRUE(heard(u"VICTORY!"));
    EXPECT_FALSE(heard(u"Points"));
}

TEST_F(Voice, SaysNoScoreWhereItIsInfinite) {
    saved.gbInfiniteScore = true;
    play(u"WORLD");
    player.type(u"world");
    EXPECT_TRUE(heard(u"Points of this game"));
    EXPECT_FALSE(heard(u"Score"));
}

TEST_F(Voice, WarnsBeforeTheClockKills) {
    saved.gbAgainstClock = true;
    play(u"WORLD");
    std::vector<Text> warnings;
    for (Text last = spoken().caption; settings.giGameState == kPlaying; desktop.advance(200))
        if (spoken().caption != last)
            warnings.push_back(last = spoken().caption);
    EXPECT_EQ(warnings,
              (std::vector<Text>{u"One minute left.", u"30 seconds left.", u"10 seconds left."}));
    EXPECT_TRUE(heard(u"DEAD!"));
}

TEST_F(Voice, SaysThatASignIsNoKeyOfTheGame) {
    play(u"WORLD");
    player.type(u"-");
    EXPECT_TRUE(heard(u"- is no key of the game"));
    EXPECT_EQ(settings.giStrikes, 0);
}

TEST_F(Voice, SaysAndShowsForAMomentWhatAShortcutHasChanged) {
    openArcade();
    const Text tip = game().lblHey.caption;
    player.press('L', kControl);
    const Text said = settings.gbFirstLetter ? u"First letter: on" : u"First letter: off";
    EXPECT_EQ(spoken().caption, said);
    EXPECT_EQ(game().lblHey.caption, said);
    desktop.advance(3000);
    player.press('O', kControl);
    EXPECT_TRUE(game().lblHey.caption.starts_with(u"Hidden letters"));
    desktop.advance(3000);
    EXPECT_TRUE(game().lblHey.caption.starts_with(u"Hidden letters"));
    desktop.advance(2000);
    EXPECT_EQ(game().lblHey.caption, tip);
}

TEST_F(Voice, SaysSoundsAndTheSelectionWay) {
    openArcade();
    player.press('S', kControl);
    EXPECT_TRUE(heard(settings.gbUseSounds ? u"Sounds: on" : u"Sounds: off"));
    player.press('A', kControl);
    EXPECT_EQ(spoken().caption, u"Selection: Any topic");
}

TEST_F(Voice, SaysTheSelectedTopicAndTheWayThatArrowsChange) {
    addTopic(u"A\r\nONE\r\nTWO");
    openArcade();
    player.press(key::kReturn);
    EXPECT_EQ(spoken().caption, u"A");
    player.press(key::kRight);
    EXPECT_EQ(spoken().caption, u"Selection: REPEAT");
}

TEST_F(Voice, SaysWhatAKeyChangesOnTheSettings) {
    start();
    player.type(u"sd");
    EXPECT_EQ(spoken().caption, u"HARD SCORE: on");
    player.type(u"d");
    EXPECT_EQ(spoken().caption, u"HARD SCORE: off");
    player.type(u"3");
    EXPECT_EQ(spoken().caption, u"Design: Black background");
}

TEST_F(Voice, ReadsTheBoardAtAnyTimeByOneKey) {
    play(u"RED SEA");
    player.type(u"e");
    player.press(key::kF4);
    EXPECT_EQ(focused(), "lblBoard");
    EXPECT_EQ(game().board.lblBoard.spokenName, u"Board: _ E _ , _ E _ ");
    player.press(key::kF4);
    EXPECT_EQ(spoken().caption, u"Board: _ E _ , _ E _ ");
}

TEST_F(Voice, ReadsTheBoardCellByCell) {
    play(u"RED SEA");
    player.type(u"e");
    player.press(key::kF4);
    player.press(key::kRight);
    EXPECT_EQ(spoken().caption, u"Cell 1: to be found");
    player.press(key::kRight);
    EXPECT_EQ(spoken().caption, u"Cell 2: E");
    player.press(key::kEnd);
    player.press(key::kLeft);
    player.press(key::kLeft);
    EXPECT_EQ(spoken().caption, u"blank. Cell 4: to be found");
}

TEST_F(Voice, ReadsTheBoardsRowsByUpAndDown) {
    play(u"ELEPHANTS AND CROCODILES");
    player.press(key::kF4);
    player.press(key::kHome);
    player.press(key::kDown);
    EXPECT_EQ(spoken().caption, u"blank. Cell 13: to be found");
    player.press(key::kUp);
    EXPECT_EQ(spoken().caption, u"Cell 1: to be found");
}

TEST_F(Voice, NeverReadsWhatIsHidden) {
    saved.gbHiddenLetters = true;
    play(u"RED SEA");
    player.type(u"e");
    player.press(key::kF4);
    EXPECT_EQ(game().board.lblBoard.spokenName, u"Board: _ ? _ , _ ? _ ");
    player.press(key::kHome);
    player.press(key::kRight);
    EXPECT_EQ(spoken().caption, u"Cell 2: found, hidden");
}

TEST_F(Voice, LeadsFromAUsedKeyToTheNextOneAndNeverToAnotherGame) {
    play(u"WORLD");
    EXPECT_EQ(focused(), "lblKey(1)");
    player.type(u"  ");
    EXPECT_EQ(settings.giStrikes, 2);
    EXPECT_EQ(focused(), "lblKey(3)");
    player.press(key::kEnd);
    player.press(key::kLeft);
    EXPECT_EQ(focused(), "lblKey(38)");
    player.type(u"world ");
    EXPECT_EQ(settings.giGameState, kWon);
    EXPECT_EQ(player.screen().name, "frmGame");
}

TEST_F(Voice, PreselectsNoWhereAGameWouldBeLost) {
    play(u"WORLD");
    desktop.answerQuestion(lang(texts::kLeaveGame), false);
    player.press(key::kReturn);
    EXPECT_TRUE(desktop.noPreselected);
}

TEST_F(Voice, PreselectsYesWhereNothingIsLost) {
    start();
    player.type(u"i");
    player.type(u"Zoo");
    player.clickInto("txtWord", 0);
    player.type(u"lion");
    player.press(key::kReturn);
    desktop.answerQuestion(lang(texts::kAskRestart), false);
    player.click("lblSave(0)");
    EXPECT_FALSE(desktop.noPreselected);
}

}  // namespace
}  // namespace quillor::testing
