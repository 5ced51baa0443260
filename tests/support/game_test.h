// The game screen as a player comes to it: a program folder of the test's own,
// the start screen, the menu, and a phrase that the test has chosen.
#pragma once

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/settings_file.h"
#include "core/text_codec.h"
#include "game/game_screen.h"
#include "tests/support/open_program.h"
#include "topics/topic_selection.h"
#include "topics/topics.h"
#include "ui/progress_screen.h"
#include "ui/settings_screen.h"

namespace quillor::testing {

/// What the board shows of a cell, 1..42: a letter to find, and one that has been uncovered.
inline bool isLetter(const frmGame& game, int cell) {
    return game.board.lnLetter(cell).visible;
}
inline bool isFound(const frmGame& game, int cell) {
    return game.board.lblLetter(cell).visible;
}

class GameTest : public ::testing::Test {
  protected:
    GameTest() {
        addSettingsScreen(run.program);
        addProgressScreen(run.program);
        addTopicScreens(run.program);
        addGameScreens(run.program);
    }

    OpenProgram run;
    FakeDesktop& desktop = run.desktop;
    Player& player = run.player;
    GameSettings& settings = run.program.settings;

    // To be chosen before the program starts.
    GameSettings saved;   // what the settings file says
    bool english = true;  // the interface's language

    frmGame& game() { return run.as<frmGame>(ScreenId::Game); }
    bool gameIsOpen() { return run.program.find(ScreenId::Game) != nullptr; }

    /// Adds a topic file; they are loaded in the order they are added. A phrase
    /// a line, the title first.
    void addTopic(TextView lines) {
        const std::string name = "Topics/" + std::to_string(100 + topics_++) + ".txt";
        run.folder.write(english ? name : "Temas" + name.substr(name.find('/')), encodeText(lines));
    }

    /// Runs the start screen; the menu is in front afterwards.
    void start() {
        if (english)
            run.folder.write("English.txt", "");
        eSaveSettings(saved, run.folder.path());
        run.show(ScreenId::Start);
        desktop.advance(2000);
    }

    void openArcade() {
        start();
        player.click("lblOption(0)");
    }
    void openClassic() {
        start();
        player.click("lblOption(1)");
    }

    /// Presses play and takes the topic that is selected, if one is asked for.
    /// The phrase dealt is the first of its topic unless that was the last one.
    void deal() {
        desktop.draws = {0.0};
        player.press(key::kReturn);
        if (player.screen().name == "frmWord2")
            player.press(key::kReturn);
        desktop.draws.clear();
    }

    /// Starts the program and plays this phrase in arcade mode.
    void play(TextView phrase) {
        addTopic(Text(u"MY TOPIC\r\n").append(phrase).append(u"\r\nSPARE PHRASE"));
        openArcade();
        deal();
    }

    /// On the classic game screen: has a phrase entered and played.
    void enter(TextView phrase) {
        player.press(key::kReturn);
        player.type(phrase);
        player.click("lblOk(0)");
    }
    void playClassic(TextView phrase) {
        openClassic();
        enter(phrase);
    }

    /// Types an answer into the box that "!" opens.
    void answer(TextView typed) {
        desktop.answerInput(lang(texts::kEnterAnswer), typed);
        player.type(u"!");
    }

    /// Types letters that the phrase does not have until it is one too many.
    void loseGame() {
        for (const char16_t key : kGuessKeys)
            if (settings.giGameState == kPlaying && game().round.folded.find(key) == Text::npos)
                player.type(Text(1, key));
    }

    /// A box of information, also one that comes before the language is known.
    void expectBox(const TextPair& text) { desktop.expectMessage(lang(text)); }
    Text lang(const TextPair& text) const { return Text(english ? text.english : text.spanish); }

    /// Lets the points rise and the score count to its end.
    void waitForScore() { desktop.advance(20'000); }

  private:
    int topics_ = 0;
};

}  // namespace quillor::testing
