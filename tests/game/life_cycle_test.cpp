// The play button, and the states that a game passes through.
#include "tests/support/game_test.h"
#include "toolkit/style.h"

namespace quillor::testing {
namespace {

class LifeCycleTest : public GameTest {
  protected:
    Text status() { return game().status.lblStatus.caption; }
    Text playButton() { return game().playButton.lblPlay(0).caption; }
    void expectQuestion(bool yes) { desktop.answerQuestion(lang(texts::kLeaveGame), yes); }
};

TEST_F(LifeCycleTest, StartsIdle) {
    openArcade();
    EXPECT_EQ(settings.giGameState, kIdle);
    EXPECT_EQ(status(), u"NEW GAME");
    EXPECT_EQ(playButton(), u"PLAY");
    EXPECT_EQ(game().board.lblTopic.caption, u"(TOPIC)");
    EXPECT_FALSE(game().keyboard.frmeBoard.visible);
}

TEST_F(LifeCycleTest, PlaysThePhraseThatWasDealt) {
    play(u"WORLD");
    EXPECT_EQ(settings.giGameState, kPlaying);
    EXPECT_EQ(status(), u"PLAYING");
    EXPECT_EQ(playButton(), u"PLAY ANOTHER");
    EXPECT_TRUE(game().keyboard.frmeBoard.visible);
    EXPECT_TRUE(game().menu.mWrite.enabled);
    EXPECT_EQ(player.screen().name, "frmGame");
}

TEST_F(LifeCycleTest, DrawsOnThePageOnlyBetweenTwoGames) {
    play(u"WORLD");
    EXPECT_EQ(game().imgBack(0).drawing, "");
    player.type(u"WORLD");
    waitForScore();
    EXPECT_EQ(game().imgBack(0).drawing, "");
    player.press(key::kReturn);
    EXPECT_EQ(game().imgBack(0).drawing, style::kIdleDrawing);
}

TEST_F(LifeCycleTest, SpeaksSpanish) {
    english = false;
    openArcade();
    EXPECT_EQ(status(), u"NUEVA PARTIDA");
    EXPECT_EQ(playButton(), u"JUGAR");
    EXPECT_EQ(game().board.lblTopic.caption, u"(TEMA)");
    deal();
    EXPECT_EQ(status(), u"JUGANDO");
    EXPECT_EQ(playButton(), u"OTRA PARTIDA");
}

TEST_F(LifeCycleTest, SavesTheTopicWithEachNewGame) {
    addTopic(u"A\r\nONE\r\nTWO");
    addTopic(u"B\r\nONE\r\nTWO");
    openArcade();
    player.press(key::kReturn);
    player.selectItem("lstTopics", 1);
    player.press(key::kReturn);
    EXPECT_EQ(run.folder.read("Quillor-Config.ini"),
              "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n");
}

TEST_F(LifeCycleTest, RefusesToPlayWithoutTopics) {
    openArcade();
    settings.giTopicMax = -1;
    desktop.expectMessage(
        u"There are no words to play here. Bring files with words to the game's "
        u"'Themes' folder and restart.");
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kIdle);
}

TEST_F(LifeCycleTest, RefusesToPlayWhenNoTopicCouldBeLoaded) {
    run.folder.write("English.txt", "");
    run.folder.write("Topics", "a file where the folder should be");
    start();
    player.click("lblOption(0)");
    expectBox(texts::kNoTopics);
    player.press(key::kReturn);
    EXPECT_EQ(settings.giTopicMax, -1);
}

TEST_F(LifeCycleTest, AsksBeforeLeavingAGame) {
    play(u"WORLD");
    desktop.answerQuestion(u"You're about to leave this game, do you want to continue?", false);
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(LifeCycleTest, LeavesAGameAfterAYes) {
    play(u"WORLD");
    expectQuestion(true);
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kIdle);
    EXPECT_EQ(player.screen().name, "frmWord2");
    EXPECT_EQ(settings.giGamesPlayed, 0);
    EXPECT_EQ(settings.giScore, 1000);
}

TEST_F(LifeCycleTest, LetsGoWithThreeMistakes) {
    play(u"WORLD");
    player.type(u"xyz");
    expectQuestion(true);
    player.press(key::kReturn);
    EXPECT_EQ(player.screen().name, "frmWord2");
}

TEST_F(LifeCycleTest, HoldsAPlayerWithFourMistakes) {
    play(u"WORLD");
    player.type(u"xyza");
    desktop.expectMessage(
        u"You have many mistakes to leave the game, continue or restart the game.");
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kPlaying);
    EXPECT_EQ(player.screen().name, "frmGame");
}

