// The hanged man: a piece a mistake, and the drop at the end.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class FigureTest : public GameTest {
  protected:
    Figure& figure() { return game().figure; }
    // How many groups of pieces show, the head first; fails on a gap.
    int groups() {
        const std::vector<const Control*> inOrder{&figure().shpPrt1, &figure().shpPrt2,
                                                  &figure().shpPrt3, &figure().shpPrt4,
                                                  &figure().shpPrt5, &figure().shpPrt6};
        const auto hidden = std::find_if(inOrder.begin(), inOrder.end(), [](const Control* piece) {
            return !Player::sees(*piece);
        });
        EXPECT_TRUE(std::none_of(hidden, inOrder.end(),
                                 [](const Control* piece) { return Player::sees(*piece); }));
        return static_cast<int>(hidden - inOrder.begin());
    }
    void expectAtRest() {
        EXPECT_EQ(figure().lnNeck.y1, 1440);
        EXPECT_EQ(figure().lnNeck.y2, 1440);
        EXPECT_EQ(figure().shpPrt0.caption, u"- -");
        EXPECT_EQ(figure().shpPrt0.font.size, 16);
        EXPECT_EQ(figure().shpPrt0.font.face, Face::Comic);
        EXPECT_EQ(figure().shpPrt0.top, 940);
        EXPECT_EQ(figure().shpPrt1.top, 840);
        EXPECT_EQ(figure().shpPrt2.top, 1440);
        expectLimb(figure().shpPrt3, 1560, 2520, 840);
        expectLimb(figure().shpPrt4, 1560, 2520, 1560);
        expectLimb(figure().shpPrt5, 2340, 3360, 1080);
        expectLimb(figure().shpPrt6, 2340, 3360, 1320);
        EXPECT_EQ(figure().shpPrt7.top, 3360);
        EXPECT_FALSE(figure().shpPrt6.visible);
    }
    static void expectLimb(const Line& limb, Twips y1, Twips y2, Twips x2) {
        EXPECT_EQ(limb.y1, y1) << limb.id;
        EXPECT_EQ(limb.y2, y2) << limb.id;
        EXPECT_EQ(limb.x2, x2) << limb.id;
    }
    void expectDropped() {
        EXPECT_EQ(figure().shpPrt0.caption, u"x x");
        EXPECT_EQ(figure().shpPrt0.font.size, 14);
        EXPECT_EQ(figure().shpPrt0.top, 1030);
        EXPECT_EQ(figure().shpPrt1.top, 900);
        EXPECT_EQ(figure().shpPrt2.top, 1500);
        EXPECT_EQ(figure().lnNeck.y1, 1500);
        expectLimb(figure().shpPrt3, 1620, 2580, 1080);
        expectLimb(figure().shpPrt4, 1620, 2580, 1320);
        expectLimb(figure().shpPrt5, 2400, 3420, 1140);
        expectLimb(figure().shpPrt6, 2400, 3420, 1260);
        EXPECT_EQ(figure().shpPrt7.top, 3720);
        EXPECT_EQ(groups(), 6);
    }
};

TEST_F(FigureTest, RestsAtFirst) {
    openArcade();
    expectAtRest();
    EXPECT_EQ(groups(), 0);
    for (const Control* wood : std::initializer_list<const Control*>{
             &figure().lnStick1, &figure().lnStick2, &figure().lnStick3, &figure().lnRope,
             &figure().shpPrt7})
        EXPECT_TRUE(Player::sees(*wood)) << wood->id;
    EXPECT_FALSE(Player::sees(figure().shpPrt0) || Player::sees(figure().lnNeck));
}

TEST_F(FigureTest, GainsAPieceWithEachMistake) {
    play(u"WORLD");
    for (int mistake = 1; mistake <= 5; ++mistake) {
        player.type(Text(1, u"XYZABC"[mistake - 1]));
        EXPECT_EQ(groups(), mistake);
    }
    EXPECT_TRUE(Player::sees(figure().shpPrt0) && Player::sees(figure().lnNeck));
    expectAtRest();
}

TEST_F(FigureTest, IsHangedByTheLastMistake) {
    play(u"WORLD");
    loseGame();
    EXPECT_EQ(groups(), 6);
    EXPECT_EQ(settings.giGameState, kDead);
    EXPECT_EQ(figure().shpPrt0.caption, u"- -");
}

TEST_F(FigureTest, DropsATenthOfASecondLater) {
    play(u"WORLD");
    loseGame();
    desktop.advance(99);
    EXPECT_EQ(figure().shpPrt7.top, 3360);
    desktop.advance(1);
    expectDropped();
}

TEST_F(FigureTest, DropsOnlyOnce) {
    play(u"WORLD");
    loseGame();
    desktop.advance(10'000);
    expectDropped();
}

TEST_F(FigureTest, IsDrawnWholeAfterAWrongAnswer) {
    play(u"WORLD");
    answer(u"x");
    EXPECT_EQ(groups(), 0);
    desktop.advance(100);
    expectDropped();
    EXPECT_TRUE(Player::sees(figure().shpPrt0) && Player::sees(figure().lnNeck));
}

TEST_F(FigureTest, RestsAgainInTheNextGame) {
    play(u"WORLD");
    player.type(u"wor");
    loseGame();
    waitForScore();
    deal();
    expectAtRest();
    EXPECT_EQ(groups(), 0);
    EXPECT_FALSE(Player::sees(figure().shpPrt0) || Player::sees(figure().lnNeck));
}

TEST_F(FigureTest, DropsAgainFromRestInALaterGame) {
    saved.gbInfiniteScore = true;
    play(u"WORLD");
    answer(u"x");
    waitForScore();
    deal();
    answer(u"x");
    desktop.advance(100);
    expectDropped();
}

TEST_F(FigureTest, IsSparedTheDropStillToComeByTheNextGame) {
    saved.gbInfiniteScore = true;
    play(u"WORLD");
    answer(u"x");
    desktop.advance(50);
    deal();
    desktop.advance(1'000);
    expectAtRest();
    EXPECT_EQ(groups(), 0);
}

TEST_F(FigureTest, StaysWhenTheGameIsWon) {
    play(u"WORLD");
    player.type(u"xyworld");
    desktop.advance(1'000);
    EXPECT_EQ(groups(), 2);
    expectAtRest();
}

TEST_F(FigureTest, WithoutStrikesLeavesTheSecondLegAsItIs) {
    openArcade();
    figure().shpPrt6.visible = true;
    figure().ePutItHangman(0);
    EXPECT_TRUE(figure().shpPrt6.visible);
    EXPECT_FALSE(figure().shpPrt5.visible);
    EXPECT_FALSE(game().sounds.tmrSound.enabled);
}

TEST_F(FigureTest, SoundsOnceForThreePieces) {
    saved.gbUseSounds = true;
    play(u"WORLD");
    desktop.advance(100);
    player.type(u"xy");
    desktop.advance(100);
    desktop.playedSounds.clear();
    player.type(u"z");
    desktop.advance(100);
    EXPECT_EQ(desktop.playedSounds, (std::vector<int>{104}));
    EXPECT_EQ(groups(), 3);
}

}  // namespace
}  // namespace quillor::testing
