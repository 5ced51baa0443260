// What the inventor hints at, and how it goes on with a topic that exists.
#include "tests/topics/topics_fixture.h"
#include "topics/topic_opening.h"

namespace quillor::testing {
namespace {

class InventorHints : public TopicsTest {
  protected:
    InventorHints() {
        settings().gbEnglish = true;
        folder.write("Topics/BIRDS.txt", "BIRDS\r\nrobin\r\n\r\n barn owl \r\n");
        show(ScreenId::Inventor);
    }
    frmInventor& screen() { return as<frmInventor>(ScreenId::Inventor); }
    frmOpen& list() { return as<frmOpen>(ScreenId::OpenTopic); }
    Text hint() { return screen().lblHint.caption; }
    void write(TextView phrase) {
        player.clickInto("txtWord", 0);
        player.type(phrase);
    }
    void add(TextView phrase) {
        write(phrase);
        player.press(key::kReturn);
    }
    void paste(TextView phrase) {
        player.clickInto("txtWord", 0);
        desktop.setClipboard(phrase);
        player.press('V', kControl);
    }
    /// Opens the topic of that place in the list.
    void open(int place) {
        player.click("lblOpen");
        player.selectItem("lstTopics", place);
        player.click("lblOk(1)");
    }
};

TEST_F(InventorHints, AreSilentAtFirst) {
    EXPECT_EQ(hint(), u"");
}

TEST_F(InventorHints, WantTwoPhrases) {
    player.type(u"Trees");
    EXPECT_EQ(hint(), u"The game wants two phrases at least.");
    add(u"oak");
    EXPECT_EQ(hint(), u"The game wants two phrases at least.");
    add(u"ash");
    EXPECT_EQ(hint(), u"");
}

TEST_F(InventorHints, TellOfAFileThatWillBeReplaced) {
    player.type(u"Birds");
    EXPECT_EQ(hint(),
              u"There is a file of that name: it will be replaced. The game wants two phrases at "
              u"least.");
    add(u"wren");
    add(u"rook");
    EXPECT_EQ(hint(), u"There is a file of that name: it will be replaced.");
}

TEST_F(InventorHints, TellOfTheFiftyFirstPhrase) {
    for (int i = 0; i < 51; ++i)
        add(Text(1, static_cast<char16_t>(u'A' + i % 26)) + (i < 26 ? u"Y" : u"Z"));
    EXPECT_EQ(hint(), u"With more than 50 phrases the game stops loading, later topics too.");
}

TEST_F(InventorHints, TellWhatTheCheckerWouldOfThePhraseBeingWritten) {
    paste(u"well, well");
    EXPECT_EQ(hint(), u"No key offers \",\": the phrase cannot be completed by letters");
    screen().txtWord.setText(u"");
    write(u"otorhinolaryngology");
    EXPECT_EQ(hint(),
              u"\"OTORHINOLARYNGOLOGY\" does not fit into a row of fourteen cells: the game will "
              u"break it");
}

TEST_F(InventorHints, TellOfAPhraseThatIsThereAlready) {
    addTopic({u"FOOD", u"COFFEE", u"PÂTÉ"});
    add(u"oak");
    write(u"Oak");
    EXPECT_EQ(hint(), u"That phrase is in the list already.");
    screen().txtWord.setText(u"coffee");
    EXPECT_EQ(hint(), u"Is also in FOOD: it will come up in both topics");
}

TEST_F(InventorHints, OpenNoBoxes) {
    paste(u"well, well");
    add(u"");
    EXPECT_EQ(desktop.answersLeft(), 0U);
    EXPECT_EQ(player.screen().name, "frmInventor");
}

TEST_F(InventorHints, SpeakSpanish) {
    settings().gbEnglish = false;
    player.type(u"Aves");
    EXPECT_EQ(hint(), u"El juego quiere al menos dos frases.");
}

TEST_F(InventorHints, AreGoneWithWhatTheyWereAbout) {
    add(u"oak");
    add(u"ash");
    write(u"oak");
    player.press(key::kReturn);
    EXPECT_EQ(hint(), u"");
}

TEST_F(InventorHints, DoNotCallATopicADoubleOfItself) {
    addTopic({u"BIRDS", u"ROBIN", u"BARN OWL"});
    open(0);
    player.selectItem("lstTopics", 0);
    player.click("lblDel");
    write(u"robin");
    EXPECT_EQ(hint(),
              u"There is a file of that name: it will be replaced. The game wants two "
              u"phrases at least.");
}

class InventorOpening : public InventorHints {};

TEST_F(InventorOpening, GoesOnWithATopicThatExists) {
    open(0);
    EXPECT_EQ(screen().txtTheme.text(), u"BIRDS");
    EXPECT_EQ(screen().txtFile.text(), u"BIRDS");
    EXPECT_EQ(screen().lstTopics.items, (std::vector<Text>{u" ROBIN", u" BARN OWL"}));
    EXPECT_EQ(screen().lblCont.caption, u"02/50");
    add(u"wren");
    desktop.answerQuestion(lang(texts::kAskRestart), false);
    player.click("lblSave(0)");
    EXPECT_EQ(folder.read("Topics/BIRDS.txt"), "BIRDS\r\nrobin\r\nbarn owl\r\nwren\r\n");
}

TEST_F(InventorOpening, KeepsNamesThatAreLongerThanThoseThatAreTyped) {
    folder.write("Topics/a very long file name of a topic.txt",
                 "A TITLE OF MORE THAN TWENTY LETTERS\r\none\r\ntwo\r\n");
    open(0);
    EXPECT_EQ(screen().txtTheme.text(), u"A TITLE OF MORE THAN TWENTY LETTERS");
    EXPECT_EQ(screen().txtFile.text(), u"a very long file name of a topic");
    desktop.answerQuestion(lang(texts::kAskRestart), false);
    player.click("lblSave(0)");
    EXPECT_TRUE(folder.read("Topics/a very long file name of a topic.txt")
                    .starts_with("A TITLE OF MORE THAN TWENTY LETTERS\r\n"));
    EXPECT_EQ(screen().txtTheme.maxLength, 22);
}

TEST_F(InventorOpening, LosesNoneOfTooManyPhrases) {
    std::string bytes = "MANY\r\n";
    for (int i = 0; i < 60; ++i)
        bytes += "phrase " + std::to_string(i) + "\r\n";
    folder.write("Topics/A.txt", bytes);
    open(0);
    EXPECT_EQ(screen().lstTopics.items.size(), 60U);
}

TEST_F(InventorOpening, TakesTheMarkOffAndPutsItBack) {
    settings().gbEnglish = false;
    folder.write("Temas/Aves.txt", "AVES [espa\xF1ol]\r\nb\xFAho\r\nmirlo\r\n");
    open(0);
    EXPECT_EQ(screen().txtTheme.text(), u"AVES");
    desktop.answerQuestion(lang(texts::kAskRestart), false);
    player.click("lblSave(0)");
    EXPECT_EQ(folder.read("Temas/Aves.txt"), "AVES [espa\xF1ol]\r\nb\xFAho\r\nmirlo\r\n");
}

TEST_F(InventorOpening, AsksBeforePhrasesAreLost) {
    add(u"oak");
    desktop.answerQuestion(lang(texts::kLoseTopic), false);
    player.click("lblOpen");
    EXPECT_EQ(player.screen().name, "frmInventor");
    desktop.answerQuestion(lang(texts::kLoseTopic), true);
    open(0);
    EXPECT_EQ(screen().txtTheme.text(), u"BIRDS");
}

TEST_F(InventorOpening, IsLeftByEscape) {
    player.click("lblOpen");
    player.press(key::kEscape);
    EXPECT_EQ(player.screen().name, "frmInventor");
    EXPECT_EQ(screen().txtTheme.text(), u"");
    EXPECT_TRUE(screen().enabled);
}

TEST_F(InventorOpening, TakesReturnAndADoubleClick) {
    player.click("lblOpen");
    player.press(key::kReturn);
    EXPECT_EQ(screen().txtTheme.text(), u"BIRDS");
    desktop.answerQuestion(lang(texts::kLoseTopic), true);
    player.click("lblOpen");
    player.doubleClickItem("lstTopics", 0);
    EXPECT_EQ(screen().txtTheme.text(), u"BIRDS");
}

TEST_F(InventorOpening, OffersNothingWithoutTopics) {
    std::filesystem::remove_all(folder / "Topics");
    player.click("lblOpen");
    EXPECT_TRUE(list().lstTopics.items.empty());
    EXPECT_FALSE(list().lblOk(1).enabled);
}

TEST_F(InventorOpening, SaysThatAFileCannotBeRead) {
    player.click("lblOpen");
    disk.breakDown(FaultyDisk::Operation::Open);
    desktop.expectMessage(u"\"BIRDS.txt\" cannot be read.");
    player.press(key::kReturn);
    EXPECT_EQ(screen().txtTheme.text(), u"");
}

}  // namespace
}  // namespace quillor::testing
