// The inventor's fields, list and counter.
#include "app/menu_screen.h"
#include "tests/topics/topics_fixture.h"

namespace quillor::testing {
namespace {

class Inventor : public TopicsTest {
  protected:
    frmInventor& inventor() {
        show(ScreenId::Inventor);
        return as<frmInventor>(ScreenId::Inventor);
    }
    void typeInto(const char* field, TextView text) {
        player.clickInto(field, 99);
        player.type(text);
    }
    void add(TextView phrase) {
        typeInto("txtWord", phrase);
        player.press(key::kReturn);
    }
};

using Phrases = std::vector<Text>;

TEST_F(Inventor, IsInSpanish) {
    frmInventor& screen = inventor();
    EXPECT_EQ(screen.title, u"Quillor | Inventor");
    EXPECT_EQ(screen.lblLabel(1).caption, u"NOMBRE DEL TEMA");
    EXPECT_EQ(screen.lblBack.caption, u"ATRÁS");
    EXPECT_EQ(screen.lblSave(1).caption, u"GUARDAR Y CREAR");
    EXPECT_EQ(screen.lstTopics.toolTip, u" Presionar Intro para GUARDAR Y CREAR ");
}

TEST_F(Inventor, IsInEnglish) {
    settings().gbEnglish = true;
    frmInventor& screen = inventor();
    EXPECT_EQ(screen.title, u"Quillor | Inventor");
    EXPECT_EQ(screen.lblLabel(2).caption, u"FILE NAME");
    EXPECT_EQ(screen.lblSave(1).caption, u"SAVE && CREATE");
    EXPECT_EQ(screen.lblDel.toolTip, u" Delete from list ");
    EXPECT_EQ(screen.lblHelp.toolTip, u" Get some information ");
}

TEST_F(Inventor, StartsEmptyInTheTopicField) {
    frmInventor& screen = inventor();
    EXPECT_EQ(desktop.focusOf(screen), &screen.txtTheme);
    EXPECT_EQ(screen.lblCont.caption, u"00/50");
    EXPECT_FALSE(screen.lblSave(0).enabled);
    EXPECT_TRUE(screen.lblSave(1).enabled);
    EXPECT_EQ(screen.txtFile.backColor, rgb(224, 224, 224));
}

TEST_F(Inventor, NamesTheFileForTheTopicWithoutForbiddenCharacters) {
    frmInventor& screen = inventor();
    player.type(u"Mi tema: 1");
    EXPECT_EQ(screen.txtTheme.text(), u"Mi tema: 1");
    EXPECT_EQ(screen.txtFile.text(), u"MI TEMA 1");
}

TEST_F(Inventor, TakesForbiddenCharactersOutOfAPastedFileName) {
    frmInventor& screen = inventor();
    desktop.deliver([&] { screen.edit(screen.txtFile, u"a\\b/c:d*e?f\"g<h>i|j", 3, 0); });
    EXPECT_EQ(screen.txtFile.text(), u"abcdefghij");
}

TEST_F(Inventor, KeepsTheCaretOfAFileNameThatAForbiddenSignIsTypedInto) {
    frmInventor& screen = inventor();
    typeInto("txtFile", u"AVES");
    player.clickInto("txtFile", 2);
    player.type(u":");
    EXPECT_EQ(screen.txtFile.caret(), 2);
    player.type(u"X?Y");
    EXPECT_EQ(screen.txtFile.text(), u"AVXYES");
    EXPECT_EQ(screen.txtFile.caret(), 4);
}

TEST_F(Inventor, ShowsAReservedNameWithASignBehindIt) {
    frmInventor& screen = inventor();
    player.type(u"Con");
    EXPECT_EQ(screen.txtFile.text(), u"CON_");
    player.type(u"e");
    EXPECT_EQ(screen.txtFile.text(), u"CONE");
}

TEST_F(Inventor, ShowsAReservedNameThatWasTypedOnceItsFieldIsLeft) {
    frmInventor& screen = inventor();
    typeInto("txtFile", u"aux.1");
    EXPECT_EQ(screen.txtFile.text(), u"aux.1");
    typeInto("txtWord", u"");
    EXPECT_EQ(screen.txtFile.text(), u"aux_.1");
}

TEST_F(Inventor, NamesTheFileAnewWheneverTheTopicChanges) {
    frmInventor& screen = inventor();
    player.type(u"aves");
    typeInto("txtFile", u"-2");
    EXPECT_EQ(screen.txtFile.text(), u"AVES-2");
    typeInto("txtTheme", u"!");
    EXPECT_EQ(screen.txtFile.text(), u"AVES!");
}

TEST_F(Inventor, TakesTwentyTwoCharactersOfNamesAndThirtyFiveOfAPhrase) {
    frmInventor& screen = inventor();
    player.type(Text(23, u'a'));
    EXPECT_EQ(screen.txtTheme.text().size(), 22U);
    typeInto("txtFile", u"b");
    EXPECT_EQ(screen.txtFile.text().size(), 22U);
    typeInto("txtWord", Text(36, u'c'));
    EXPECT_EQ(screen.txtWord.text().size(), 35U);
}

TEST_F(Inventor, GoesToThePhraseOnReturnAndSelectsIt) {
    frmInventor& screen = inventor();
    typeInto("txtWord", u"viejo");
    typeInto("txtTheme", u"t");
    player.press(key::kReturn);
    EXPECT_EQ(desktop.focusOf(screen), &screen.txtWord);
    EXPECT_EQ(screen.txtWord.selectedText(), u"viejo");
}

TEST_F(Inventor, AddsAPhraseInCapitalsBehindABlank) {
    frmInventor& screen = inventor();
    add(u" casa roja ");
    EXPECT_EQ(screen.lstTopics.items, Phrases{u" CASA ROJA"});
    EXPECT_EQ(screen.lstTopics.listIndex(), 0);
    EXPECT_EQ(screen.txtWord.text(), u"");
    EXPECT_EQ(screen.lblCont.caption, u"01/50");
}

TEST_F(Inventor, AddsNothingOnReturnWithoutAPhrase) {
    frmInventor& screen = inventor();
    add(u"");
    add(u"   ");
    EXPECT_TRUE(screen.lstTopics.items.empty());
}

TEST_F(Inventor, AddsAnEmptyPhraseByItsButton) {
    frmInventor& screen = inventor();
    player.click("lblOk");
    EXPECT_EQ(screen.lstTopics.items, Phrases{u" "});
}

TEST_F(Inventor, CountsWithTwoDigitsAndPastFifty) {
    frmInventor& screen = inventor();
    for (int i = 0; i < 9; ++i)
        add(u"p");
    EXPECT_EQ(screen.lblCont.caption, u"09/50");
    for (int i = 9; i < 51; ++i)
        add(u"p");
    EXPECT_EQ(screen.lblCont.caption, u"51/50");
}

TEST_F(Inventor, LetsOnlyLettersDigitsAndBlanksIntoAPhrase) {
    frmInventor& screen = inventor();
    typeInto("txtWord", u" aÑü1!?.Z");
    EXPECT_EQ(screen.txtWord.text(), u" aÑü1Z");
}

TEST_F(Inventor, CanSaveOnceThereIsAPhraseAndAFileName) {
    frmInventor& screen = inventor();
    add(u"uno");
    EXPECT_FALSE(screen.lblSave(0).enabled);
    typeInto("txtTheme", u"t");
    EXPECT_TRUE(screen.lblSave(0).enabled);
    player.selectItem("lstTopics", 0);
    player.press(key::kDelete);
    EXPECT_FALSE(screen.lblSave(0).enabled);
    EXPECT_TRUE(screen.lblSave(1).enabled);
}

TEST_F(Inventor, DeletesTheSelectedPhrase) {
    frmInventor& screen = inventor();
    for (const TextView phrase : {u"uno", u"dos", u"tres"})
        add(phrase);
    player.selectItem("lstTopics", 1);
    player.click("lblDel");
    EXPECT_EQ(screen.lstTopics.items, (Phrases{u" UNO", u" TRES"}));
    EXPECT_EQ(screen.lblCont.caption, u"02/50");
    player.press(key::kDelete);
    player.press(key::kDelete);
    EXPECT_TRUE(screen.lstTopics.items.empty());
    EXPECT_EQ(screen.lblCont.caption, u"00/50");
}

TEST_F(Inventor, DeletesNothingWhenNothingIsSelected) {
    frmInventor& screen = inventor();
    player.click("lblDel");
    add(u"uno");
    desktop.deliver([&] { screen.selectItem(screen.lstTopics, -1); });
    player.click("lblDel");
    EXPECT_EQ(screen.lstTopics.items, Phrases{u" UNO"});
}

TEST_F(Inventor, ExplainsItselfInTwoBoxes) {
    settings().gbEnglish = true;
    inventor();
    for (int i = 0; i < 2; ++i) {
        desktop.expectMessage(
            u"The file name can be different from the topic name, but in this case they will be "
            u"almost identical.");
        desktop.expectMessage(
            u"You can return to Start if you use the 'back' key, you must be in 'Topic Name' at "
            u"the zero position.");
    }
    player.click("lblHelp");
    player.type(u"?");
    EXPECT_EQ(as<frmInventor>(ScreenId::Inventor).txtTheme.text(), u"");
}

TEST_F(Inventor, GoesBackToTheMenuWithItsPaper) {
    const auto paper = std::make_shared<FakeImage>("p");
    inventor().takePaper(paper);
    player.click("lblBack");
    EXPECT_EQ(program.find(ScreenId::Inventor), nullptr);
    ASSERT_EQ(player.screen().name, "frmMenu");
    EXPECT_EQ(dynamic_cast<frmMenu&>(player.screen()).imgBack.image, paper);
}

TEST_F(Inventor, GoesBackOnBackspaceAtTheStartOfTheTopicOnly) {
    frmInventor& screen = inventor();
    player.type(u"ab");
    player.press(key::kBackspace);
    EXPECT_EQ(screen.txtTheme.text(), u"a");
    player.clickInto("txtTheme", 0);
    player.press(key::kBackspace);
    EXPECT_EQ(player.screen().name, "frmMenu");
}

TEST_F(Inventor, DeletesASelectionThatStartsAtTheStart) {
    frmInventor& screen = inventor();
    player.type(u"abc");
    player.selectText("txtTheme", 0, 2);
    player.press(key::kBackspace);
    EXPECT_EQ(player.screen().name, "frmInventor");
    EXPECT_EQ(screen.txtTheme.text(), u"c");
}

TEST_F(Inventor, GoesBackWhenItsWindowIsClosed) {
    inventor();
    player.closeWindow();
    EXPECT_EQ(player.screen().name, "frmMenu");
    EXPECT_FALSE(desktop.ended);
}

TEST_F(Inventor, ShowsThatItsButtonsAreHeld) {
    frmInventor& screen = inventor();
    player.mouseDown("lblSave(1)");
    player.mouseDown("lblDel");
    EXPECT_EQ(screen.shpSave.backColor, rgb(30, 180, 30));
    EXPECT_EQ(screen.lblDel.textColor, rgb(200, 200, 200));
    player.mouseUp("lblSave(1)");
    player.mouseUp("lblDel");
    EXPECT_EQ(screen.shpSave.backColor, rgb(250, 30, 30));
    EXPECT_EQ(screen.lblDel.textColor, rgb(250, 250, 250));
}

}  // namespace
}  // namespace quillor::testing
