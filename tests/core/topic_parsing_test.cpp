// What a topic file's bytes hold.
#include <gtest/gtest.h>

#include "core/random.h"
#include "core/topic_library.h"

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
            bytes.push_back(random.next() < 0.3 ? "\r\n"[round % 2]
                                                : static_cast<char>(random.next() * 256));
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

}  // namespace
}  // namespace quillor
