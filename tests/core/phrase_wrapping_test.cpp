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
    EXPECT_EQ(shown(u"abcdef ghijkl no"), u"abcdef ghijkl no");
    EXPECT_EQ(shown(u"ab abcdefghijk"), u"ab abcdefghijk");
}

TEST(Wrapping, PutsNoBlankBehindARowThatIsExactlyFull) {
    EXPECT_EQ(shown(u"abcdef ghijklm no"), u"abcdef ghijklmno");
    EXPECT_EQ(shown(u"aaaaaaaaaaaaaa bb"), u"aaaaaaaaaaaaaabb");
    EXPECT_EQ(shown(u"fried chickens now"), u"fried chickensnow");
    EXPECT_EQ(shown(u"casa de muñeca en la luna llena"), u"casa de muñecaen la luna    llena");
}

TEST(Wrapping, FillsThreeRowsWithThreeWordsOfFourteen) {
    const WrappedPhrase wrapped = wrapPhrase(u"aaaaaaaaaaaaaa bbbbbbbbbbbbbb cccccccccccccc");
    EXPECT_EQ(wrapped.shown, Text(14, u'a') + Text(14, u'b') + Text(14, u'c'));
    EXPECT_FALSE(wrapped.cut);
}

TEST(Wrapping, CutsBehindAThirdRowThatIsExactlyFull) {
    const WrappedPhrase wrapped = wrapPhrase(u"aaaaaaaaaaaaaa bbbbbbbbbbbbbb cccccccccccccc d");
    EXPECT_EQ(wrapped.shown, Text(14, u'a') + Text(14, u'b') + Text(14, u'c'));
    EXPECT_TRUE(wrapped.cut);
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

TEST(CutPhrase, LaysOutAndFoldsThePhrase) {
    GameSettings settings;
    settings.gsPhrase = u"Ünica ópera añil";
    EXPECT_FALSE(eCutPhrase(settings));
    EXPECT_EQ(settings.gsShownPhrase, u"Ünica ópera   añil");
    EXPECT_EQ(settings.gsCutPhrase, settings.gsShownPhrase);
    EXPECT_EQ(settings.gsPhrase, u"UNICA OPERA AÑIL");
}

TEST(CutPhrase, FoldsAlsoWhatIsCutForTheBoard) {
    GameSettings settings;
    settings.gsPhrase = u"aaaaaaaaaa bbbbbbbbbb cccccccccc dddddddddd éé";
    EXPECT_TRUE(eCutPhrase(settings));
    EXPECT_EQ(settings.gsPhrase, u"AAAAAAAAAA BBBBBBBBBB CCCCCCCCCC DDDDDDDDDD EE");
    EXPECT_EQ(settings.gsShownPhrase.back(), u' ');
}

// Reads the rows again as a player does: a word ends at a blank or at its row's end.
Text words(TextView shown) {
    Text result;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const bool rowStarts = i % kRowCells == 0 && !result.empty();
        if ((shown[i] == u' ' || rowStarts) && !result.ends_with(u' '))
            result.push_back(u' ');
        if (shown[i] != u' ')
            result.push_back(shown[i]);
    }
    return result;
}

TEST(Wrapping, KeepsTheWordsWholeAndInOrderAndDropsOnlyTheLastOnes) {
    Random random(21);
    for (int round = 0; round < 2000; ++round) {
        Text phrase;
        for (int word = 0; word < 6; ++word)
            phrase.append(static_cast<std::size_t>(1 + random.next() * 14), u'x').push_back(u' ');
        const WrappedPhrase wrapped = wrapPhrase(trimmed(phrase));
        ASSERT_TRUE(phrase.starts_with(trimmed(words(wrapped.shown)) + u' ')) << round;
        ASSERT_EQ(wrapped.cut, trimmed(phrase) != trimmed(words(wrapped.shown))) << round;
        ASSERT_LE(wrapped.shown.size(), static_cast<std::size_t>(kBoardCells)) << round;
    }
}

}  // namespace
}  // namespace quillor
