// The further menu of every screen, and the keys that mean the same everywhere.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

constexpr Modifiers kAlt{false, false, true, false};

class ViewMenu : public GameTest {
  protected:
    std::string front() { return player.screen().name; }
    /// The ids of the entries, "-" before one that cannot be chosen.
    std::vector<std::string> entries() {
        std::vector<std::string> found;
        for (const MenuItem* item : dynamic_cast<ProgramScreen&>(player.screen()).mView.children)
            found.push_back(item->enabled ? item->id : "-" + item->id);
        return found;
    }
    void openSettings() {
        start();
        player.type(u"s");
    }
    void openInventor() {
        start();
        player.type(u"i");
    }
};

TEST_F(ViewMenu, OpensBelowItsButtonByMouseAndByKeys) {
    start();
    player.click("lblView");
    EXPECT_EQ(desktop.popUpUnder->id, "lblView");
    player.press(key::kF10);
    player.pressAccessKey(u'v');
    EXPECT_EQ(desktop.popUps, (std::vector<std::string>{"mView", "mView", "mView"}));
}

TEST_F(ViewMenu, LeavesF10ToTheGamesOwnMenu) {
    openArcade();
    player.press(key::kF10);
    player.pressAccessKey(u'v');
    EXPECT_EQ(desktop.popUps, (std::vector<std::string>{"mMenu", "mView"}));
}

TEST_F(ViewMenu, SwitchesFullScreenAndShowsWhetherItIsOn) {
    start();
    desktop.chooseFromPopUp("mFullScreen");
    player.click("lblView");
    EXPECT_TRUE(desktop.fullScreen);
    player.click("lblView");
    EXPECT_TRUE(dynamic_cast<ProgramScreen&>(player.screen()).mView.children.front()->checked);
}

TEST_F(ViewMenu, SpeaksTheOtherLanguageOnceThePlayerAgrees) {
    start();
    desktop.answerQuestion(texts::kAskLanguage.english, false);
    desktop.chooseFromPopUp("mLanguage");
    player.click("lblView");
    EXPECT_TRUE(settings.gbEnglish);
    desktop.answerQuestion(texts::kAskLanguage.english, true);
    desktop.chooseFromPopUp("mLanguage");
    player.click("lblView");
    desktop.advance(2000);
    EXPECT_FALSE(settings.gbEnglish);
    EXPECT_FALSE(run.folder.has("English.txt"));
    EXPECT_EQ(player.screen().title, texts::kMenuTitle.spanish);
}

TEST_F(ViewMenu, TellsWhereTheLanguageCannotBeKept) {
    english = false;
    openArcade();
    run.disk.breakDown(FaultyDisk::Operation::Create);
    desktop.answerQuestion(texts::kAskLanguage.spanish, true);
    desktop.expectCritical(lang(texts::kLanguageStays));
    desktop.chooseFromPopUp("mLanguage");
    player.click("lblView");
    EXPECT_FALSE(settings.gbEnglish);
    EXPECT_EQ(front(), "frmGame");
}

TEST_F(ViewMenu, TellsWhereTheLanguageCannotBeTakenAway) {
    start();
    run.disk.breakDown(FaultyDisk::Operation::Remove);
    desktop.answerQuestion(texts::kAskLanguage.english, true);
    desktop.expectCritical(lang(texts::kLanguageStays));
    desktop.chooseFromPopUp("mLanguage");
    player.click("lblView");
    EXPECT_TRUE(settings.gbEnglish);
}

TEST_F(ViewMenu, ClosesTheGameWithWhatStandsOverItForAnotherLanguage) {
    addTopic(u"A\r\nONE\r\nTWO");
    openArcade();
    player.press(key::kReturn);
    desktop.answerQuestion(texts::kAskLanguage.english, true);
    desktop.chooseFromPopUp("mLanguage");
    player.click("lblView");
    desktop.advance(2000);
    EXPECT_EQ(front(), "frmMenu");
    EXPECT_FALSE(gameIsOpen());
}

TEST_F(ViewMenu, SwitchesFullScreenByBothKeysEvenInAList) {
    addTopic(u"A\r\nONE\r\nTWO");
    openArcade();
    player.press(key::kReturn);
    ASSERT_EQ(front(), "frmWord2");
    player.press(key::kF11);
    EXPECT_TRUE(desktop.fullScreen);
    player.press(key::kReturn, kAlt);
    EXPECT_FALSE(desktop.fullScreen);
    EXPECT_EQ(front(), "frmWord2");
}

