// The topics that come with the game, by its own reading and laying out.
#include <set>

#include <gtest/gtest.h>

#include "core/files.h"
#include "core/text_codec.h"
#include "core/text_rules.h"
#include "core/texts.h"
#include "core/topic_library.h"
#include "tests/project/source_tree.h"
#include "tests/support/game_test.h"
#include "topics/topic_check.h"

namespace quillor::testing {
namespace {

class TopicPacks : public ::testing::TestWithParam<const char*> {
  protected:
    static Place folder() { return kSourceRoot / "resources/topics" / GetParam(); }
    static bool spanish() { return GetParam() == std::string("es"); }

    static std::vector<Topic> topics() {
        std::vector<Topic> all;
        for (const Place& file : topicFiles(folder()))
            all.push_back(parseTopic(readFileStart(file, kTopicLines)).topic);
        return all;
    }
    static std::vector<Text> phrases(const Topic& topic) {
        return {topic.begin() + 1, topic.end()};
    }
    static std::vector<Text> phrases() {
        std::vector<Text> all;
        for (const Topic& topic : topics())
            all.insert(all.end(), topic.begin() + 1, topic.end());
        return all;
    }
};

TEST_P(TopicPacks, AreAtLeastFortyOfFiftyPhrases) {
    EXPECT_GE(topics().size(), 40U);
    for (const Topic& topic : topics())
        EXPECT_EQ(countPhrases(topic), 50) << toUtf8(topic[0]);
}

// What the keys do not offer, what the board cuts, words beyond a row, blanks that are not
// meant, titles without their mark, and phrases that stand twice in a language.
TEST_P(TopicPacks, HoldNothingThatTheCheckerFinds) {
    const TopicReport report = checkTopics({folder()}, true);
    for (const Text& line : report.found)
        ADD_FAILURE() << toUtf8(line);
    EXPECT_EQ(report.exitCode(), 0);
}

TEST_P(TopicPacks, BearTheMarkOfSpanishAloneInTitlesThatFit) {
    for (const Topic& topic : topics()) {
        EXPECT_EQ(topic[0].ends_with(texts::kSpanishTag), spanish()) << toUtf8(topic[0]);
        EXPECT_LE(topic[0].size(), 35U) << toUtf8(topic[0]);
    }
}

TEST_P(TopicPacks, HavePhrasesOfThreeToThirtyFiveCharacters) {
    for (const Text& phrase : phrases()) {
        EXPECT_GE(phrase.size(), 3U) << toUtf8(phrase);
        EXPECT_LE(phrase.size(), 35U) << toUtf8(phrase);
    }
}

TEST_P(TopicPacks, FitIntoThreeRows) {
    for (const Text& phrase : phrases()) {
        EXPECT_FALSE(wrapPhrase(phrase).cut) << toUtf8(phrase);
        EXPECT_LE(wrapPhrase(phrase).shown.size(), 42U) << toUtf8(phrase);
    }
}

TEST_P(TopicPacks, HaveTwoWordsOrMoreInHalfOfAllPhrases) {
    const std::vector<Text> all = phrases();
    const auto several = std::count_if(
        all.begin(), all.end(), [](const Text& phrase) { return phrase.find(u' ') != Text::npos; });
    EXPECT_GE(2 * static_cast<std::size_t>(several), all.size());
}

TEST_P(TopicPacks, MixShortAndLongPhrasesInEachTopic) {
    for (const Topic& topic : topics()) {
        std::set<std::size_t> lengths;
        for (const Text& phrase : phrases(topic))
            lengths.insert(phrase.size());
        EXPECT_GE(lengths.size(), 15U) << toUtf8(topic[0]);
        EXPECT_GE(*lengths.rbegin(), 2 * *lengths.begin()) << toUtf8(topic[0]);
    }
}

TEST_P(TopicPacks, HoldNoPhraseTwice) {
    std::set<Text> seen;
    for (const Text& phrase : phrases())
        EXPECT_TRUE(seen.insert(eFoldAccents(phrase)).second) << toUtf8(phrase);
}

INSTANTIATE_TEST_SUITE_P(Languages, TopicPacks, ::testing::Values("es", "en"));

// The whole game without a window, with all of them loaded.
class PlayedPacks : public GameTest, public ::testing::WithParamInterface<const char*> {
  protected:
    PlayedPacks() {
        english = GetParam() == std::string("en");
        saved.gbInfiniteScore = true;
        for (const Place& file : topicFiles(kSourceRoot / "resources/topics" / GetParam()))
            run.folder.write(
                std::filesystem::path(english ? "Topics" : "Temas") / file.path().filename(),
                readFileStart(file, kTopicLines));
        openArcade();
    }
    void playWay(std::int16_t way) {
        settings.giWay = way;
        desktop.draws.clear();
        player.press(key::kReturn);
    }
    /// Finds every letter and digit of the phrase.
    void win() {
        Text letters = settings.gsPhrase;
        std::erase(letters, u' ');
        player.type(letters);
        EXPECT_EQ(settings.giGameState, kWon) << toUtf8(settings.gsPhrase);
        desktop.advance(1000);
    }
};

TEST_P(PlayedPacks, AreAllVisitedOnATour) {
    const std::size_t topics = settings.gaTopicLines.size();
    ASSERT_GE(topics, 40U);
    for (std::size_t i = 0; i < topics; ++i) {
        playWay(kTour);
        EXPECT_EQ(settings.gsTopicName, topicTitle(settings.gaTopicLines[i]));
        if (i + 1 == topics)
            expectBox(texts::kTourCompleted);
        win();
    }
}

TEST_P(PlayedPacks, AreDealtFromAtRandom) {
    std::set<Text> titles;
    for (int i = 0; i < 100; ++i) {
        playWay(kAnyTopic);
        titles.insert(settings.gsTopicName);
        win();
    }
    EXPECT_GT(titles.size(), 25U);
}

TEST_P(PlayedPacks, AreDealtFromWithoutTheirNames) {
    for (int i = 0; i < 50; ++i) {
        playWay(kHiddenTopic);
        EXPECT_EQ(game().board.lblTopic.caption, lang(texts::kHiddenTopicName));
        win();
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, PlayedPacks, ::testing::Values("es", "en"));

}  // namespace
}  // namespace quillor::testing
