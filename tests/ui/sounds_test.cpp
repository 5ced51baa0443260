// Which sound plays when, and the switch.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

using Ids = std::vector<int>;

class SoundsTest : public GameTest {
  protected:
    SoundsTest() { saved.gbUseSounds = true; }
    // The sounds of what was done just now.
    Ids heard() {
        desktop.advance(20);
        return std::exchange(desktop.playedSounds, {});
    }
};

TEST_F(SoundsTest, BeginWithANewGame) {
    play(u"WORLD");
    EXPECT_TRUE(desktop.playedSounds.empty());
    EXPECT_EQ(heard(), (Ids{102}));
}

TEST_F(SoundsTest, PlayTwentyMillisecondsLater) {
    play(u"WORLD");
    desktop.advance(19);
    EXPECT_TRUE(desktop.playedSounds.empty());
    desktop.advance(1);
    EXPECT_EQ(desktop.playedSounds, (Ids{102}));
}

TEST_F(SoundsTest, AnswerGoodAndBadLetters) {
    play(u"WORLD");
    heard();
    player.type(u"w");
    EXPECT_EQ(heard(), (Ids{106}));
    player.type(u"x");
    EXPECT_EQ(heard(), (Ids{104}));
}

TEST_F(SoundsTest, PassOverRepeatedLetters) {
    play(u"WORLD");
    player.type(u"wx");
    heard();
    player.type(u"wx");
    EXPECT_EQ(heard(), Ids{});
}

TEST_F(SoundsTest, TellDeathAndVictory) {
    saved.gbInfiniteScore = true;
    play(u"WORLD");
    loseGame();
    EXPECT_EQ(heard(), (Ids{103}));
    deal();
    heard();
    answer(settings.gsPhrase);
    EXPECT_EQ(heard(), (Ids{105}));
}

TEST_F(SoundsTest, TellNothingWhenAGameWithMistakesIsLeft) {
    saved.gbUseSounds = true;
    playClassic(u"BEE");
    player.type(u"xyz");
    desktop.advance(100);
    desktop.playedSounds.clear();
    desktop.answerQuestion(lang(texts::kLeaveGame), true);
    player.press(key::kReturn);
    desktop.advance(100);
    EXPECT_TRUE(desktop.playedSounds.empty());
}

TEST_F(SoundsTest, ReplaceOneAnotherBeforeTheyPlay) {
    play(u"WORLD");
    heard();
    player.type(u"wox");
    EXPECT_EQ(heard(), (Ids{104}));
}

TEST_F(SoundsTest, AreNotPlayedWhenOff) {
    saved.gbUseSounds = false;
    play(u"WORLD");
    player.type(u"wx");
    EXPECT_FALSE(game().sounds.tmrSound.enabled);
    EXPECT_EQ(heard(), Ids{});
    EXPECT_TRUE(Player::sees(game().figure.shpPrt1));
}

TEST_F(SoundsTest, AreNotMadeUpForWhenSwitchedOnLater) {
    saved.gbUseSounds = false;
    play(u"WORLD");
    player.type(u"wx");
    player.press('S', kControl);
    EXPECT_EQ(heard(), Ids{});
    player.type(u"o");
    EXPECT_EQ(heard(), (Ids{106}));
}

TEST_F(SoundsTest, WithoutImagesPlayNothingAndHarmNothing) {
    desktop.soundsCarried = false;
    play(u"WORLD");
    player.type(u"wx");
    EXPECT_EQ(heard(), Ids{});
    EXPECT_FALSE(game().sounds.tmrSound.enabled);
}

TEST_F(SoundsTest, AreSwitchedByTheLoudspeaker) {
    openArcade();
    EXPECT_EQ(game().sounds.lblWave(0).caption, u"U");
    EXPECT_EQ(game().sounds.lblWave(0).toolTip, u" Sounds on ");
    player.click("lblWave(0)");
    EXPECT_EQ(game().sounds.lblWave(0).caption, u"V");
    EXPECT_EQ(game().sounds.lblWave(0).toolTip, u" Sounds off ");
    EXPECT_FALSE(settings.gbUseSounds || game().menu.mWave.checked);
    EXPECT_FALSE(game().sounds.lblWave(0).checked);
}

TEST_F(SoundsTest, AreSwitchedInTheMenuAndSavedEachTime) {
    openArcade();
    player.chooseMenu("mWave");
    EXPECT_EQ(run.folder.read("Quillor-Config.ini").substr(0, 6), "0\r\n0\r\n");
    EXPECT_EQ(game().sounds.lblWave(0).caption, u"V");
    player.chooseMenu("mWave");
    EXPECT_EQ(run.folder.read("Quillor-Config.ini").substr(0, 6), "0\r\n1\r\n");
    EXPECT_EQ(game().sounds.lblWave(0).caption, u"U");
}

TEST_F(SoundsTest, SayInSpanishThatTheyAreOnEvenWhenOff) {
    english = false;
    openArcade();
    EXPECT_EQ(game().sounds.lblWave(0).toolTip, u" Sonidos activados ");
    player.click("lblWave(0)");
    EXPECT_EQ(game().sounds.lblWave(0).toolTip, u" Sonidos activados ");
}

TEST_F(SoundsTest, ShowThePressedLoudspeaker) {
    openArcade();
    player.mouseDown("lblWave(0)");
    EXPECT_EQ(game().sounds.lblWave(0).textColor, settings.glGrey);
    player.mouseUp("lblWave(0)");
    EXPECT_EQ(game().sounds.lblWave(0).textColor, settings.glWhite);
}

TEST_F(SoundsTest, ThatAreAskedForButPendingAreDroppedWithTheScreen) {
    play(u"WORLD");
    desktop.answerQuestion(texts::kLeaveGame.english, true);
    player.press(key::kF2);
    EXPECT_EQ(heard(), Ids{});
}

}  // namespace
}  // namespace quillor::testing