TEST_F(ViewMenu, TakesAltReturnForNoCommandOfTheGame) {
    openArcade();
    player.press(key::kReturn, kAlt);
    EXPECT_TRUE(desktop.fullScreen);
    EXPECT_EQ(front(), "frmGame");
}

TEST_F(ViewMenu, LeavesFullScreenByEscapeBeforeItGoesBack) {
    openSettings();
    player.press(key::kF11);
    player.press(key::kEscape);
    EXPECT_FALSE(desktop.fullScreen);
    EXPECT_EQ(front(), "frmOptions");
    player.press(key::kEscape);
    EXPECT_EQ(front(), "frmMenu");
    player.press(key::kEscape);
    EXPECT_EQ(front(), "frmMenu");
}

TEST_F(ViewMenu, GoesBackByEscapeFromAGameAsF2Does) {
    play(u"WORLD");
    desktop.answerQuestion(lang(texts::kLeaveGame), false);
    player.press(key::kEscape);
    EXPECT_EQ(front(), "frmGame");
    desktop.answerQuestion(lang(texts::kLeaveGame), true);
    player.press(key::kEscape);
    EXPECT_EQ(front(), "frmMenu");
}

TEST_F(ViewMenu, AsksBeforeEscapeLosesAnInventedTopic) {
    openInventor();
    player.clickInto("txtWord", 0);
    player.type(u"lion");
    player.press(key::kReturn);
    desktop.answerQuestion(lang(texts::kLoseTopic), false);
    player.press(key::kEscape);
    EXPECT_EQ(front(), "frmInventor");
}

TEST_F(ViewMenu, GoesBackByEscapeFromAnEmptyInventorAtOnce) {
    openInventor();
    player.press(key::kEscape);
    EXPECT_EQ(front(), "frmMenu");
}

TEST_F(ViewMenu, OpensTheManualByF1) {
    run.folder.write("Quillor-Manual.txt", "help");
    start();
    player.press(key::kF1);
    EXPECT_EQ(desktop.openedFiles.size(), 1U);
}

TEST_F(ViewMenu, OpensTheInventorsOwnHelpByF1) {
    openInventor();
    expectBox(texts::kFileNameHelp);
    expectBox(texts::kBackHelp);
    player.press(key::kF1);
}

TEST_F(ViewMenu, ShowsTheKeysOfTheScreenAndThoseOfAll) {
    start();
    desktop.expectMessage(lang(texts::kKeysMenu) + u"\r\n" + lang(texts::kKeysEverywhere));
    desktop.chooseFromPopUp("mKeys");
    player.click("lblView");
}

TEST_F(ViewMenu, EndsTheProgramByControlQ) {
    start();
    player.press('Q', kControl);
    EXPECT_TRUE(desktop.ended);
}

TEST_F(ViewMenu, AsksBeforeControlQLosesAGame) {
    play(u"WORLD");
    desktop.answerQuestion(lang(texts::kLeaveGame), false);
    player.press('Q', kControl);
    EXPECT_FALSE(desktop.ended);
    desktop.answerQuestion(lang(texts::kLeaveGame), true);
    player.press('Q', kControl);
    EXPECT_TRUE(desktop.ended);
}

TEST_F(ViewMenu, ClosesAScreenThatHasAWayBackByControlQAsItsCloseButtonDoes) {
    openSettings();
    player.press('Q', kControl);
    EXPECT_EQ(front(), "frmMenu");
    EXPECT_FALSE(desktop.ended);
}

TEST_F(ViewMenu, TakesFurtherEntriesForEveryScreen) {
    std::string ranOn;
    run.program.viewEntries.push_back(
        {"mMore",
         {u"Más", u"More"},
         {'K', true},
         {},
         [&](ProgramScreen& screen) { ranOn = screen.name; },
         {},
         [](const ProgramScreen& screen) { return screen.name == "frmMenu"; }});
    start();
    player.press('K', kControl);
    EXPECT_EQ(ranOn, "frmMenu");
    player.type(u"s");
    player.click("lblView");
    EXPECT_EQ(entries().back(), "-mMore");
    player.press('K', kControl);
    EXPECT_EQ(ranOn, "frmMenu");
}

TEST_F(ViewMenu, NamesItsKeys) {
    EXPECT_EQ(shortcutText({key::kF11}), u"F11");
    EXPECT_EQ(shortcutText({'Q', true}), u"Ctrl+Q");
    EXPECT_EQ(shortcutText({key::kReturn, false, true}).substr(0, 4), u"Alt+");
    EXPECT_EQ(shortcutText({}), u"");
}

}  // namespace
}  // namespace quillor::testing
