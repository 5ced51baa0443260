// Topics that are dropped on a screen, or named when the program is started.
#include "topics/topic_sharing.h"

#include "app/menu_screen.h"
#include "tests/topics/topics_fixture.h"

namespace quillor::testing {
namespace {

constexpr const char* kSound = "BIRDS\r\nrobin\r\nbarn owl\r\n";

class Sharing : public TopicsTest {
  protected:
    Sharing() {
        settings().gbEnglish = true;
        folder.write("English.txt", "");
        folder.write("Topics/OLD.txt", "OLD\r\none\r\ntwo\r\n");
        folder.write("Quillor-Config.ini", "");
        program.close(game());
    }
    std::filesystem::path file(const std::filesystem::path& name, std::string_view bytes) {
        others.write(name, bytes);
        return others / name;
    }
    void drop(ScreenId id, const std::vector<std::filesystem::path>& files) {
        if (!program.find(id))
            show(id);
        desktop.deliver([&] { program.find(id)->dropFiles(files); });
    }
    void dropOnMenu(const std::filesystem::path& path) { drop(ScreenId::Menu, {path}); }
    void expectRestart(bool yes) { desktop.answerQuestion(lang(texts::kAskRestart), yes); }
    void expectSaid(const TextPair& text, TextView name) {
        desktop.expectMessage(replaceAll(lang(text), u"%", name));
    }
    bool isLoaded(TextView title) {
        for (const Topic& topic : settings().gaTopicLines)
            if (topic[0] == title)
                return true;
        return false;
    }
    TempFolder others;
};

TEST_F(Sharing, CopiesATopicAndLoadsItWithTheRestart) {
    expectRestart(true);
    dropOnMenu(file("My birds.txt", kSound));
    EXPECT_EQ(folder.read("Topics/My birds.txt"), kSound);
    EXPECT_EQ(player.screen().name, "frmStart");
    EXPECT_EQ(program.find(ScreenId::Menu), nullptr);
    EXPECT_TRUE(isLoaded(u"BIRDS"));
}

TEST_F(Sharing, WaitsForTheNextStartOnNo) {
    expectRestart(false);
    dropOnMenu(file("birds.txt", kSound));
    EXPECT_TRUE(folder.has("Topics/birds.txt"));
    EXPECT_EQ(player.screen().name, "frmMenu");
}

TEST_F(Sharing, AsksOnceForSeveralTopics) {
    expectRestart(false);
    drop(ScreenId::Menu, {file("a.txt", kSound), file("B.TXT", "B\r\none\r\ntwo\r\n")});
    EXPECT_TRUE(folder.has("Topics/a.txt"));
    EXPECT_TRUE(folder.has("Topics/B.txt"));
}

TEST_F(Sharing, TakesNothingButText) {
    expectSaid(texts::kShareNoTopic, u"birds.doc");
    dropOnMenu(file("birds.doc", kSound));
    EXPECT_FALSE(folder.has("Topics/birds.doc"));
}

TEST_F(Sharing, SaysWhatCannotBeRead) {
    expectSaid(texts::kShareUnread, u"gone.txt");
    dropOnMenu(others / "gone.txt");
}

TEST_F(Sharing, TellsANameThatWouldTurnTheLineOrEndIt) {
    expectSaid(texts::kShareNoTopic, u"a b.doc");
    dropOnMenu(file(u"\u202Ea\u2028b.doc", kSound));
}

TEST_F(Sharing, RefusesATopicThatCannotBePlayed) {
    desktop.expectMessage(
        u"The game cannot use \"short.txt\":\r\nLine 1: there are fewer than two phrases in a row "
        u"behind the title: the game will not let this topic be played.");
    dropOnMenu(file("short.txt", "SHORT\r\none\r\n"));
    EXPECT_FALSE(folder.has("Topics/short.txt"));
}

TEST_F(Sharing, AsksAboutOtherFindings) {
    const Text asked =
        u"This is to be said of \"odd.txt\":"
        u"\r\nLine 2: no key offers \"!\": the phrase cannot be completed by letters."
        u"\r\nLine 3: no key offers \"?\": the phrase cannot be completed by letters."
        u"\r\nLine 4: no key offers \".\": the phrase cannot be completed by letters."
        u"\r\nAnd 1 more."
        u"\r\nDo you want to copy it all the same?";
    const auto odd = file("odd.txt", "ODD\r\none!\r\ntwo?\r\nthree.\r\nfour,\r\n");
    desktop.answerQuestion(asked, false);
    dropOnMenu(odd);
    EXPECT_FALSE(folder.has("Topics/odd.txt"));
    desktop.answerQuestion(asked, true);
    expectRestart(false);
    dropOnMenu(odd);
    EXPECT_TRUE(folder.has("Topics/odd.txt"));
}

TEST_F(Sharing, AsksBeforeItReplaces) {
    const auto other = file("OLD.txt", kSound);
    const Text asked = replaceAll(lang(texts::kShareReplace), u"%", u"OLD.txt");
    desktop.answerQuestion(asked, false);
    dropOnMenu(other);
    EXPECT_EQ(folder.read("Topics/OLD.txt"), "OLD\r\none\r\ntwo\r\n");
    desktop.answerQuestion(asked, true);
    expectRestart(false);
    dropOnMenu(other);
    EXPECT_EQ(folder.read("Topics/OLD.txt"), kSound);
}

TEST_F(Sharing, SaysThatTheGameHasItAlready) {
    expectSaid(texts::kShareThere, u"OLD.txt");
    dropOnMenu(folder / "Topics/OLD.txt");
}

TEST_F(Sharing, SaysThatItCouldNotBeCopied) {
    const auto sound = file("birds.txt", kSound);
    disk.breakDown(FaultyDisk::Operation::Create);
    expectSaid(texts::kShareFailed, u"birds.txt");
    dropOnMenu(sound);
    EXPECT_FALSE(folder.has("Topics/birds.txt"));
}

TEST_F(Sharing, SpeaksSpanish) {
    settings().gbEnglish = false;
    desktop.expectMessage(u"«birds.doc» no es un tema: los temas son archivos .txt.");
    dropOnMenu(file("birds.doc", kSound));
}

TEST_F(Sharing, WorksOnTheSelectionScreenAndClosesTheGameForTheRestart) {
    show(ScreenId::Game);
    open<frmWord2>(ScreenId::Word2);
    expectRestart(true);
    drop(ScreenId::Word2, {file("birds.txt", kSound)});
    EXPECT_EQ(program.find(ScreenId::Word2), nullptr);
    EXPECT_EQ(program.find(ScreenId::Game), nullptr);
    EXPECT_EQ(player.screen().name, "frmStart");
    EXPECT_TRUE(isLoaded(u"BIRDS"));
}

TEST_F(Sharing, WorksOnTheInventorAndAsksBeforePhrasesAreLost) {
    show(ScreenId::Inventor);
    player.clickInto("txtWord", 0);
    player.type(u"oak");
    player.press(key::kReturn);
    expectRestart(true);
    desktop.answerQuestion(lang(texts::kLoseTopic), false);
    drop(ScreenId::Inventor, {file("birds.txt", kSound)});
    EXPECT_EQ(player.screen().name, "frmInventor");
    EXPECT_EQ(as<frmInventor>(ScreenId::Inventor).lstTopics.items.size(), 1U);
}

TEST_F(Sharing, RestartsFromTheInventorWithoutTheMenu) {
    expectRestart(true);
    drop(ScreenId::Inventor, {file("birds.txt", kSound)});
    EXPECT_EQ(player.screen().name, "frmStart");
    EXPECT_EQ(program.find(ScreenId::Menu), nullptr);
}

TEST_F(Sharing, IsNotForScreensThatTakeNoFiles) {
    show(ScreenId::Game);
    EXPECT_FALSE(game().takesFiles());
    desktop.deliver([&] { game().dropFiles({file("birds.txt", kSound)}); });
    EXPECT_FALSE(folder.has("Topics/birds.txt"));
}

TEST_F(Sharing, TakesWhatTheProgramWasStartedWithOnceTheMenuIsSeen) {
    program.topicsToTake = {file("birds.txt", kSound)};
    show(ScreenId::Menu);
    expectRestart(true);
    desktop.advance(500);
    EXPECT_TRUE(isLoaded(u"BIRDS"));
    desktop.advance(2000);
    EXPECT_EQ(player.screen().name, "frmMenu");
}

}  // namespace
}  // namespace quillor::testing
