// What moves on the game screen, and what does not where the player wants no motion.
#include "app/start_screen.h"
#include "tests/support/game_test.h"
#include "ui/colors.h"

namespace quillor::testing {
namespace {

class Motions : public GameTest {
  protected:
    Motions() { saved.gbFirstLetter = false; }

    void lose() {
        for (const char16_t wrong : {u'X', u'Y', u'Z', u'W', u'V', u'K'})
            player.type(Text(1, wrong));
    }
};

TEST_F(Motions, AFoundLetterComesIntoItsPlace) {
    play(u"CASA ROJA");
    player.type(u"A");
    EXPECT_EQ(game().board.lblLetter(2).motions, 1);
    EXPECT_EQ(game().board.lblLetter(4).motion, Motion::Appear);
    EXPECT_EQ(game().board.lblLetter(1).motions, 0);
    player.type(u"C");
    EXPECT_EQ(game().board.lblLetter(2).motions, 1);
}

TEST_F(Motions, AWrongLetterShakesItsBoxAlone) {
    play(u"CASA ROJA");
    player.type(u"X");
    EXPECT_EQ(game().strikes.lblStrike(0).motion, Motion::Shake);
    player.type(u"Y");
    EXPECT_EQ(game().strikes.lblStrike(0).motions, 1);
    EXPECT_EQ(game().strikes.lblStrike(1).motions, 1);
    EXPECT_EQ(game().strikes.lblStrike(2).motions, 0);
}

TEST_F(Motions, LettersThatWereNotFoundDifferByTheirLinesToo) {
    play(u"CASA ROJA");
    const Line plain = game().board.lnLetter(1);
    player.type(u"A");
    lose();
    EXPECT_EQ(game().board.lnLetter(2).thickness, plain.thickness);
    EXPECT_GT(game().board.lnLetter(1).thickness, 2 * plain.thickness);
    EXPECT_EQ(game().board.lblLetter(1).motions, 0);
    waitForScore();
    deal();
    EXPECT_EQ(game().board.lnLetter(1).thickness, plain.thickness);
    EXPECT_EQ(game().board.lnLetter(1).color, plain.color);
}

class NoMotion : public Motions {
  protected:
    NoMotion() { desktop.asked.reducedMotion = true; }
};

TEST_F(NoMotion, ThePointsStandStillAndAreAddedAtOnce) {
    play(u"CASA ROJA");
    const Twips top = game().score.lblPoints.top;
    lose();
    desktop.advance(500);
    EXPECT_EQ(game().score.lblPoints.top, top);
    EXPECT_TRUE(game().score.lblPoints.visible);
    desktop.advance(1500);
    EXPECT_FALSE(game().score.lblPoints.visible);
    EXPECT_EQ(settings.giScore, settings.giScoreShown);
}

TEST_F(NoMotion, NothingPulses) {
    saved.gbColorTransition = true;
    play(u"CASA ROJA");
    settings.giScore = 400;
    desktop.advance(1000);
    const Text status = game().status.lblStatus.caption;
    const Color score = game().score.lblScore.textColor;
    const Color accent = game().accent.color();
    for (int i = 0; i < 20; ++i) {
        desktop.advance(150);
        EXPECT_EQ(game().status.lblStatus.caption, status);
        EXPECT_EQ(game().score.lblScore.textColor, score);
        EXPECT_EQ(game().accent.color(), accent);
    }
}

TEST_F(NoMotion, TheStartScreenIsThereAtOnce) {
    run.show(ScreenId::Start);
    desktop.advance(20);
    const auto& start = run.as<frmStart>(ScreenId::Start);
    EXPECT_EQ(start.lblSub.left, 4470);
    EXPECT_GE(start.lnGo.x2, 5800);
    desktop.advance(20);
    EXPECT_EQ(player.screen().name, "frmMenu");
}

}  // namespace
}  // namespace quillor::testing
