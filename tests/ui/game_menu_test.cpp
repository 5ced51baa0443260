// The game's menu: its entries and the commands that leave or restart; the offer to look
// the answer up.
#include "app/menu_screen.h"
#include "config/version.h"
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

class GameMenuTest : public GameTest {
  protected:
    using Lines = std::vector<std::string>;
    // The captions in order, separators as "-".
    static Lines captions(const MenuItem& menu) {
        Lines lines;
        for (const MenuItem* item : menu.children)
            lines.push_back(item->caption.empty() ? "-" : toUtf8(item->caption));
        return lines;
    }
};

TEST_F(GameMenuTest, HasItsEntriesInOrder) {
    openArcade();
    EXPECT_EQ(captions(game().menu.mMenu),
              (Lines{"Back to Start", "Reboot all", "-", "Selection", "-", "Write answer", "-",
                     "Use sounds", "First letter", "Hidden letters", "Color transition", "-",
                     "About", "Help"}));
    EXPECT_EQ(captions(game().menu.mAuto),
              (Lines{"Manual", "Repeat", "Tour", "-", "Any topic", "Hidden"}));
    EXPECT_EQ(game().menu.mMenu.caption, u"Menu");
}

TEST_F(GameMenuTest, HasItsEntriesInSpanish) {
    english = false;
    openArcade();
    EXPECT_EQ(captions(game().menu.mMenu),
              (Lines{"Volver a Inicio", "Reiniciar juego", "-", "Selección", "-",
                     "Escribir respuesta", "-", "Mostrar sonidos", "Primera letra",
                     "Letras ocultas", "Colores suaves", "-", "Acerca", "Ayuda"}));
    EXPECT_EQ(captions(game().menu.mAuto),
              (Lines{"Manual", "Repetición", "Turista", "-", "Aleatorio", "Oculto"}));
    EXPECT_EQ(game().menu.mMenu.caption, u"Menú");
}

TEST_F(GameMenuTest, PopsUpOverTheBackgroundByTheRightButton) {
    openArcade();
    player.rightClick("imgBack(0)");
    player.rightClick("imgBack(1)");
    EXPECT_EQ(desktop.popUps, (std::vector<std::string>{"mMenu", "mMenu"}));
}

TEST_F(GameMenuTest, StandsInTheBar) {
    english = false;
    openArcade();
    EXPECT_EQ(game().lblMenu.caption, u"&Menú");
    EXPECT_TRUE(Player::sees(game().lblMenu));
    player.click("lblMenu");
    player.press(key::kF10);
    EXPECT_EQ(desktop.popUps, (std::vector<std::string>{"mMenu", "mMenu"}));
}

TEST_F(GameMenuTest, PopsUpByTheRightButtonOnWhateverIsNoKey) {
    play(u"BEE");
    for (const char* place : {"lblBluebar", "lblTopic", "lblHey", "lblStatus", "frmeMan"})
        player.rightClick(place);
    EXPECT_EQ(desktop.popUps.size(), 5U);
    player.rightClick("lblKey(1)");
    EXPECT_EQ(desktop.popUps.size(), 5U);
}

TEST_F(GameMenuTest, MarksTheWaysAsOneChoice) {
    openArcade();
    for (const MenuItem* item : game().menu.mAuto.children)
        EXPECT_EQ(item->radio, !item->caption.empty()) << item->id;
    EXPECT_FALSE(game().menu.mWave.radio);
}

TEST_F(GameMenuTest, AsksBeforeGoingBackWithThreeMistakes) {
    play(u"WORLD");
    player.type(u"xyz");
    desktop.answerQuestion(u"You're about to leave this game, do you want to continue?", false);
    player.chooseMenu("mBack");
    EXPECT_EQ(settings.giGameState, kPlaying);
    desktop.answerQuestion(texts::kLeaveGame.english, true);
    player.chooseMenu("mBack");
    EXPECT_EQ(player.screen().name, "frmMenu");
}

