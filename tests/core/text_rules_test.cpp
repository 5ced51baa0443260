// Alphabets, folding, wrapping, pasting and dark shades.
#include "core/text_rules.h"

#include <limits>
#include <set>

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace quillor
