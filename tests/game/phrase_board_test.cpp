// The board: cells, underlines, counter and frame, from the first layout to
// the uncovering at the end.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class PhraseBoardTest : public GameTest {
  protected:
    PhraseBoard& board() { return game().board; }
    int underlines() {
        return static_cast<int>(std::count_if(board().lnLetter.begin(), board().lnLetter.end(),
                                              [](const Line& line) { return Player::sees(line); }));
    }
    int cellsSeen() {
        return static_cast<int>(
            std::count_if(board().lblLetter.begin(), board().lblLetter.end(),
                          [](const Label& cell) { return Player::sees(cell); }));
    }
    // As the board shows it: hidden letters as "_".
    Text shown() {
        Text text;
        for (int cell = 1; cell <= static_cast<int>(game().round.cells.size()); ++cell)
            text += !isLetter(game(), cell) ? Text(u" ")
                    : isFound(game(), cell) ? board().lblLetter(cell).caption
                                            : Text(u"_");
        return text;
    }
    int redCells() {
        return static_cast<int>(
            std::count_if(board().lblLetter.begin(), board().lblLetter.end(),
                          [this](const Label& cell) { return cell.textColor == settings.glRed; }));
    }
};

TEST_F(PhraseBoardTest, HasThreeRowsOfFourteenCells) {
    openArcade();
    for (int cell = 1; cell <= 42; ++cell) {
        const Label& label = board().lblLetter(cell);
        const Line& line = board().lnLetter(cell);
        const auto row = static_cast<Twips>((cell - 1) / 14);
        const auto column = static_cast<Twips>((cell - 1) % 14);
        EXPECT_EQ(label.left, 120 + 600 * column) << cell;
        EXPECT_EQ(label.top, 720 * row) << cell;
        EXPECT_EQ(label.width, 495);
        EXPECT_EQ(label.height, 495);
        EXPECT_EQ(line.x1, label.left);
        EXPECT_EQ(line.x2, label.left + 480);
        EXPECT_EQ(line.y1, label.top + 480);
        EXPECT_EQ(line.y2, line.y1);
        EXPECT_FALSE(label.visible || line.visible);
        EXPECT_EQ(label.font.face, Face::Display);
    }
}

TEST_F(PhraseBoardTest, UnderlinesEveryCharacterButTheBlank) {
    play(u"A B");
    EXPECT_EQ(game().round.blanks(), 1);
    EXPECT_EQ(board().lblCont.caption, u"0/2");
    EXPECT_TRUE(board().lnLetter(1).visible);
    EXPECT_FALSE(board().lnLetter(2).visible);
    EXPECT_TRUE(board().lnLetter(3).visible);
    EXPECT_EQ(cellsSeen(), 0);
}

TEST_F(PhraseBoardTest, CountsDigitsAsLetters) {
    play(u"ROUTE 66");
    EXPECT_EQ(board().lblCont.caption, u"0/7");
    EXPECT_EQ(underlines(), 7);
    player.type(u"6");
    EXPECT_EQ(board().lblCont.caption, u"2/7");
    EXPECT_EQ(shown(), u"_____ 66");
}

TEST_F(PhraseBoardTest, ShowsTheTopicAndKeepsAccentsInTheCells) {
    play(u"ÁRBOL");
    EXPECT_EQ(board().lblTopic.caption, u"MY TOPIC");
    EXPECT_EQ(board().lblLetter(1).caption, u"Á");
}

TEST_F(PhraseBoardTest, FramesOneWordOfFiveLetters) {
    play(u"WORLD");
    const Label& last = board().lblLetter(5);
    EXPECT_EQ(board().frmeMagic.width, last.right());
    EXPECT_EQ(board().frmeMagic.height, last.bottom() + board().lblCont.height);
    EXPECT_EQ(board().lblCont.caption, u"0/5");
    EXPECT_EQ(board().lblCont.right(), last.right());
    EXPECT_EQ(board().lblCont.top, last.bottom());
    EXPECT_TRUE(Player::sees(board().lblCont));
}

TEST_F(PhraseBoardTest, FillsTheFirstRowWithFourteenCharacters) {
    play(u"WASHINGMACHINE");
    EXPECT_EQ(board().frmeMagic.width, board().lblLetter(14).right());
    EXPECT_EQ(board().frmeMagic.height, board().lblLetter(14).bottom() + board().lblCont.height);
}

TEST_F(PhraseBoardTest, StartsTheSecondRowAtTheFifteenthCharacter) {
    play(u"WASHINGMACHINES");
    EXPECT_TRUE(board().lnLetter(15).visible);
    EXPECT_EQ(board().lblLetter(15).left, 120);
    EXPECT_EQ(board().lblCont.top, board().lblLetter(15).bottom());
    EXPECT_EQ(board().lblCont.right(), board().lblLetter(15).right());
    EXPECT_EQ(board().frmeMagic.width, board().lblLetter(14).right());
}

TEST_F(PhraseBoardTest, BreaksBetweenWords) {
    play(u"WASHING MACHINE");
    EXPECT_EQ(settings.gsShownPhrase, u"WASHING       MACHINE");
    EXPECT_EQ(game().round.blanks(), 7);
    EXPECT_EQ(board().lblCont.caption, u"0/14");
    EXPECT_EQ(board().lblLetter(15).caption, u"M");
    EXPECT_EQ(board().frmeMagic.width, board().lblLetter(7).right());
}

