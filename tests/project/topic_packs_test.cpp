// The topics that come with the game, by its own reading and laying out.
#include <set>

#include <gtest/gtest.h>

#include "core/text_codec.h"
#include "core/text_rules.h"
#include "core/topic_library.h"
#include "tests/project/source_tree.h"

namespace quillor::testing {
namespace {

class TopicPacks : public ::testing::TestWithParam<const char*> {
  protected:
    static std::vector<Topic> topics() {
        std::vector<Topic> all;
        const auto folder = kSourceRoot / "resources/topics" / GetParam();
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(file), {}};
            const ParsedTopic parsed = parseTopic(bytes);
            EXPECT_EQ(parsed.lines, kTopicLines) << entry.path();
            EXPECT_FALSE(parsed.tooLong) << entry.path();
            all.push_back(parsed.topic);
        }
        return all;
    }
};

TEST_P(TopicPacks, AreAtLeastForty) {
    EXPECT_GE(topics().size(), 40U);
}

TEST_P(TopicPacks, FitTheBoardAndTheKeys) {
    for (const Topic& topic : topics()) {
        EXPECT_LE(topic[0].size(), 35U) << toUtf8(topic[0]);
        for (std::size_t i = 1; i < topic.size(); ++i) {
            const WrappedPhrase wrapped = wrapPhrase(topic[i]);
            EXPECT_FALSE(wrapped.cut) << toUtf8(topic[i]);
            EXPECT_LE(wrapped.shown.size(), 42U) << toUtf8(topic[i]);
            EXPECT_GE(topic[i].size(), 3U) << toUtf8(topic[0]);
            EXPECT_EQ(trimmed(topic[i]), topic[i]);
            EXPECT_EQ(
                eFoldAccents(topic[i]).find_first_not_of(u"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ1234567890 "),
                Text::npos)
                << toUtf8(topic[i]);
        }
    }
}

TEST_P(TopicPacks, HoldNoPhraseTwice) {
    std::set<Text> seen;
    for (const Topic& topic : topics())
        for (std::size_t i = 1; i < topic.size(); ++i)
            EXPECT_TRUE(seen.insert(eFoldAccents(topic[i])).second) << toUtf8(topic[i]);
}

INSTANTIATE_TEST_SUITE_P(Languages, TopicPacks, ::testing::Values("es", "en"));

}  // namespace
}  // namespace quillor::testing
