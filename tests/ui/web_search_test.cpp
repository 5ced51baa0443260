// The offer to look the answer up.
#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

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
