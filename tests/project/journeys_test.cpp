// The whole program from its first start on, and the files it leaves.
#include "tests/support/game_test.h"
#include "topics/inventor.h"

namespace quillor::testing {
namespace {

class Journey : public GameTest {
  protected:
    std::string settingsFile() const { return run.folder.read("Quillor-Config.ini"); }
    /// As a program that is started for the first time: no settings, no topics.
    void startFirstTime() {
        run.show(ScreenId::Start);
        desktop.advance(2000);
    }
    /// Back from the game to the menu.
    void goBack() { player.press(key::kF2); }
};

TEST_F(Journey, FromAFirstStartToAWonSampleGame) {
    english = false;
    startFirstTime();
    player.click("lblOption(0)");
    deal();
    EXPECT_EQ(settings.gsTopicName, u"FRASES DE MUESTRA");
    EXPECT_EQ(settings.gsPhrase, u"DANZA");
    player.type(u"danz");
    EXPECT_EQ(settings.giGameState, kWon);
    waitForScore();
    EXPECT_GT(settings.giScore, kFirstScore);
    EXPECT_EQ(settingsFile(), "0\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n");
}

TEST_F(Journey, FromAnInventedTopicToAGameWithIt) {
    start();
    player.click("lblOption(6)");
    player.type(u"Zoo");
    for (const TextView phrase : {u"lion", u"tiger"}) {
        player.clickInto("txtWord", 0);
        player.type(phrase);
        player.press(key::kReturn);
    }
    desktop.answerQuestion(lang(texts::kAskRestart), true);
    player.click("lblSave(0)");
    desktop.advance(2000);
    player.click("lblOption(0)");
    player.press(key::kReturn);
    player.selectItem("lstTopics", 1);
    desktop.draws = {0.0};
    player.press(key::kReturn);
    EXPECT_EQ(settings.gsTopicName, u"ZOO");
    player.type(u"lion");
    EXPECT_EQ(settings.giGameState, kWon);
}

TEST_F(Journey, ThroughTheSettingsScreenForgetsTheSavedTopic) {
    saved.giSavedTopic = 1;
    addTopic(u"A\r\nONE\r\nTWO");
    addTopic(u"B\r\nTHREE\r\nFOUR");
    start();
    player.click("lblOption(7)");
    player.press('D');
    player.click("lblBack(0)");
    EXPECT_TRUE(settingsFile().ends_with("0\r\n\r\n"));
    player.click("lblOption(0)");
    EXPECT_EQ(settings.giTopicIndex, 0);
    EXPECT_TRUE(settings.gbHardScore);
}

TEST_F(Journey, KeepsScoreAndLibraryWhileFilesGo) {
    addTopic(u"A\r\nONE\r\nTWO");
    openArcade();
    deal();
    player.type(u"one");
    waitForScore();
    const int score = settings.giScore;
    std::filesystem::remove_all(run.folder / "Topics");
    std::filesystem::remove(run.folder / "Quillor-Config.ini");
    goBack();
    player.click("lblOption(0)");
    EXPECT_EQ(settings.giScore, score);
    deal();
    EXPECT_EQ(settings.gsPhrase, u"TWO");
}

TEST_F(Journey, TakesNoKeyAlongFromOneScreenToTheNext) {
    start();
    player.hold(u'i', 5);
    EXPECT_EQ(player.screen().name, "frmInventor");
    player.type(u"zoo");
    EXPECT_EQ(run.as<frmInventor>(ScreenId::Inventor).txtTheme.text(), u"zoo");
    player.holdKey(key::kBackspace, 9);
    EXPECT_EQ(player.screen().name, "frmInventor");
    player.press(key::kBackspace);
    EXPECT_EQ(player.screen().name, "frmMenu");
}

TEST_F(Journey, TypesNoKeyOnThatWasHeldAsTheMenuCame) {
    run.show(ScreenId::Start);
    player.hold(u'i', 5, [this] { desktop.advance(2000); });
    EXPECT_EQ(player.screen().name, "frmMenu");
}

TEST_F(Journey, StartsAnewFromAGameInPlay) {
    play(u"WORLD");
    settings.giScore = 5;
    desktop.answerQuestion(lang(texts::kLeaveGame), true);
    player.press(key::kF3);
    EXPECT_EQ(player.screen().name, "frmStart");
    desktop.advance(2000);
    EXPECT_EQ(player.screen().name, "frmMenu");
    EXPECT_EQ(settings.giScore, kFirstScore);
    EXPECT_EQ(settings.giGamesPlayed, 0);
}

TEST_F(Journey, LetsNothingReachTheGameBehindAnotherScreen) {
    addTopic(u"A\r\nONE\r\nTWO");
    openArcade();
    player.press(key::kReturn);
    ASSERT_EQ(player.screen().name, "frmWord2");
    for (const int code : {key::kF2, key::kF3, key::kReturn, int{'S'}}) {
        KeyEvent event{code, false, code == 'S', false, false};
        desktop.deliver([&] { game().keyDown(event); });
    }
    desktop.deliver([&] { game().choose(game().menu.mBack); });
    desktop.deliver([&] { game().closeRequest(); });
    EXPECT_EQ(player.screen().name, "frmWord2");
    EXPECT_TRUE(gameIsOpen());
    EXPECT_FALSE(desktop.ended);
    EXPECT_FALSE(settings.gbUseSounds);
}

TEST_F(Journey, ClassicAndArcadeShareOneRunButNotTheirPhrases) {
    addTopic(u"A\r\nONE\r\nTWO");
    playClassic(u"hola");
    player.type(u"hola");
    EXPECT_EQ(settings.giGameState, kWon);
    goBack();
    player.click("lblOption(0)");
    deal();
    EXPECT_EQ(settings.gsPhrase, u"ONE");
    EXPECT_EQ(settings.gsTopicName, u"A");
    EXPECT_EQ(settings.gsClassicTopic, u"(NO TOPIC)");
}

}  // namespace
}  // namespace quillor::testing