TEST_F(PhraseBoardTest, PutsNoBlankBehindARowThatIsExactlyFull) {
    play(u"FRIED CHICKENS NOW");
    EXPECT_EQ(board().lblLetter(14).caption, u"S");
    EXPECT_EQ(board().lblLetter(15).caption, u"N");
    EXPECT_EQ(board().lblCont.caption, u"0/16");
    answer(u"fried chickens now");
    EXPECT_EQ(settings.giGameState, kWon);
}

TEST_F(PhraseBoardTest, IsSpelledWithAGapBetweenAllWords) {
    play(u"FRIED CHICKENS NOW");
    EXPECT_TRUE(game().lblSpoken.caption.ends_with(u"_ _ _ _ _ , _ _ _ _ _ _ _ _ , _ _ _ "));
    player.type(u"n");
    EXPECT_TRUE(game().lblSpoken.caption.ends_with(u"_ _ _ _ _ , _ _ _ _ _ _ N _ , N _ _ "));
}

TEST_F(PhraseBoardTest, ShowsSignsOfTopicAndPhraseAsTheyStand) {
    addTopic(u"R&B && 100%S\r\nA&B\r\nC&&D");
    openArcade();
    deal();
    EXPECT_EQ(board().lblTopic.caption, u"R&B && 100%S");
    EXPECT_TRUE(board().lblTopic.literal);
    EXPECT_TRUE(board().lblLetter(2).literal);
}

TEST_F(PhraseBoardTest, StandsALittleLeftOfTheMiddle) {
    play(u"WORLD");
    const Shape& area = board().shpLimit;
    const Frame& frame = board().frmeMagic;
    EXPECT_FLOAT_EQ(frame.top, area.top + area.height / 2 - frame.height / 2);
    EXPECT_FLOAT_EQ(frame.left, (area.width / 2 - frame.width / 2) * 0.8F + area.left - 120);
    EXPECT_EQ(game().imgBack(2).left, -frame.left);
    EXPECT_EQ(game().imgBack(2).top, -frame.top);
}

TEST_F(PhraseBoardTest, GrowsAndShrinksFromPhraseToPhrase) {
    addTopic(u"T\r\nWASHINGMACHINES\r\nTWO");
    openArcade();
    deal();
    const Twips wide = board().frmeMagic.width;
    player.type(u"WASHINGMCE");
    deal();
    EXPECT_EQ(settings.gsPhrase, u"TWO");
    EXPECT_LT(board().frmeMagic.width, wide);
    EXPECT_EQ(board().frmeMagic.height, board().lblLetter(3).bottom() + board().lblCont.height);
    EXPECT_EQ(underlines(), 3);
}

TEST_F(PhraseBoardTest, HidesTheLettersThemselvesBehindQuestionMarks) {
    saved.gbHiddenLetters = true;
    play(u"A BEE");
    for (const int cell : {1, 3, 4, 5})
        EXPECT_EQ(board().lblLetter(cell).caption, u"?") << cell;
    EXPECT_EQ(board().lblLetter(2).caption, u" ");
    player.type(u"E");
    EXPECT_EQ(shown(), u"_ _??");
    player.type(u"AB");
    EXPECT_EQ(shown(), u"A BEE");
}

TEST_F(PhraseBoardTest, ShowsRealCharactersAfterADeathWithHiddenLetters) {
    saved.gbHiddenLetters = true;
    play(u"CAFÉ");
    player.type(u"C");
    answer(u"WRONG");
    EXPECT_EQ(shown(), u"CAFÉ");
}

TEST_F(PhraseBoardTest, ShowsUnfoundLettersInRedAfterADeath) {
    play(u"A BEE");
    player.type(u"E");
    answer(u"WRONG");
    EXPECT_EQ(shown(), u"A BEE");
    EXPECT_EQ(board().lblLetter(1).textColor, settings.glRed);
    EXPECT_EQ(board().lblLetter(3).textColor, settings.glRed);
    EXPECT_EQ(board().lblLetter(4).textColor, settings.glDesignColor);
    EXPECT_EQ(board().lblLetter(5).textColor, settings.glDesignColor);
    EXPECT_FALSE(Player::sees(board().lblLetter(2)));
}

TEST_F(PhraseBoardTest, TurnsNothingRedAfterAVictory) {
    play(u"A BEE");
    player.type(u"E");
    answer(u"A BEE");
    EXPECT_EQ(shown(), u"A BEE");
    EXPECT_EQ(redCells(), 0);
}

TEST_F(PhraseBoardTest, GivesTheFirstLetterWithThatOption) {
    saved.gbFirstLetter = true;
    play(u"BEE");
    EXPECT_EQ(shown(), u"B__");
    EXPECT_EQ(board().lblCont.caption, u"1/3");
}

TEST_F(PhraseBoardTest, IsEmptyBetweenGames) {
    play(u"A BEE");
    player.type(u"E");
    answer(u"WRONG");
    player.press(key::kReturn);
    EXPECT_EQ(cellsSeen() + underlines(), 0);
    EXPECT_EQ(redCells(), 0);
    EXPECT_EQ(board().lblLetter(1).caption, u"");
    EXPECT_FALSE(board().lblCont.visible);
    EXPECT_EQ(board().lblTopic.caption, u"(TOPIC)");
}

}  // namespace
}  // namespace quillor::testing
