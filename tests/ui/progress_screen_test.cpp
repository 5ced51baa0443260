// The page "Progress", and what playing leaves on it.
#include "core/progress.h"
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class ProgressTest : public GameTest {
  protected:
    frmProgress& page() { return run.as<frmProgress>(ScreenId::Progress); }
    bool isOpen() { return run.program.find(ScreenId::Progress) != nullptr; }
    void openPage() {
        desktop.chooseFromPopUp("mProgress");
        player.click("lblView");
    }
    static MenuItem& entry(const ProgramScreen& screen) {
        const auto& entries = screen.mView.children;
        return **std::ranges::find(entries, "mProgress", &MenuItem::id);
    }
    Progress kept() { return readProgress(run.folder.path()).value(); }
    std::string settingsBytes() { return run.folder.read("Quillor-Config.ini"); }
    int linesSeen() {
        return static_cast<int>(std::count_if(page().lnScore.begin(), page().lnScore.end(),
                                              [](const Line& line) { return line.visible; }));
    }
    void win(TextView letters) {
        player.type(letters);
        waitForScore();
    }
};

TEST_F(ProgressTest, ShowsWhatWasDone) {
    play(u"WORLD");
    win(u"XWORLD");
    openPage();
    EXPECT_EQ(page().title, u"Quillor | Progress");
    EXPECT_EQ(page().lblCount(0).caption, u"Games won: 1");
    EXPECT_EQ(page().lblCount(1).caption, u"Games lost: 0");
    EXPECT_EQ(page().lblCount(2).caption, u"Victories in a row: 1");
    EXPECT_EQ(page().lblCount(3).caption, u"Longest run of victories: 1");
    EXPECT_EQ(page().lblCount(5).caption, u"Letters tried: 6");
    EXPECT_EQ(page().lstTopics.items, std::vector<Text>{u"MY TOPIC: 1 of 2"});
}

TEST_F(ProgressTest, SpeaksSpanish) {
    english = false;
    play(u"MUNDO");
    win(u"MUNDO");
    openPage();
    EXPECT_EQ(page().lblHeading.caption, u"PROGRESO");
    EXPECT_EQ(page().lblCount(0).caption, u"Partidas ganadas: 1");
    EXPECT_EQ(page().lstTopics.items, std::vector<Text>{u"MY TOPIC: 1 de 2"});
}

TEST_F(ProgressTest, IsHeardOnceThePageIsSeen) {
    start();
    openPage();
    EXPECT_EQ(page().lblSpoken.caption, u"");
    desktop.advance(1000);
    EXPECT_TRUE(page().lblSpoken.caption.starts_with(u"Games won: 0. Games lost: 0. "));
    EXPECT_TRUE(page().lblSpoken.caption.ends_with(page().lblScores.caption));
}

TEST_F(ProgressTest, CountsLostGamesAndAnswers) {
    play(u"WORLD");
    answer(u"WRONG");
    waitForScore();
    EXPECT_EQ(kept().lost, 1);
    EXPECT_EQ(kept().answers, 1);
    EXPECT_EQ(kept().scores, std::vector<int>{settings.giScore});
    EXPECT_TRUE(kept().solved.empty());
}

