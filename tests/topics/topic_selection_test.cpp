// The topic selection screen: its list, its modes and its keys.
#include "tests/topics/topics_fixture.h"

namespace quillor::testing {
namespace {

class Selection : public TopicsTest {
  protected:
    Selection() {
        addTopic({u"AVES [ESPAÑOL]", u"LORO", u"GALLO"});
        addTopic({u"RÍOS", u"EBRO", u"TAJO", u"DUERO"});
        addTopic({u"[ESPAÑOL]", u"UNO", u"DOS"});
    }
    frmWord2& selection() { return open<frmWord2>(ScreenId::Word2); }
    bool isOpen() const { return program.find(ScreenId::Word2) != nullptr; }
};

TEST_F(Selection, IsInSpanish) {
    frmWord2& screen = selection();
    EXPECT_EQ(screen.title, u"Seleccione un tema:");
    EXPECT_EQ(screen.lblSelect.caption, u"SELECCIÓN");
    EXPECT_EQ(screen.lstTopics.toolTip, u" Temas cargados en el juego ");
    EXPECT_EQ(screen.lblOk(1).caption, u"ACEPTAR");
}

TEST_F(Selection, IsInEnglish) {
    settings().gbEnglish = true;
    frmWord2& screen = selection();
    EXPECT_EQ(screen.title, u"Select a topic:");
    EXPECT_EQ(screen.lblSelect.caption, u"SELECTION:");
    EXPECT_EQ(screen.lstTopics.toolTip, u"Topics loaded into the game");
    EXPECT_EQ(screen.lblChng(0).toolTip, u" Cambiar modo de selección ");
    EXPECT_EQ(screen.lblOk(1).caption, u"OK");
}

TEST_F(Selection, ListsTitlesWithoutTheTagBehindABlank) {
    EXPECT_EQ(selection().lstTopics.items, (std::vector<Text>{u"AVES", u"RÍOS", u"[ESPAÑOL]"}));
}

TEST_F(Selection, StandsOverTheGameWhichTakesNoInput) {
    frmWord2& screen = selection();
    EXPECT_EQ(screen.over, &game());
    EXPECT_FALSE(game().enabled);
    EXPECT_EQ(screen.imgBack.image, game().itsPaper);
}

TEST_F(Selection, SelectsTheCurrentTopicAndFocusesTheList) {
    settings().giTopicIndex = 1;
    frmWord2& screen = selection();
    EXPECT_EQ(screen.lstTopics.listIndex(), 1);
    EXPECT_TRUE(screen.lblOk(0).enabled);
    EXPECT_EQ(desktop.focusOf(screen), &screen.lstTopics);
}

TEST_F(Selection, SelectsNothingForATopicBeyondTheList) {
    settings().giTopicIndex = 3;
    frmWord2& screen = selection();
    EXPECT_EQ(screen.lstTopics.listIndex(), -1);
    EXPECT_FALSE(screen.lblOk(0).enabled);
    player.selectItem("lstTopics", 2);
    EXPECT_TRUE(screen.lblOk(0).enabled);
    EXPECT_TRUE(screen.lblOk(1).enabled);
}

TEST_F(Selection, SelectsNothingForANegativeTopic) {
    settings().giTopicIndex = -1;
    EXPECT_EQ(selection().lstTopics.listIndex(), -1);
}

TEST_F(Selection, CyclesItsModesByArrowButtons) {
    frmWord2& screen = selection();
    std::vector<Text> shown;
    for (const char* arrow : {"lblChng(1)", "lblChng(1)", "lblChng(1)", "lblChng(0)"}) {
        player.click(arrow);
        shown.push_back(screen.lblOpt.caption);
    }
    EXPECT_EQ(shown, (std::vector<Text>{u"REPETICIÓN", u"TURISTA", u"MANUAL", u"TURISTA"}));
}

TEST_F(Selection, CyclesItsModesByArrowKeysInEnglish) {
    settings().gbEnglish = true;
    frmWord2& screen = selection();
    player.press(key::kLeft);
    EXPECT_EQ(screen.lblOpt.caption, u"TOUR");
    player.press(key::kRight);
    EXPECT_EQ(screen.lblOpt.caption, u"MANUAL");
    player.press(key::kRight);
    EXPECT_EQ(screen.lblOpt.caption, u"REPEAT");
}

TEST_F(Selection, KeepsTheListWhereItIsAtArrowKeys) {
    settings().giTopicIndex = 1;
    frmWord2& screen = selection();
    player.press(key::kRight);
    EXPECT_EQ(screen.lstTopics.listIndex(), 1);
}

TEST_F(Selection, ShowsManualAtFirstWhateverTheWayIs) {
    settings().giWay = kTour;
    frmWord2& screen = selection();
    EXPECT_EQ(screen.lblOpt.caption, u"MANUAL");
    player.press(key::kRight);
    EXPECT_EQ(screen.lblOpt.caption, u"MANUAL");
    player.press(key::kRight);
    EXPECT_EQ(screen.lblOpt.caption, u"REPETICIÓN");
}

TEST_F(Selection, HasNoCaptionForTheWaysOfTheGameMenu) {
    settings().giWay = kHiddenTopic;
    frmWord2& screen = selection();
    player.press(key::kRight);
    EXPECT_EQ(screen.lblOpt.caption, u"MANUAL");
    player.press(key::kLeft);
    player.press(key::kLeft);
    player.press(key::kLeft);
    EXPECT_EQ(screen.lblOpt.caption, u"TURISTA");
}

TEST_F(Selection, ClosesOnEscapeAndChangesNothing) {
    settings().giTopicIndex = 1;
    settings().gbAutoChoice = true;
    selection();
    player.press(key::kRight);
    player.selectItem("lstTopics", 0);
    player.press(key::kEscape);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(game().enabled);
    EXPECT_EQ(settings().giTopicIndex, 1);
    EXPECT_EQ(settings().gsPhrase, u"");
    EXPECT_TRUE(settings().gbAutoChoice);
    EXPECT_TRUE(games.empty());
}

TEST_F(Selection, ClosesOnEscapeOnAnyOfItsButtons) {
    for (const int way : {0, 1}) {
        frmWord2& screen = selection();
        desktop.deliver([&] { desktop.moveFocus(screen, &screen.lblChng(way)); });
        player.press(key::kEscape);
        EXPECT_FALSE(isOpen());
    }
}

TEST_F(Selection, ClosesWithItsWindowAsWithEscape) {
    selection();
    player.closeWindow();
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(game().enabled);
    EXPECT_FALSE(desktop.ended);
}

TEST_F(Selection, ShowsThatItsButtonsAreHeld) {
    frmWord2& screen = selection();
    player.mouseDown("lblOk(1)");
    EXPECT_EQ(screen.shpOk.backColor, rgb(30, 180, 30));
    player.mouseUp("lblOk(1)");
    EXPECT_EQ(screen.shpOk.backColor, rgb(250, 30, 30));
    player.mouseDown("lblChng(0)");
    EXPECT_EQ(screen.lblChng(0).textColor, rgb(200, 200, 200));
    player.mouseUp("lblChng(0)");
    EXPECT_EQ(screen.lblChng(0).textColor, rgb(250, 250, 250));
}

TEST_F(Selection, OfAnEmptyLibraryCannotBeAccepted) {
    settings().gaTopicLines.clear();
    settings().giTopicMax = -1;
    settings().giTopicIndex = -1;
    frmWord2& screen = selection();
    EXPECT_TRUE(screen.lstTopics.items.empty());
    EXPECT_FALSE(screen.lblOk(0).enabled);
    desktop.expectCritical(u"Hay un error que impide abrir los temas.");
    player.press(key::kReturn);
    EXPECT_TRUE(isOpen());
}

}  // namespace
}  // namespace quillor::testing
