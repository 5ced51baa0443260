// Alphabets, folding, pasting and dark shades; how a phrase is laid out in the board's
// three rows of fourteen.
#include "core/text_rules.h"

#include <algorithm>
#include <limits>
#include <set>

#include <gtest/gtest.h>

#include "core/random.h"

namespace quillor {
namespace {

TEST(Alphabet, OfLettersHasEachAccentBehindItsVowel) {
    EXPECT_EQ(eAlphabet(false), u"aáàbcdeéèfghiíìjklmnñoóòpqrstuúùüvwxyz");
    EXPECT_EQ(eAlphabet(false).size(), 38U);
}

TEST(Alphabet, InFullHasDigitsCapitalsAndSmallLetters) {
    EXPECT_EQ(eAlphabet(true),
              u"1234567890AÁÀBCDEÉÈFGHIÍÌJKLMNÑOÓÒPQRSTUÚÙÜVWXYZ"
              u"aáàbcdeéèfghiíìjklmnñoóòpqrstuúùüvwxyz");
    EXPECT_EQ(eAlphabet(true).size(), 86U);
}

TEST(Alphabet, HoldsNoCharacterTwice) {
    const TextView all = eAlphabet(true);
    EXPECT_EQ(std::set<char16_t>(all.begin(), all.end()).size(), all.size());
}

TEST(Alphabet, HasSmallLettersInTheOrderOfTheCapitals) {
    EXPECT_EQ(upperCase(eAlphabet(true).substr(48)), eAlphabet(true).substr(10, 38));
    EXPECT_EQ(lowerCase(eAlphabet(true).substr(10, 38)), eAlphabet(false));
}

TEST(LetterCase, KeepsAccents) {
    EXPECT_EQ(upperCase(u"jazmín pingüino añil à"), u"JAZMÍN PINGÜINO AÑIL À");
    EXPECT_EQ(lowerCase(u"JAZMÍN PINGÜINO AÑIL À"), u"jazmín pingüino añil à");
}

TEST(LetterCase, KnowsGreekAndCyrillic) {
    EXPECT_EQ(upperCase(u"άλφα όμως ώρα"), u"ΆΛΦΑ ΌΜΩΣ ΏΡΑ");
    EXPECT_EQ(upperCase(u"привет ёж їжак"), u"ПРИВЕТ ЁЖ ЇЖАК");
    EXPECT_EQ(lowerCase(u"ΆΛΦΑ ПРИВЕТ"), u"άλφα привет");
}

TEST(LetterCase, KnowsOtherLatinLetters) {
    EXPECT_EQ(upperCase(u"łódź ÿ žluťoučký đurđa őű"), u"ŁÓDŹ Ÿ ŽLUŤOUČKÝ ĐURĐA ŐŰ");
    EXPECT_EQ(lowerCase(u"Ÿ ŁÓDŹ"), u"ÿ łódź");
}

TEST(LetterCase, LeavesWhatHasNoCapitalOfOneCharacter) {
    EXPECT_EQ(upperCase(u"straße ×÷ ŉ 12.¿¡"), u"STRAßE ×÷ ŉ 12.¿¡");
    EXPECT_EQ(lowerCase(u"×÷ 12.¿¡ ÷"), u"×÷ 12.¿¡ ÷");
}

TEST(LetterCase, KeepsEveryCharactersLengthAndIsStable) {
    for (int code = 0; code <= 0xFFFF; ++code) {
        const auto character = static_cast<char16_t>(code);
        ASSERT_EQ(upperCase(upperCase(character)), upperCase(character)) << code;
        ASSERT_EQ(lowerCase(lowerCase(character)), lowerCase(character)) << code;
        ASSERT_EQ(upperCase(lowerCase(upperCase(character))), upperCase(character)) << code;
    }
}

TEST(Folding, MakesAccentedVowelsPlainCapitals) {
    EXPECT_EQ(eFoldAccents(u"áéíóúàèìòùü"), u"AEIOUAEIOUU");
    EXPECT_EQ(eFoldAccents(u"ÁÉÍÓÚÀÈÌÒÙÜ"), u"AEIOUAEIOUU");
    EXPECT_EQ(eFoldAccents(u"Ünica ópera"), u"UNICA OPERA");
}

TEST(Folding, LeavesTheLetterEnye) {
    EXPECT_EQ(eFoldAccents(u"jalapeño"), u"JALAPEÑO");
}

TEST(Folding, LeavesOtherAccents) {
    EXPECT_EQ(eFoldAccents(u"äçõ"), u"ÄÇÕ");
}

TEST(OneLine, HasABlankForEachBreakWithinAndNoneAtItsEnds) {
    EXPECT_EQ(oneLine(u"\r\na\nb\r\nc\r\rd\n"), u"a b c  d");
    EXPECT_EQ(oneLine(u" a\u2028b "), u" a b ");
    EXPECT_EQ(oneLine(u"\r\n\n"), u"");
    EXPECT_EQ(oneLine(u""), u"");
}

TEST(Trimming, TakesOffBlanksAtBothEndsOnly) {
    EXPECT_EQ(trimmed(u"  two  words "), u"two  words");
    EXPECT_EQ(trimmed(u"   "), u"");
    EXPECT_EQ(trimmed(u""), u"");
    EXPECT_EQ(trimmed(u"\ta\u00A0"), u"\ta\u00A0");
}

TEST(Replacing, TakesEveryOccurrence) {
    EXPECT_EQ(replaceAll(u"banana", u"an", u"-"), u"b--a");
    EXPECT_EQ(replaceAll(u"aaa", u"aa", u"b"), u"ba");
    EXPECT_EQ(replaceAll(u"aaa", u"a", u"aa"), u"aaaaaa");
    EXPECT_EQ(replaceAll(u"abc", u"b", u""), u"ac");
}

TEST(Replacing, OfNothingChangesNothing) {
    EXPECT_EQ(replaceAll(u"abc", u"", u"x"), u"abc");
}

TEST(DarkShade, RoundsEachComponentDownToTensWithinFifty) {
    EXPECT_EQ(eDarkShade(rgb(20, 140, 220)), rgb(20, 50, 50));
    EXPECT_EQ(eDarkShade(rgb(9, 10, 49)), rgb(0, 10, 40));
    EXPECT_EQ(eDarkShade(rgb(50, 51, 59)), rgb(50, 50, 50));
    EXPECT_EQ(eDarkShade(0), 0);
}

TEST(DarkShade, TakesAnyNumber) {
    EXPECT_EQ(eDarkShade(0x7FFFFFFF), rgb(50, 50, 50));
    EXPECT_EQ(eDarkShade(-1), rgb(50, 50, 0));
    EXPECT_EQ(blueOf(eDarkShade(std::numeric_limits<Color>::min())), 0);
}

TEST(Pasting, ReplacesEveryOccurrenceOfTheSelection) {
    const PastedText pasted = ePasteText(u"uno dos uno", u"uno", 4, u"tres");
    EXPECT_EQ(pasted.text, u"tres dos tres");
    EXPECT_EQ(pasted.caret, 8);
}

TEST(Pasting, FillsAnEmptyField) {
    const PastedText pasted = ePasteText(u"", u"", 0, u"tres");
    EXPECT_EQ(pasted.text, u"tres");
    EXPECT_EQ(pasted.caret, 4);
}

TEST(Pasting, InsertsAtTheCaret) {
    const PastedText pasted = ePasteText(u"abcd", u"", 2, u"--");
    EXPECT_EQ(pasted.text, u"ab--cd");
    EXPECT_EQ(pasted.caret, 4);
}

TEST(Pasting, OfAnEmptyClipboardLeavesTextAndCaret) {
    const PastedText pasted = ePasteText(u"abcd", u"", 3, u"");
    EXPECT_EQ(pasted.text, u"abcd");
    EXPECT_EQ(pasted.caret, 3);
}

TEST(Pasting, HoldsTheCaretWithinTheText) {
    EXPECT_EQ(ePasteText(u"ab", u"", 99, u"x").text, u"abx");
    EXPECT_EQ(ePasteText(u"ab", u"", -1, u"x").text, u"xab");
    EXPECT_EQ(ePasteText(u"", u"", 99, u"x").caret, 1);
}

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

TEST(Isolated, KeepsWhatRunsFromLeftToRight) {
    for (const TextView text : {u"", u"EL PINGÜINO", u"50 % & <b>\"x\"</b>", u"日本 ΩЖ 😀"})
        EXPECT_EQ(isolated(text), text);
}

TEST(Isolated, PutsBordersAroundWhatRunsFromRightToLeft) {
    EXPECT_EQ(isolated(u"שלום"), u"\u2068שלום\u2069");
    EXPECT_EQ(isolated(u"A مرحبا"), u"\u2068A مرحبا\u2069");
    EXPECT_EQ(isolated(u"\U00010800"), u"\u2068\U00010800\u2069");
}

TEST(Isolated, LeavesNothingThatTurnsOrEndsALine) {
    Text hostile = u"A";
    for (int sign = 0; sign < 0x10000; ++sign)
        if (isHiddenSign(static_cast<char16_t>(sign)))
            hostile += static_cast<char16_t>(sign);
    hostile += u"\u202Eש\u2069";
    const Text clean = isolated(hostile);
    EXPECT_EQ(clean.front(), 0x2068);
    EXPECT_EQ(clean.back(), 0x2069);
    EXPECT_TRUE(std::none_of(clean.begin() + 1, clean.end() - 1, isHiddenSign));
}

}  // namespace

}  // namespace quillor