TEST_F(ProgressTest, LeavesTheDiskAloneUntilTheEndingHasBeenSeen) {
    play(u"WORLD");
    player.type(u"WORLD");
    EXPECT_EQ(kept().won, 0);
    desktop.advance(2000);
    EXPECT_EQ(kept().won, 1);
    desktop.advance(60'000);
    EXPECT_EQ(kept().won, 1);
}

TEST_F(ProgressTest, ShowsAGameThatHasJustEnded) {
    play(u"WORLD");
    player.type(u"WORLD");
    openPage();
    EXPECT_EQ(page().lblCount(0).caption, u"Games won: 1");
}

TEST_F(ProgressTest, KeepsAGameThatHasJustEndedWhenTheProgramEnds) {
    play(u"WORLD");
    player.type(u"WORLD");
    run.program.end();
    EXPECT_EQ(kept().won, 1);
}

TEST_F(ProgressTest, CountsNoScoreAndTopicOfClassicGames) {
    playClassic(u"WORLD");
    win(u"WORLD");
    EXPECT_EQ(kept().won, 1);
    EXPECT_TRUE(kept().scores.empty());
    EXPECT_TRUE(kept().solved.empty());
}

TEST_F(ProgressTest, CountsNoScoreThatIsInfinite) {
    saved.gbInfiniteScore = true;
    play(u"WORLD");
    win(u"WORLD");
    EXPECT_TRUE(kept().scores.empty());
    EXPECT_EQ(kept().solved.size(), 1U);
}

TEST_F(ProgressTest, CountsTheTopicThatATourHasLeftByThen) {
    addTopic(u"A\r\nWORLD\r\nEARTH");
    addTopic(u"B\r\nONE\r\nTWO");
    saved.giWay = kTour;
    openArcade();
    settings.giWay = kTour;
    deal();
    win(u"WORLD");
    EXPECT_EQ(settings.giTopicIndex, 1);
    EXPECT_TRUE(kept().solved.at(u"A").contains(u"WORLD"));
}

TEST_F(ProgressTest, CountsATopicWhoseNameIsHidden) {
    addTopic(u"A\r\nWORLD\r\nEARTH");
    openArcade();
    settings.giWay = kHiddenTopic;
    deal();
    win(u"WORLDEARTH");
    EXPECT_EQ(kept().solved.at(u"A").size(), 1U);
}

TEST_F(ProgressTest, KeepsWhatWasTypedInAGameThatWasLeft) {
    play(u"WORLD");
    player.type(u"WO");
    desktop.answerQuestion(lang(texts::kLeaveGame), true);
    player.press(key::kF2);
    EXPECT_EQ(kept().letters, 2);
    EXPECT_EQ(kept().won + kept().lost, 0);
}

TEST_F(ProgressTest, DrawsALineThroughTheScores) {
    start();
    for (const int score : {1000, 2000, 500})
        addToProgress(run.folder.path(), {{true, 0, 0, score, {}, {}}});
    openPage();
    EXPECT_EQ(linesSeen(), 2);
    EXPECT_EQ(page().lblScores.caption, u"Score, arcade games: 3, from 1000 to 500");
    const Line& first = page().lnScore(1);
    const Line& second = page().lnScore(2);
    EXPECT_GT(first.y1, first.y2);
    EXPECT_LT(second.y1, second.y2);
    EXPECT_EQ(first.x2, second.x1);
    for (const Line* line : {&first, &second})
        EXPECT_TRUE(line->x1 >= page().shpChart.left && line->x2 <= page().shpChart.right() &&
                    line->y1 >= page().shpChart.top && line->y2 <= page().shpChart.bottom());
}

TEST_F(ProgressTest, LetsNoTitleTurnItsLineAround) {
    addTopic(u"\u202EEVIL\u2069\r\nONE\r\nTWO");
    addTopic(u"שלום\r\nONE\r\nTWO");
    openArcade();
    openPage();
    EXPECT_EQ(page().lstTopics.items,
              (std::vector<Text>{u"EVIL: 0 of 2", u"\u2068שלום\u2069: 0 of 2"}));
}

TEST_F(ProgressTest, DrawsFiftyScores) {
    start();
    for (int i = 0; i < 60; ++i)
        addToProgress(run.folder.path(), {{true, 0, 0, 0, {}, {}}});
    openPage();
    EXPECT_EQ(linesSeen(), 49);
}

TEST_F(ProgressTest, TellsOfASingleScoreByItselfAndDrawsADot) {
    start();
    openPage();
    EXPECT_EQ(linesSeen(), 0);
    player.press(key::kEscape);
    addToProgress(run.folder.path(), {{true, 0, 0, 1840, {}, {}}});
    openPage();
    EXPECT_EQ(page().lblScores.caption, u"Score, one arcade game: 1840");
    EXPECT_EQ(linesSeen(), 1);
    const Line& dot = page().lnScore(1);
    EXPECT_LT(dot.x2 - dot.x1, dot.thickness);
    EXPECT_EQ(dot.y1, dot.y2);
}

TEST_F(ProgressTest, IsEmptiedAfterAQuestion) {
    play(u"WORLD");
    win(u"WORLD");
    openPage();
    desktop.answerQuestion(lang(texts::kAskEmpty), false);
    player.click("lblEmpty");
    EXPECT_EQ(kept().won, 1);
    desktop.answerQuestion(lang(texts::kAskEmpty), true);
    player.click("lblEmpty");
    EXPECT_EQ(kept().won, 0);
    EXPECT_EQ(page().lblCount(0).caption, u"Games won: 0");
    EXPECT_EQ(page().lstTopics.items, std::vector<Text>{u"MY TOPIC: 0 of 2"});
}

TEST_F(ProgressTest, TellsWhereItCannotBeEmptied) {
    play(u"WORLD");
    win(u"WORLD");
    openPage();
    run.disk.breakDown(FaultyDisk::Operation::Replace);
    desktop.answerQuestion(lang(texts::kAskEmpty), true);
    desktop.expectCritical(lang(texts::kProgressUnsaved));
    player.click("lblEmpty");
    EXPECT_EQ(kept().won, 1);
    EXPECT_EQ(page().lblCount(0).caption, u"Games won: 1");
}

TEST_F(ProgressTest, LeadsBackToWhereItWasCalledFrom) {
    play(u"WORLD");
    win(u"WORLD");
    openPage();
    player.press(key::kEscape);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(player.screen().name, "frmGame");
    EXPECT_EQ(settings.giGameState, kWon);
}

TEST_F(ProgressTest, IsNotOfferedWhileAGameIsBeingPlayed) {
    play(u"WORLD");
    player.click("lblView");
    EXPECT_FALSE(entry(game()).enabled);
    player.type(u"WORLD");
    player.click("lblView");
    EXPECT_TRUE(entry(game()).enabled);
}

TEST_F(ProgressTest, IsNotOpenedDuringAGameByAnEntryThatWasShownBeforeIt) {
    play(u"WORLD");
    ASSERT_TRUE(entry(game()).enabled);
    desktop.deliver([this] { game().choose(entry(game())); });
    EXPECT_FALSE(isOpen());
}

TEST_F(ProgressTest, IsLeftByBackspaceAndItsButton) {
    start();
    openPage();
    player.press(key::kBackspace);
    EXPECT_EQ(player.screen().name, "frmMenu");
    openPage();
    player.click("lblBack");
    EXPECT_EQ(player.screen().name, "frmMenu");
}

TEST_F(ProgressTest, ChangesNeitherDealingNorScoreNorTheSettings) {
    play(u"WORLD");
    win(u"WORLD");
    const std::string before = settingsBytes();
    const std::int16_t score = settings.giScore;
    const int draws = desktop.seedings;
    openPage();
    desktop.answerQuestion(lang(texts::kAskEmpty), true);
    player.click("lblEmpty");
    player.press(key::kEscape);
    EXPECT_EQ(settingsBytes(), before);
    EXPECT_EQ(settings.giScore, score);
    EXPECT_EQ(desktop.seedings, draws);
    EXPECT_EQ(settings.gsLastPhrase, u"WORLD");
}

TEST_F(ProgressTest, ShowsNothingDoneWhereTheFileIsDamagedAndLeavesIt) {
    start();
    run.folder.write("Quillor-Progress.txt", "something else");
    openPage();
    EXPECT_EQ(page().lblCount(0).caption, u"Games won: 0");
    EXPECT_EQ(run.folder.read("Quillor-Progress.txt"), "something else");
}

TEST_F(ProgressTest, IsOfferedOnLargeScreensOnly) {
    openArcade();
    player.press(key::kReturn);
    player.click("lblView");
    EXPECT_FALSE(entry(run.as<frmWord2>(ScreenId::Word2)).enabled);
}

TEST_F(ProgressTest, StandsOnThePaperOfTheScreenBelow) {
    run.folder.write("Pic.jpg", "\xFF\xD8");
    start();
    openPage();
    EXPECT_NE(page().imgBack.image, nullptr);
}

}  // namespace
}  // namespace quillor::testing
