// The keys of the game screen, also where they must do nothing.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class GameKeysTest : public GameTest {
  protected:
    // Sends a key to the game screen itself, whatever stands over it.
    void pressOnGame(int code, bool control = false) {
        KeyEvent event;
        event.code = code;
        event.control = control;
        desktop.deliver([&] { game().keyDown(event); });
    }
};

TEST_F(GameKeysTest, OpenTheMenu) {
    openArcade();
    player.press(key::kContextMenu);
    EXPECT_EQ(desktop.popUps, (std::vector<std::string>{"mMenu"}));
}

TEST_F(GameKeysTest, SwitchTheSounds) {
    openArcade();
    player.press('S', kControl);
    EXPECT_TRUE(settings.gbUseSounds);
}

TEST_F(GameKeysTest, WithControlAreNoGuesses) {
    play(u"BEE");
    player.press('E', Modifiers{true, true, false, false});
    player.press('S', Modifiers{true, false, true, false});
    EXPECT_EQ(game().board.lblCont.caption, u"0/3");
    EXPECT_FALSE(settings.gbUseSounds);
}

TEST_F(GameKeysTest, SearchTheWebByTheQuestionMarkOnceOffered) {
    play(u"BEE");
    player.type(u"?");
    EXPECT_TRUE(desktop.openedAddresses.empty());
    player.type(u"be?");
    EXPECT_EQ(desktop.openedAddresses.size(), 1U);
}

TEST_F(GameKeysTest, DoNothingUnderTheSelectionScreen) {
    openArcade();
    player.press(key::kReturn);
    for (const int code : {key::kReturn, key::kF2, key::kF3, key::kContextMenu})
        pressOnGame(code);
    for (const int code : {u'E', u'A', u'S', u'L', u'O', u'M'})
        pressOnGame(code, true);
    EXPECT_EQ(player.screen().name, "frmWord2");
    EXPECT_TRUE(desktop.popUps.empty());
    EXPECT_FALSE(settings.gbUseSounds || settings.gbFirstLetter || settings.gbHiddenLetters);
    EXPECT_EQ(settings.giWay, kManual);
}

TEST_F(GameKeysTest, DoNothingUnderTheEntryScreen) {
    openClassic();
    player.press(key::kReturn);
    pressOnGame(key::kF2);
    pressOnGame('S', true);
    desktop.deliver([&] { game().keyPress(u'A'); });
    EXPECT_EQ(player.screen().name, "frmWord1");
    EXPECT_FALSE(settings.gbUseSounds);
}

TEST_F(GameKeysTest, AndMenuEntriesDoNothingUnderTheSelectionScreen) {
    openArcade();
    player.press(key::kReturn);
    for (MenuItem* item : {&game().menu.mBack, &game().menu.mReboot, &game().menu.mWave,
                           &game().menu.mColor, &game().menu.mDoWayAll(0)})
        desktop.deliver([&] { game().choose(*item); });
    desktop.deliver([&] { game().click(game().sounds.lblWave(0)); });
    desktop.deliver([&] { game().click(game().playButton.lblPlay(0)); });
    EXPECT_EQ(player.screen().name, "frmWord2");
    EXPECT_FALSE(settings.gbUseSounds || settings.gbColorTransition);
    EXPECT_EQ(settings.giWay, kManual);
}

TEST_F(GameKeysTest, WorkAgainAfterTheSelectionScreen) {
    openArcade();
    player.press(key::kReturn);
    player.press(key::kEscape);
    player.press('S', kControl);
    EXPECT_TRUE(settings.gbUseSounds);
}

TEST_F(GameKeysTest, GoBackToTheStart) {
    openArcade();
    player.press(key::kF2);
    EXPECT_EQ(player.screen().name, "frmMenu");
    EXPECT_FALSE(gameIsOpen());
}

TEST_F(GameKeysTest, RestartTheProgramsScreens) {
    openArcade();
    player.press(key::kF3);
    EXPECT_EQ(player.screen().name, "frmStart");
    EXPECT_FALSE(gameIsOpen());
    desktop.advance(2000);
    EXPECT_EQ(player.screen().name, "frmMenu");
}

}  // namespace
}  // namespace quillor::testing
