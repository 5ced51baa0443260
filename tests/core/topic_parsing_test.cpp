// What a topic file's bytes hold, and the sample topic, byte for byte.
#include <algorithm>

#include <gtest/gtest.h>

#include "core/random.h"
#include "core/topic_library.h"
#include "tests/support/temp_folder.h"

namespace quillor {
namespace {

std::string numbered(int lines, const char* end = "\r\n") {
    std::string bytes;
    for (int i = 0; i < lines; ++i)
        bytes += "line " + std::to_string(i) + end;
    return bytes;
}

TEST(TopicParsing, PutsAllInCapitalsAndKeepsAccents) {
    const ParsedTopic parsed = parseTopic("Flores [espa\xF1ol]\r\njazm\xEDn\r\nfried Chicken\r\n");
    EXPECT_EQ(parsed.lines, 3);
    EXPECT_EQ(parsed.topic[0], u"FLORES [ESPAÑOL]");
    EXPECT_EQ(parsed.topic[1], u"JAZMÍN");
    EXPECT_EQ(parsed.topic[2], u"FRIED CHICKEN");
    EXPECT_EQ(parsed.topic[3], u"");
}

TEST(TopicParsing, OfATitleAloneGivesFiftyEmptyPhrases) {
    const ParsedTopic parsed = parseTopic("Title");
    EXPECT_EQ(parsed.lines, 1);
    for (std::size_t i = 1; i < parsed.topic.size(); ++i)
        EXPECT_TRUE(parsed.topic[i].empty());
}

TEST(TopicParsing, OfNothingGivesNothing) {
    const ParsedTopic parsed = parseTopic("");
    EXPECT_EQ(parsed.lines, 0);
    EXPECT_EQ(parsed.topic[0], u"");
    EXPECT_FALSE(parsed.tooLong);
}

TEST(TopicParsing, KeepsEmptyLinesAtTheirPlace) {
    const ParsedTopic parsed = parseTopic("T\r\n\r\nb\r\n\r\nd");
    EXPECT_EQ(parsed.lines, 5);
    EXPECT_EQ(parsed.topic[1], u"");
    EXPECT_EQ(parsed.topic[2], u"B");
    EXPECT_EQ(parsed.topic[4], u"D");
}

TEST(TopicParsing, TakesFiftyOneLines) {
    for (const char* end : {"\r\n", "\n", "\r"}) {
        const ParsedTopic parsed = parseTopic(numbered(51, end));
        EXPECT_EQ(parsed.lines, 51);
        EXPECT_EQ(parsed.topic[50], u"LINE 50");
        EXPECT_FALSE(parsed.tooLong);
    }
}

TEST(TopicParsing, TellsOfAFiftySecondLine) {
    EXPECT_TRUE(parseTopic(numbered(52)).tooLong);
    EXPECT_TRUE(parseTopic(numbered(51) + "x").tooLong);
    EXPECT_TRUE(parseTopic(numbered(51) + "\r\n").tooLong);
    EXPECT_EQ(parseTopic(numbered(60)).lines, 51);
    EXPECT_EQ(parseTopic(numbered(60)).topic[50], u"LINE 50");
}

TEST(TopicParsing, TakesMixedEndsAndNoEndAtTheLast) {
    const ParsedTopic parsed = parseTopic("t\na\rb\r\nc");
    EXPECT_EQ(parsed.lines, 4);
    EXPECT_EQ(parsed.topic[3], u"C");
}

TEST(TopicParsing, ReadsUtf8WithAndWithoutMark) {
    EXPECT_EQ(parseTopic("\xEF\xBB\xBFT\xC3\xADtulo\r\na\xC3\xB1o").topic[0], u"TÍTULO");
    EXPECT_EQ(parseTopic("T\xC3\xADtulo\r\na\xC3\xB1o").topic[1], u"AÑO");
}

TEST(TopicParsing, KeepsZeroBytesAsCharacters) {
    EXPECT_EQ(parseTopic(std::string_view("a\0b", 3)).topic[0], Text(u"A\0B", 3));
}

TEST(TopicParsing, TakesAnyBytes) {
    Random random(41);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes;
        for (int i = 0; i < 200; ++i)
            bytes.push_back(random.next() < 0.3
                                ? "\r\n"[round % 2]
                                : static_cast<char>(static_cast<int>(random.next() * 256)));
        const ParsedTopic parsed = parseTopic(bytes);
        ASSERT_LE(parsed.lines, kTopicLines);
        ASSERT_TRUE(!parsed.tooLong || parsed.lines == kTopicLines);
    }
}

TEST(TopicTitle, IsShownWithoutTheLanguageTag) {
    EXPECT_EQ(topicTitle(Topic{u"FRASES DE MUESTRA [ESPAÑOL]"}), u"FRASES DE MUESTRA");
    EXPECT_EQ(topicTitle(Topic{u"Flores [español]"}), u"FLORES");
    EXPECT_EQ(topicTitle(Topic{u"  PLAIN  "}), u"PLAIN");
}

TEST(TopicTitle, OfTheTagAloneIsEmpty) {
    EXPECT_EQ(topicTitle(Topic{u"[ESPAÑOL]"}), u"");
    EXPECT_EQ(topicTitle(Topic{}), u"");
}

constexpr const char* kSpanish =
    "FRASES DE MUESTRA [espa\361ol]\r\n"
    "danza\r\n"
    "lobo\r\n"
    "naruto\r\n"
    "saturno\r\n"
    "cromosoma\r\n"
    "violeta\r\n"
    "pollo frito\r\n"
    "tacos\r\n"
    "sushi\r\n"
    "maestro\r\n"
    "aladino\r\n"
    "b\351isbol\r\n"
    "iguanodon\r\n"
    "ozono\r\n"
    "dinero\r\n"
    "lavadora\r\n"
    "aluminio\r\n"
    "kelloggs\r\n"
    "jalisco\r\n"
    "newton\r\n"
    "jazm\355n\r\n"
    "antofobia\r\n"
    "mango\r\n"
    "jazz\r\n"
    "melodrama\r\n"
    "sismo\r\n"
    "adverbio\r\n"
    "harina\r\n"
    "grillo\r\n"
    "piano\r\n"
    "buscador\r\n"
    "br\372jula\r\n"
    "p\363quer\r\n"
    "cine\r\n"
    "coseno\r\n"
    "morse\r\n"
    "tren\r\n"
    "tsunami\r\n"
    "h\355gado\r\n"
    "austria\r\n"
    "despacho\r\n"
    "teclado\r\n"
    "espalda\r\n"
    "cactus\r\n"
    "turismo\r\n"
    "disoluci\363n\r\n"
    "zapato\r\n"
    "cin\351tica\r\n"
    "programa\r\n"
    "berro\r\n";

constexpr const char* kEnglish =
    "SAMPLE PHRASES\r\n"
    "dance\r\n"
    "wolf\r\n"
    "naruto\r\n"
    "saturn\r\n"
    "chromosome\r\n"
    "violet\r\n"
    "fried chicken\r\n"
    "tacos\r\n"
    "sushi\r\n"
    "teacher\r\n"
    "aladdin\r\n"
    "baseball\r\n"
    "iguanodon\r\n"
    "ozone\r\n"
    "Money\r\n"
    "washing machine\r\n"
    "aluminum\r\n"
    "kelloggs\r\n"
    "nevada\r\n"
    "newton\r\n"
    "jasmine\r\n"
    "antophobia\r\n"
    "mango\r\n"
    "jazz\r\n"
    "melodrama\r\n"
    "earthquake\r\n"
    "adverb\r\n"
    "flour\r\n"
    "cricket\r\n"
    "piano\r\n"
    "finder\r\n"
    "compass\r\n"
    "poker\r\n"
    "cinema\r\n"
    "coseno\r\n"
    "morse\r\n"
    "train\r\n"
    "tsunami\r\n"
    "liver\r\n"
    "austria\r\n"
    "dispatch\r\n"
    "keyboard\r\n"
    "back\r\n"
    "cactus\r\n"
    "tourism\r\n"
    "dissolution\r\n"
    "shoe\r\n"
    "kinetics\r\n"
    "program\r\n"
    "watercress\r\n";

class DemoTopic : public ::testing::Test {
  protected:
    void write() {
        std::filesystem::create_directories(topicFolder(settings, folder.path()));
        eWriteDemoTopic(settings, folder.path());
    }

