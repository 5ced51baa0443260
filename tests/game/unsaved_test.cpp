// What could not be saved is told in the tip line, and the game goes on.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

using Operation = FaultyDisk::Operation;

constexpr int kUntilTold = 4'100;  // ms: what the event itself shows stands before
constexpr int kWhileTold = 8'100;

class Unsaved : public GameTest {
  protected:
    Text tipLine() { return game().lblHey.caption; }

    // Told, seen for a while, said, and gone; without a box, which would have to be answered.
    void expectTold(const TextPair& what) {
        desktop.advance(kUntilTold);
        EXPECT_EQ(tipLine(), lang(what));
        EXPECT_EQ(game().lblSpoken.caption, lang(what));
        desktop.advance(kWhileTold);
        EXPECT_NE(tipLine(), lang(what));
    }

    // In an empty folder, on to the game.
    void startForTheFirstTime(Operation broken) {
        run.folder.write("English.txt", "");
        run.disk.breakDown(broken);
        run.show(ScreenId::Start);
        desktop.advance(2000);
        player.click("lblOption(0)");
    }
};

constexpr Modifiers kControl{.control = true};

class UnsavedSwitch : public Unsaved, public ::testing::WithParamInterface<Operation> {};

TEST_P(UnsavedSwitch, IsToldAfterTheSwitchItself) {
    openArcade();
    run.disk.breakDown(GetParam());
    player.press('S', kControl);
    EXPECT_TRUE(settings.gbUseSounds);
    EXPECT_TRUE(tipLine().starts_with(lang(texts::kSpokenSounds)));
    expectTold(texts::kSettingsUnsaved);
}

INSTANTIATE_TEST_SUITE_P(Operations, UnsavedSwitch,
                         ::testing::Values(Operation::Look, Operation::Create, Operation::Write,
                                           Operation::Flush, Operation::Close, Operation::Replace));

TEST_F(Unsaved, IsNothingWhereAllIsSaved) {
    play(u"ABC");
    loseGame();
    EXPECT_TRUE(run.program.unsaved.empty());
    const Text tip = tipLine();
    desktop.advance(kUntilTold);
    EXPECT_EQ(tipLine(), tip);
}

TEST_F(Unsaved, SettingsAreToldOnceTheNewGameHasHadItsTip) {
    english = false;
    addTopic(u"TEMA\r\nUNO\r\nDOS");
    openArcade();
    std::filesystem::remove(run.folder / "Quillor-Config.ini");
    run.disk.breakDown(Operation::Flush);
    deal();
    EXPECT_EQ(settings.giGameState, kPlaying);
    EXPECT_NE(tipLine(), lang(texts::kSettingsUnsaved));
    expectTold(texts::kSettingsUnsaved);
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(Unsaved, ProgressIsToldAfterTheGame) {
    play(u"ABC");
    run.disk.breakDown(Operation::Replace);
    loseGame();
    EXPECT_EQ(settings.giGameState, kDead);
    desktop.advance(2000);  // then it is kept
    expectTold(texts::kProgressUnsaved);
}

TEST_F(Unsaved, EachIsToldOnceAndOneAfterTheOther) {
    play(u"ABC");
    run.disk.breakDown(Operation::Create);
    player.press('S', kControl);
    player.press('S', kControl);
    player.press('S', kControl);
    loseGame();
    expectTold(texts::kSettingsUnsaved);
    EXPECT_EQ(tipLine(), lang(texts::kProgressUnsaved));
    desktop.advance(kWhileTold);
    EXPECT_TRUE(run.program.unsaved.empty());
}

TEST_F(Unsaved, SettingsOfTheirOwnScreenAreToldInTheGame) {
    start();
    player.click("lblOption(3)");
    run.disk.breakDown(Operation::Write);
    player.press('W');
    EXPECT_TRUE(settings.gbUseWikipedia);
    player.press(key::kBackspace);
    run.disk.mend();
    player.click("lblOption(0)");
    expectTold(texts::kSettingsUnsaved);
}

TEST_F(Unsaved, ProgressOfAGameThatWasLeftIsToldInTheNextOne) {
    play(u"ABC");
    player.type(u"X");
    run.disk.breakDown(Operation::Write);
    desktop.answerQuestion(lang(texts::kLeaveGame), true);
    player.press(key::kEscape);
    player.click("lblOption(0)");
    expectTold(texts::kProgressUnsaved);
}

TEST_F(Unsaved, TopicsAndSettingsOfAFirstStartAreTold) {
    startForTheFirstTime(Operation::Write);
    expectTold(texts::kTopicsUnsaved);
    EXPECT_EQ(tipLine(), lang(texts::kSettingsUnsaved));
}

TEST_F(Unsaved, TopicFolderThatCannotBeMadeIsTold) {
    startForTheFirstTime(Operation::MakeFolder);
    expectTold(texts::kTopicsUnsaved);
}

TEST_F(Unsaved, LinesAreNotLongerThanTips) {
    for (const TextPair* what :
         {&texts::kSettingsUnsaved, &texts::kProgressUnsaved, &texts::kTopicsUnsaved})
        for (const TextView line : {what->spanish, what->english})
            EXPECT_LE(line.size(), texts::kTips.at(1).english.size());
}

}  // namespace
}  // namespace quillor::testing
