// How a phrase is laid out in the board's three rows of fourteen.
#include <gtest/gtest.h>

#include "core/random.h"
#include "core/text_rules.h"

namespace quillor {
namespace {

Text shown(TextView phrase) {
    return wrapPhrase(phrase).shown;
}

TEST(Wrapping, LeavesUpToFourteenCharactersAsTheyAre) {
    EXPECT_EQ(shown(u"fried chicken"), u"fried chicken");
    EXPECT_EQ(shown(u"abcdef ghijklm"), u"abcdef ghijklm");
    EXPECT_EQ(shown(u""), u"");
    EXPECT_EQ(shown(u" "), u" ");
}

TEST(Wrapping, FillsARowBeforeAWordThatDoesNotFit) {
    EXPECT_EQ(shown(u"washing machine"), u"washing       machine");
    EXPECT_EQ(shown(u"washing machine").find(u"machine"), 14U);
}

TEST(Wrapping, LeavesAWordWithoutBlanksUnchangedAtAnyLength) {
    EXPECT_EQ(shown(u"esternocleidomastoideo"), u"esternocleidomastoideo");
    EXPECT_EQ(shown(Text(60, u'a')), Text(60, u'a'));
    EXPECT_FALSE(wrapPhrase(Text(60, u'a')).cut);
}

TEST(Wrapping, LetsALongWordOverrunItsRow) {
    EXPECT_EQ(shown(u"esternocleidomastoideo uno"), u"esternocleidomastoideo uno");
    EXPECT_EQ(shown(u"un esternocleidomastoideo"), u"un            esternocleidomastoideo");
}

TEST(Wrapping, KeepsAccentsAndCase) {
    EXPECT_EQ(shown(u"Ünica ópera añil"), u"Ünica ópera   añil");
}

TEST(Wrapping, FitsAWordThatEndsExactlyAtTheRow) {
    EXPECT_EQ(shown(u"abcdef ghijklm no"), u"abcdef ghijklm no");
    EXPECT_EQ(shown(u"abcdef ghijkl no"), u"abcdef ghijkl no");
}

TEST(Wrapping, GivesConsecutiveBlanksACellEach) {
    EXPECT_EQ(shown(u"a  b   cdefghijklmno"), u"a  b          cdefghijklmno");
}

TEST(Wrapping, IsNotCutWithThreeRows) {
    const WrappedPhrase wrapped = wrapPhrase(u"aaaaaaaaaaaaaa bbbbbbbbbbbbbb cccccccccccccc");
    EXPECT_FALSE(wrapped.cut);
}

TEST(Wrapping, CutsBeforeAFourthRowAndKeepsTheLastBlank) {
    const WrappedPhrase wrapped = wrapPhrase(u"aaaaaaaaaa bbbbbbbbbb cccccccccc dddddddddd");
    EXPECT_TRUE(wrapped.cut);
    EXPECT_EQ(wrapped.shown, u"aaaaaaaaaa    bbbbbbbbbb    cccccccccc ");
}

TEST(Wrapping, PutsABlankAheadInTheRowBehindAFullOne) {
    EXPECT_EQ(shown(u"aaaaaaaaaaaaaa bb"), u"aaaaaaaaaaaaaa bb");
}

// The words of a text, each with one blank behind it.
Text words(TextView text) {
    Text result;
    for (const char16_t character : trimmed(text))
        if (character != u' ' || result.back() != u' ')
            result.push_back(character);
    return result + u' ';
}

TEST(Wrapping, KeepsTheWordsInOrderAndDropsOnlyTheLastOnes) {
    Random random(21);
    for (int round = 0; round < 500; ++round) {
        Text phrase;
        for (int word = 0; word < 6; ++word)
            phrase.append(static_cast<std::size_t>(1 + random.next() * 13), u'x').push_back(u' ');
        phrase.pop_back();
        const WrappedPhrase wrapped = wrapPhrase(phrase);
        ASSERT_TRUE(words(phrase).starts_with(words(wrapped.shown))) << round;
        ASSERT_EQ(wrapped.cut, words(phrase) != words(wrapped.shown)) << round;
        ASSERT_LE(wrapped.shown.size(), 45U) << round;
    }
}

}  // namespace
}  // namespace quillor