    quillor::testing::TempFolder folder;
    GameSettings settings;
};

TEST_F(DemoTopic, IsWrittenInSpanish) {
    write();
    EXPECT_EQ(folder.read("Temas/DEMO.txt"), kSpanish);
    EXPECT_FALSE(folder.has("Topics"));
}

TEST_F(DemoTopic, IsWrittenInEnglish) {
    settings.gbEnglish = true;
    write();
    EXPECT_EQ(folder.read("Topics/DEMO.txt"), kEnglish);
}

TEST_F(DemoTopic, LeavesAFileOfThatName) {
    folder.write("Temas/DEMO.txt", "the player's own");
    write();
    EXPECT_EQ(folder.read("Temas/DEMO.txt"), "the player's own");
}

TEST_F(DemoTopic, IsReadBackAsATitleAndFiftyPhrasesInCapitals) {
    write();
    eLoadWords(settings, folder.path());
    const Topic& topic = settings.gaTopicLines.at(0);
    EXPECT_EQ(topic[0], u"FRASES DE MUESTRA [ESPAÑOL]");
    EXPECT_EQ(topic[7], u"POLLO FRITO");
    EXPECT_EQ(topic[12], u"BÉISBOL");
    EXPECT_EQ(topic[50], u"BERRO");
    EXPECT_EQ(std::count(topic.begin(), topic.end(), Text()), 0);
}

TEST_F(DemoTopic, ThatCannotBeWrittenIsNoMatter) {
    folder.write("Temas", "a file where the folder should be");
    eWriteDemoTopic(settings, folder.path());
    EXPECT_EQ(folder.read("Temas"), "a file where the folder should be");
}

}  // namespace

}  // namespace quillor