TEST_F(GameMenuTest, RefusesToGoBackWithFourMistakes) {
    play(u"WORLD");
    player.type(u"xyza");
    desktop.expectMessage(
        u"You have many mistakes to leave the game, continue or restart the game.");
    player.chooseMenu("mBack");
    EXPECT_EQ(player.screen().name, "frmGame");
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(GameMenuTest, GoesBackAtOnceAfterTheEnd) {
    play(u"WORLD");
    loseGame();
    player.chooseMenu("mBack");
    EXPECT_EQ(player.screen().name, "frmMenu");
    EXPECT_EQ(settings.giGameState, kIdle);
}

TEST_F(GameMenuTest, HandsTheBackgroundPictureToTheMainMenu) {
    start();
    const ImageRef paper = std::make_shared<FakeImage>("paper");
    player.screen().takePaper(paper);
    player.click("lblOption(0)");
    EXPECT_EQ(game().imgBack(2).image, paper);
    player.press(key::kF2);
    EXPECT_EQ(dynamic_cast<frmMenu&>(player.screen()).imgBack.image, paper);
}

TEST_F(GameMenuTest, RestartsWithFiveMistakesAfterAYes) {
    play(u"WORLD");
    player.type(u"xyzab");
    desktop.answerQuestion(texts::kLeaveGame.english, false);
    player.chooseMenu("mReboot");
    EXPECT_EQ(settings.giStrikes, 5);
    desktop.answerQuestion(texts::kLeaveGame.english, true);
    player.chooseMenu("mReboot");
    EXPECT_EQ(player.screen().name, "frmStart");
    EXPECT_EQ(settings.giStrikes, 0);
}

TEST_F(GameMenuTest, SpeaksSpanishWhenItRefuses) {
    english = false;
    play(u"WORLD");
    desktop.answerQuestion(u"Estás por abandonar esta partida, ¿quieres continuar?", false);
    player.chooseMenu("mBack");
    player.type(u"xyza");
    desktop.expectMessage(
        u"Tienes muchos errores para poder abandonar la partida, continúa o "
        u"reinicia el juego.");
    player.chooseMenu("mBack");
    EXPECT_EQ(settings.giGameState, kPlaying);
}

TEST_F(GameMenuTest, TellsAboutTheProgram) {
    openArcade();
    desktop.expectAbout(u"Quillor", u"Quillor developers\r\nQuillor: Version " QUILLOR_VERSION);
    player.chooseMenu("mAbout");
}

TEST_F(GameMenuTest, TellsAboutTheProgramInSpanish) {
    english = false;
    openArcade();
    desktop.expectAbout(u"Quillor", u"Quillor developers\r\nQuillor: Versión " QUILLOR_VERSION);
    player.chooseMenu("mAbout");
}

TEST_F(GameMenuTest, OpensTheManual) {
    run.folder.write("Quillor-Manual.txt", "help");
    openArcade();
    player.chooseMenu("mHelp");
    EXPECT_EQ(desktop.openedFiles,
              (std::vector<std::filesystem::path>{run.folder / "Quillor-Manual.txt"}));
}

TEST_F(GameMenuTest, SaysWhenThereIsNoManual) {
    openArcade();
    desktop.expectMessage(u"The help file is not found.");
    player.chooseMenu("mHelp");
    EXPECT_TRUE(desktop.openedFiles.empty());
}

TEST_F(GameMenuTest, SaysInSpanishWhenThereIsNoManual) {
    english = false;
    openArcade();
    desktop.expectMessage(u"El archivo de ayuda no se encuentra.");
    player.chooseMenu("mHelp");
}

TEST_F(GameMenuTest, NamesItsShortcuts) {
    openArcade();
    EXPECT_EQ(game().menu.mBack.shortcut, u"F2");
    EXPECT_EQ(game().menu.mReboot.shortcut, u"F3");
    EXPECT_EQ(game().menu.mWrite.shortcut, u"Ctrl+E");
    EXPECT_EQ(game().menu.mDoWay(2).shortcut, u"Ctrl+T");
    EXPECT_EQ(game().menu.mHide.shortcut, u"Ctrl+O");
}

class WebSearchTest : public GameTest {
  protected:
    void finish(TextView phrase) {
        play(phrase);
        answer(u"wrong");
    }
};

TEST_F(WebSearchTest, LooksForTheAnswerInSmallLettersWithItsBlanks) {
    finish(u"TORRE EIFFEL");
    player.click("lblFinder(0)");
    EXPECT_EQ(desktop.openedAddresses,
              (std::vector<Text>{u"http://www.bing.com/search?q=torre eiffel"}));
}

TEST_F(WebSearchTest, OpensTheSpanishEncyclopediaInBothLanguages) {
    saved.gbUseWikipedia = true;
    finish(u"TORRE EIFFEL");
    player.click("lblFinder(1)");
    EXPECT_EQ(desktop.openedAddresses,
              (std::vector<Text>{u"http://es.wikipedia.org/wiki/torre eiffel"}));
}

TEST_F(WebSearchTest, LooksForTheFoldedAnswer) {
    english = false;
    saved.gbUseWikipedia = true;
    finish(u"CAÑÓN");
    player.type(u"?");
    EXPECT_EQ(desktop.openedAddresses, (std::vector<Text>{u"http://es.wikipedia.org/wiki/cañon"}));
}

TEST_F(WebSearchTest, IsOfferedInTheInterfacesLanguage) {
    english = false;
    finish(u"SOL");
    EXPECT_EQ(game().webSearch.lblFinder(0).caption, u"¿QUÉ ES ESO&?");
    EXPECT_EQ(game().webSearch.lblFinder(1).toolTip, u" Buscar en internet ");
}

TEST_F(WebSearchTest, IsOfferedInEnglish) {
    finish(u"SOL");
    EXPECT_EQ(game().webSearch.lblFinder(0).caption, u"WHAT IS THAT&?");
    EXPECT_EQ(game().webSearch.lblFinder(0).toolTip, u" Search the internet ");
}

TEST_F(WebSearchTest, IsOfferedOnlyBetweenTheEndAndTheNextGame) {
    play(u"SUN");
    EXPECT_FALSE(Player::sees(game().webSearch.lblFinder(0)));
    player.type(u"sun");
    EXPECT_TRUE(Player::sees(game().webSearch.shpFinder));
    waitForScore();
    deal();
    EXPECT_FALSE(Player::sees(game().webSearch.lblFinder(0)));
    EXPECT_FALSE(Player::sees(game().webSearch.lblFinder(1)));
    EXPECT_FALSE(Player::sees(game().webSearch.shpFinder));
}

TEST_F(WebSearchTest, ShowsItsPressOnTheCaption) {
    finish(u"SUN");
    player.mouseDown("lblFinder(1)");
    EXPECT_EQ(game().webSearch.lblFinder(0).textColor, settings.glGrey);
    player.mouseUp("lblFinder(1)");
    EXPECT_EQ(game().webSearch.lblFinder(0).textColor, settings.glWhite);
}

}  // namespace

}  // namespace quillor::testing