TEST_F(LifeCycleTest, MovesOnAfterADeathWithoutAsking) {
    play(u"WORLD");
    player.type(u"w");
    loseGame();
    waitForScore();
    player.press(key::kReturn);
    EXPECT_EQ(player.screen().name, "frmWord2");
    EXPECT_EQ(status(), u"NEW GAME");
    EXPECT_EQ(playButton(), u"PLAY");
}

TEST_F(LifeCycleTest, StaysIdleWhenNoTopicIsChosen) {
    openArcade();
    player.press(key::kReturn);
    player.press(key::kEscape);
    EXPECT_EQ(player.screen().name, "frmGame");
    EXPECT_EQ(settings.giGameState, kIdle);
    EXPECT_TRUE(game().enabled);
}

TEST_F(LifeCycleTest, AsksForAPhraseInClassicMode) {
    openClassic();
    player.press(key::kReturn);
    EXPECT_EQ(player.screen().name, "frmWord1");
    player.type(u"bee");
    player.press(key::kReturn);
    player.type(u"insects");
    player.press(key::kReturn);
    EXPECT_EQ(settings.giGameState, kPlaying);
    EXPECT_EQ(game().board.lblTopic.caption, u"INSECTS");
    EXPECT_EQ(settings.gsPhrase, u"BEE");
}

TEST_F(LifeCycleTest, AsksForAPhraseAgainAfterAClassicGame) {
    playClassic(u"BEE");
    answer(u"x");
    waitForScore();
    player.press(key::kReturn);
    EXPECT_EQ(player.screen().name, "frmWord1");
}

TEST_F(LifeCycleTest, IgnoresAHeldEnter) {
    play(u"WORLD");
    player.press(key::kReturn, kHeld);
    player.type(u"world");
    player.press(key::kReturn, kHeld);
    EXPECT_EQ(settings.giGameState, kWon);
    EXPECT_EQ(player.screen().name, "frmGame");
}

TEST_F(LifeCycleTest, PlaysByMouseAsWell) {
    openArcade();
    player.click("lblPlay(0)");
    EXPECT_EQ(player.screen().name, "frmWord2");
    player.click("lblOk(0)");
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(LifeCycleTest, PopsUpTheMenuByARightClickOnPlay) {
    openArcade();
    player.rightClick("lblPlay(0)");
    EXPECT_EQ(desktop.popUps, (std::vector<std::string>{"mMenu"}));
}

TEST_F(LifeCycleTest, ShowsThePlayButtonHoveredPressedAndAtRest) {
    openArcade();
    const Color& face = game().playButton.shpPlay.backColor;
    player.hover("lblPlay(0)");
    EXPECT_EQ(face, settings.glGreen);
    player.mouseDown("lblPlay(0)");
    EXPECT_NE(face, settings.glGreen);
    player.mouseUp("lblPlay(0)");
    player.hover("imgBack(0)");
    EXPECT_EQ(face, settings.glTheme);
}

TEST_F(LifeCycleTest, ClearsTheHintAndTheAnswerOfTheGameBefore) {
    saved.gbFirstLetter = true;
    play(u"WORLD");
    answer(u"world");
    EXPECT_TRUE(settings.gbHintUsed && settings.gbAnswerWritten);
    player.press(key::kReturn);
    EXPECT_FALSE(settings.gbHintUsed || settings.gbAnswerWritten);
}

// In every state the title bar's close button ends the run.
TEST_F(LifeCycleTest, EndsByTheTitleBarWhileIdle) {
    openArcade();
    player.closeWindow();
    EXPECT_TRUE(desktop.ended);
}

TEST_F(LifeCycleTest, EndsByTheTitleBarWhilePlaying) {
    play(u"WORLD");
    player.closeWindow();
    EXPECT_TRUE(desktop.ended);
}

TEST_F(LifeCycleTest, EndsByTheTitleBarWhileTheScoreCounts) {
    play(u"WORLD");
    player.type(u"world");
    desktop.advance(3'000);
    player.closeWindow();
    EXPECT_TRUE(desktop.ended);
}

TEST_F(LifeCycleTest, DoesNotEndByTheTitleBarUnderTheSelection) {
    openArcade();
    player.press(key::kReturn);
    game().closeRequest();
    EXPECT_FALSE(desktop.ended);
    player.closeWindow();
    EXPECT_EQ(player.screen().name, "frmGame");
    EXPECT_FALSE(desktop.ended);
}

}  // namespace
}  // namespace quillor::testing
