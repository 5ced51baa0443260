// What the inventor writes, and what follows; cut, copy and paste in its phrase field.
#include <algorithm>

#include "core/topic_library.h"
#include "tests/topics/topics_fixture.h"

namespace quillor::testing {
namespace {

class InventorSaving : public TopicsTest {
  protected:
    static constexpr TextView kAskSpanish =
        u"¿Quieres reiniciar el juego para cargar el nuevo tema?";
    static constexpr TextView kAskEnglish =
        u"Do you want to restart the game to load the new topic?";

    InventorSaving() {
        std::filesystem::create_directory(folder / "Temas");
        std::filesystem::create_directory(folder / "Topics");
    }
    frmInventor& screen() { return as<frmInventor>(ScreenId::Inventor); }
    void fill(TextView topic, const std::vector<Text>& phrases) {
        show(ScreenId::Inventor);
        player.type(topic);
        for (const Text& phrase : phrases) {
            player.clickInto("txtWord", 0);
            player.type(phrase);
            player.press(key::kReturn);
        }
    }
    void fileName(TextView name) {
        desktop.deliver([&] { screen().edit(screen().txtFile, Text(name), 0, 0); });
    }
};

TEST_F(InventorSaving, WritesASpanishTopicWithItsTag) {
    fill(u"Frutas", {u"pera", u"Uva verde"});
    desktop.answerQuestion(kAskSpanish, false);
    player.click("lblSave(0)");
    EXPECT_EQ(folder.read("Temas/FRUTAS.txt"), "FRUTAS [espa\361ol]\r\npera\r\nuva verde\r\n");
}

TEST_F(InventorSaving, WritesAnEnglishTopicWithoutATag) {
    settings().gbEnglish = true;
    fill(u"Fruit", {u"Pear", u"CAFÉ"});
    desktop.answerQuestion(kAskEnglish, false);
    player.click("lblSave(1)");
    EXPECT_EQ(folder.read("Topics/FRUIT.txt"), "FRUIT\r\npear\r\ncaf\351\r\n");
    EXPECT_FALSE(folder.has("Temas/FRUIT.txt"));
}

TEST_F(InventorSaving, WritesUnderTheEditedFileName) {
    fill(u"Frutas", {u"pera"});
    fileName(u"otro ñame");
    desktop.answerQuestion(kAskSpanish, false);
    player.click("lblSave(0)");
    EXPECT_TRUE(folder.has(std::filesystem::path(u8"Temas/otro ñame.txt")));
}

TEST_F(InventorSaving, ReplacesAFileOfThatName) {
    for (const TextView phrase : {u"una fruta muy larga", u"uva"}) {
        fill(u"F", {Text(phrase)});
        desktop.answerQuestion(kAskSpanish, false);
        player.click("lblSave(0)");
    }
    EXPECT_EQ(folder.read("Temas/F.txt"), "F [espa\361ol]\r\nuva\r\n");
}

TEST_F(InventorSaving, ClearsAllForTheNextTopicOnNo) {
    fill(u"Frutas", {u"pera"});
    player.type(u"half");
    desktop.answerQuestion(kAskSpanish, false);
    player.click("lblSave(0)");
    EXPECT_TRUE(screen().lstTopics.items.empty());
    EXPECT_EQ(screen().txtWord.text(), u"");
    EXPECT_EQ(screen().txtTheme.text(), u"");
    EXPECT_EQ(screen().txtFile.text(), u"");
    EXPECT_EQ(screen().lblCont.caption, u"00/50");
    EXPECT_FALSE(screen().lblSave(0).enabled);
    EXPECT_EQ(desktop.focusOf(screen()), &screen().txtTheme);
}

TEST_F(InventorSaving, ClearsAFileNameThatHadNoTopicNameOnNo) {
    fill(u"", {u"uno"});
    fileName(u"SUELTO");
    desktop.answerQuestion(kAskSpanish, false);
    player.click("lblSave(0)");
    EXPECT_EQ(screen().txtFile.text(), u"");
    EXPECT_FALSE(screen().lblSave(0).enabled);
}

TEST_F(InventorSaving, KeepsAPastedLineBreakOutOfTheFile) {
    fill(u"Frutas", {u"pera"});
    player.clickInto("txtWord", 0);
    desktop.setClipboard(u"uva\nverde\r\n");
    player.press('V', kControl);
    player.press(key::kReturn);
    desktop.answerQuestion(kAskSpanish, false);
    player.click("lblSave(0)");
    EXPECT_EQ(folder.read("Temas/FRUTAS.txt"), "FRUTAS [espa\361ol]\r\npera\r\nuva verde\r\n");
}

TEST_F(InventorSaving, TakesAHeldReturnInTheListAsOnePress) {
    fill(u"Frutas", {u"pera"});
    desktop.deliver([&] { screen().setFocus(screen().lstTopics); });
    player.press(key::kReturn, kHeld);
    EXPECT_FALSE(std::filesystem::exists(folder / "Temas/FRUTAS.txt"));
}

TEST_F(InventorSaving, DoesNotLoadTheTopicOnNo) {
    fill(u"Frutas", {u"pera"});
    desktop.answerQuestion(kAskSpanish, false);
    player.click("lblSave(0)");
    EXPECT_TRUE(settings().gaTopicLines.empty());
}

TEST_F(InventorSaving, StartsAnewOnYesAndLoadsTheTopic) {
    fill(u"Frutas", {u"pera", u"uva"});
    desktop.answerQuestion(kAskSpanish, true);
    player.click("lblSave(0)");
    EXPECT_EQ(player.screen().name, "frmStart");
    EXPECT_EQ(program.find(ScreenId::Inventor), nullptr);
    EXPECT_EQ(program.find(ScreenId::Menu), nullptr);
    EXPECT_EQ(settings().gaTopicLines.at(0)[2], u"UVA");
}

TEST_F(InventorSaving, HappensOnReturnInTheList) {
    fill(u"Frutas", {u"pera"});
    player.selectItem("lstTopics", 0);
    desktop.answerQuestion(kAskSpanish, false);
    player.press(key::kReturn);
    EXPECT_TRUE(folder.has("Temas/FRUTAS.txt"));
}

TEST_F(InventorSaving, DoesNotHappenWithoutPhrasesOrFileName) {
    fill(u"Frutas", {});
    player.click("lblSave(1)");
    fill(u"", {u"pera"});
    fileName(u"");
    player.click("lblSave(1)");
    player.selectItem("lstTopics", 0);
    player.press(key::kReturn);
    EXPECT_TRUE(std::filesystem::is_empty(folder / "Temas"));
}

TEST_F(InventorSaving, FailsSilentlyWithoutATopicFolder) {
    std::filesystem::remove(folder / "Temas");
    fill(u"Frutas", {u"pera"});
    player.click("lblSave(0)");
    EXPECT_FALSE(folder.has("Temas"));
    EXPECT_EQ(screen().txtTheme.text(), u"Frutas");
    EXPECT_EQ(screen().lstTopics.items.size(), 1U);
    EXPECT_TRUE(screen().lblSave(0).enabled);
}

TEST_F(InventorSaving, FailsSilentlyWhereAFolderHasTheName) {
    std::filesystem::create_directory(folder / "Temas" / "FRUTAS.txt");
    fill(u"Frutas", {u"pera"});
    player.click("lblSave(0)");
    EXPECT_EQ(screen().txtTheme.text(), u"Frutas");
}

TEST_F(InventorSaving, TakesNamesThatEndInAStopOrABlank) {
    for (const TextView name : {u"EE.UU.", u"Mi tema "}) {
        fill(name, {u"pera"});
        desktop.answerQuestion(kAskSpanish, false);
        player.click("lblSave(0)");
    }
    EXPECT_TRUE(folder.has("Temas/EE.UU..txt"));
    EXPECT_TRUE(folder.has("Temas/MI TEMA .txt"));
}

TEST_F(InventorSaving, NeverWritesUnderAReservedName) {
    fill(u"Con", {u"pera"});
    fileName(u"nul");
    desktop.answerQuestion(kAskSpanish, false);
    player.click("lblSave(0)");
    EXPECT_TRUE(folder.has("Temas/nul_.txt"));
    EXPECT_FALSE(folder.has("Temas/nul.txt"));
}

// One that fails each of the operations that saving is made of.
class InventorSavingFault : public InventorSaving,
                            public ::testing::WithParamInterface<FaultyDisk::Operation> {};

TEST_P(InventorSavingFault, LosesNothingThatWasTyped) {
    fill(u"Frutas", {u"pera", u"uva"});
    player.type(u"half");
    disk.breakDown(GetParam());
    player.click("lblSave(0)");
    EXPECT_EQ(screen().txtTheme.text(), u"Frutas");
    EXPECT_EQ(screen().txtFile.text(), u"FRUTAS");
    EXPECT_EQ(screen().txtWord.text(), u"half");
    EXPECT_EQ(screen().lstTopics.items.size(), 2U);
    EXPECT_TRUE(screen().lblSave(0).enabled);
    EXPECT_TRUE(std::filesystem::is_empty(folder / "Temas"));
    EXPECT_EQ(screen().lblHint.caption, texts::kTopicUnsaved.spanish);
    EXPECT_EQ(screen().lblSpoken.caption, texts::kTopicUnsaved.spanish);
}

INSTANTIATE_TEST_SUITE_P(
    Operations, InventorSavingFault,
    ::testing::Values(FaultyDisk::Operation::Look, FaultyDisk::Operation::Create,
                      FaultyDisk::Operation::Write, FaultyDisk::Operation::Flush,
                      FaultyDisk::Operation::Close, FaultyDisk::Operation::Replace));

TEST_F(InventorSaving, IsReadBackAsItWasAdded) {
    fill(u"Mi tema", {u"jazmín", u"pingüino", u"año 1"});
    desktop.answerQuestion(kAskSpanish, false);
    player.click("lblSave(0)");
    eLoadWords(settings(), folder.path());
    const Topic& topic = settings().gaTopicLines.at(0);
    EXPECT_EQ(topicTitle(topic), u"MI TEMA");
    EXPECT_EQ(topic[1], u"JAZMÍN");
    EXPECT_EQ(topic[2], u"PINGÜINO");
    EXPECT_EQ(topic[3], u"AÑO 1");
    EXPECT_EQ(topic[4], u"");
}

TEST_F(InventorSaving, WritesMoreThanFiftyPhrasesAsAdded) {
    fill(u"Muchas", std::vector<Text>(52, u"p"));
    desktop.answerQuestion(kAskSpanish, false);
    player.click("lblSave(0)");
    const std::string bytes = folder.read("Temas/MUCHAS.txt");
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 53);
}

TEST_F(InventorSaving, KeepsLettersThatOnlyUtf8Has) {
    show(ScreenId::Inventor);
    player.type(u"Ω мир");
    player.clickInto("txtWord", 0);
    player.type(u"uno");
    player.press(key::kReturn);
    desktop.answerQuestion(kAskSpanish, false);
    player.click("lblSave(0)");
    eLoadWords(settings(), folder.path());
    EXPECT_EQ(settings().gaTopicLines.at(0)[0], u"Ω МИР [ESPAÑOL]");
}

class InventorClipboard : public TopicsTest {
  protected:
    void SetUp() override {
        show(ScreenId::Inventor);
        desktop.clipboardText = u"old";
    }
    TextField& field() { return as<frmInventor>(ScreenId::Inventor).txtWord; }
    void phrase(TextView text, int start, int length) {
        player.clickInto("txtWord", 0);
        player.type(text);
        player.selectText("txtWord", start, length);
    }
};

TEST_F(InventorClipboard, CopiesTheSelection) {
    phrase(u"uno dos", 4, 3);
    player.press('C', kControl);
    EXPECT_EQ(desktop.clipboardText, u"dos");
    EXPECT_EQ(field().text(), u"uno dos");
}

TEST_F(InventorClipboard, CutsEveryOccurrenceOfTheSelection) {
    phrase(u"la casa la ve", 8, 2);
    player.press('X', kControl);
    EXPECT_EQ(desktop.clipboardText, u"la");
    EXPECT_EQ(field().text(), u" casa  ve");
    EXPECT_EQ(field().caret(), 8);
}

TEST_F(InventorClipboard, CutsNothingWithoutASelection) {
    phrase(u"uno", 1, 0);
    player.press('X', kControl);
    EXPECT_EQ(field().text(), u"uno");
    EXPECT_EQ(desktop.clipboardText, u"");
}

TEST_F(InventorClipboard, PastesAtTheCaretUnfiltered) {
    desktop.clipboardText = u"!?";
    phrase(u"abcd", 2, 0);
    player.press('V', kControl);
    EXPECT_EQ(field().text(), u"ab!?cd");
    EXPECT_EQ(field().caret(), 4);
}

TEST_F(InventorClipboard, PastesOverEveryOccurrenceOfTheSelection) {
    desktop.clipboardText = u"el";
    phrase(u"la casa la ve", 0, 2);
    player.press('V', kControl);
    EXPECT_EQ(field().text(), u"el casa el ve");
    EXPECT_EQ(field().caret(), 2);
}

TEST_F(InventorClipboard, PastesNoMoreThanTheFieldHolds) {
    desktop.clipboardText = Text(100, u'x');
    phrase(u"", 0, 0);
    player.press('V', kControl);
    EXPECT_EQ(field().text(), Text(35, u'x'));
    EXPECT_EQ(field().caret(), 35);
}

TEST_F(InventorClipboard, PastesNothingFromAnEmptyClipboard) {
    desktop.clipboardText = u"";
    phrase(u"abc", 1, 0);
    player.press('V', kControl);
    EXPECT_EQ(field().text(), u"abc");
    EXPECT_EQ(field().caret(), 1);
}

TEST_F(InventorClipboard, NeedsControlAlone) {
    phrase(u"abc", 0, 3);
    player.press('X', {true, true, false, false});
    player.press('X', {true, false, true, false});
    EXPECT_EQ(field().text(), u"abc");
    EXPECT_EQ(desktop.clipboardText, u"old");
}

}  // namespace

}  // namespace quillor::testing
