// The main menu: its options by mouse and key, and its colours.
#include "tests/app/app_fixture.h"

namespace quillor::testing {
namespace {

class Menu : public AppTest {
  protected:
    Menu() { setPalette(settings()); }

    /// Which of the shapes 4..7 have the colour.
    std::vector<int> shapesIn(Color color) {
        std::vector<int> found;
        for (int i = frmMenu::kFirstButton; i <= frmMenu::kLastButton; ++i)
            if (as<frmMenu>(ScreenId::Menu).shpOption(i).backColor == color)
                found.push_back(i);
        return found;
    }
    Color red() { return settings().glRed; }
    Color green() { return settings().glGreen; }
    Color theme() { return settings().glTheme; }
};

using Shapes = std::vector<int>;

TEST_F(Menu, IsInSpanish) {
    frmMenu& screen = menu();
    EXPECT_EQ(screen.title, u"Quillor | Inicio");
    EXPECT_EQ(screen.lblWelcome.caption, u"INICIO");
    EXPECT_EQ(screen.lblOption(1).caption, u"MODO &CLÁSICO");
    EXPECT_EQ(screen.lblOption(7).toolTip, u" Cambiar preferencias del juego ");
}

TEST_F(Menu, IsInEnglish) {
    settings().gbEnglish = true;
    frmMenu& screen = menu();
    EXPECT_EQ(screen.title, u"Quillor | Start");
    EXPECT_EQ(screen.lblOption(0).caption, u"&ARCADE MODE");
    EXPECT_EQ(screen.lblOption(2).caption, u"&INVENTOR");
    EXPECT_EQ(screen.lblOption(3).toolTip, u" Change game preferences ");
    EXPECT_EQ(screen.lblOption(4).spokenName, u"ARCADE MODE");
}

struct Option {
    const char* name;
    int key;
    const char* button;
    ScreenId id;
    const char* opens;
    bool classic;
};

class MenuOptions : public Menu, public ::testing::WithParamInterface<Option> {
  public:
    static inline const Option kAll[] = {
        {"Arcade", 'A', "lblOption(4)", ScreenId::Game, "frmGame", false},
        {"Classic", 'C', "lblOption(5)", ScreenId::Game, "frmGame", true},
        {"Inventor", 'I', "lblOption(6)", ScreenId::Inventor, "frmInventor", false},
        {"Settings", 'S', "lblOption(7)", ScreenId::Settings, "frmOptions", false},
    };
};

TEST_P(MenuOptions, OpensByItsKeyAndClosesTheMenu) {
    menu();
    player.press(GetParam().key);
    EXPECT_EQ(desktop.shown, (std::vector<std::string>{"frmMenu", GetParam().opens}));
    EXPECT_EQ(desktop.closed, std::vector<std::string>{"frmMenu"});
    EXPECT_EQ(settings().gbClassicMode, GetParam().classic);
}

TEST_P(MenuOptions, OpensByItsButton) {
    menu();
    player.click(GetParam().button);
    EXPECT_EQ(player.screen().name, GetParam().opens);
    EXPECT_EQ(settings().gbClassicMode, GetParam().classic);
}

TEST_P(MenuOptions, HandsOnThePaper) {
    menu().takePaper(std::make_shared<FakeImage>("p"));
    const ImageRef paper = as<frmMenu>(ScreenId::Menu).imgBack.image;
    player.press(GetParam().key);
    EXPECT_EQ(as<OtherScreen>(GetParam().id).paper, paper);
}

INSTANTIATE_TEST_SUITE_P(All, MenuOptions, ::testing::ValuesIn(MenuOptions::kAll),
                         [](const auto& option) { return option.param.name; });

TEST_F(Menu, TakesKeyCodesNotCharacters) {
    menu();
    player.press('S', {false, true, false, false});
    EXPECT_EQ(player.screen().name, "frmOptions");
}

TEST_F(Menu, IgnoresOtherKeys) {
    menu();
    for (const int code : {int{'B'}, int{'X'}, int{'1'}, key::kEscape, key::kF2})
        player.press(code);
    EXPECT_EQ(player.screen().name, "frmMenu");
}

TEST_F(Menu, ArcadeModeEndsClassicMode) {
    settings().gbClassicMode = true;
    menu();
    player.press('A');
    EXPECT_FALSE(settings().gbClassicMode);
}

TEST_F(Menu, RestsInRedAndTheme) {
    menu();
    EXPECT_EQ(shapesIn(red()), Shapes{4});
    EXPECT_EQ(shapesIn(theme()), (Shapes{5, 6, 7}));
}

TEST_F(Menu, TurnsTheHoveredShapeGreenAndTheOthersBack) {
    menu();
    player.hover("lblOption(0)");
    EXPECT_EQ(shapesIn(green()), Shapes{4});
    player.hover("lblOption(5)");
    EXPECT_EQ(shapesIn(green()), Shapes{5});
    EXPECT_EQ(shapesIn(red()), Shapes{4});
    EXPECT_EQ(shapesIn(theme()), (Shapes{6, 7}));
}

TEST_F(Menu, RestsAgainWhenTheMouseLeavesTheButtons) {
    menu();
    player.hover("lblOption(6)");
    player.hover("imgBack");
    EXPECT_EQ(shapesIn(green()), Shapes{});
}

TEST_F(Menu, OpensByKeyWhileTheMouseHoversAnotherOption) {
    menu();
    player.hover("lblOption(0)");
    player.press('S');
    EXPECT_EQ(player.screen().name, "frmOptions");
}

TEST_F(Menu, DarkensTheButtonBehindAPressedCaption) {
    frmMenu& screen = menu();
    player.mouseDown("lblOption(1)");
    EXPECT_EQ(screen.lblOption(5).backColor, rgb(30, 150, 30));
    EXPECT_TRUE(screen.lblOption(5).opaque);
}

TEST_F(Menu, GivesTheReleasedLabelItsOwnColourBack) {
    frmMenu& screen = menu();
    const Color before = screen.lblOption(6).backColor;
    player.mouseDown("lblOption(6)");
    EXPECT_EQ(screen.lblOption(6).backColor, rgb(30, 150, 30));
    player.mouseUp("lblOption(6)");
    EXPECT_EQ(screen.lblOption(6).backColor, before);
    EXPECT_FALSE(screen.lblOption(6).opaque);
}

TEST_F(Menu, ReleasesTheCaptionNotTheButtonBehindIt) {
    frmMenu& screen = menu();
    player.mouseDown("lblOption(1)");
    player.mouseUp("lblOption(1)");
    EXPECT_EQ(screen.lblOption(5).backColor, rgb(30, 150, 30));
}

TEST_F(Menu, DoesNotHoverWhileAButtonIsHeld) {
    menu();
    player.mouseDown("lblOption(4)");
    player.hover("lblOption(5)");
    EXPECT_EQ(shapesIn(green()), Shapes{});
    player.mouseUp("lblOption(4)");
    player.hover("lblOption(5)");
    EXPECT_EQ(shapesIn(green()), Shapes{5});
}

TEST_F(Menu, StartsWithTheFocusOnTheFirstButton) {
    frmMenu& screen = menu();
    EXPECT_EQ(desktop.focusOf(screen), &screen.lblOption(4));
    player.type(u" ");
    EXPECT_EQ(player.screen().name, "frmGame");
}

TEST_F(Menu, EndsTheProgramWhenItsWindowIsClosed) {
    menu();
    player.closeWindow();
    EXPECT_TRUE(desktop.ended);
}

}  // namespace
}  // namespace quillor::testing
