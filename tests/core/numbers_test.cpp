// Leading numbers of lines, and rounding.
#include "core/numbers.h"

#include <clocale>
#include <limits>
#include <stdexcept>

#include <gtest/gtest.h>

namespace quillor {
namespace {

TEST(LeadingNumber, StopsAtTheFirstOtherCharacter) {
    EXPECT_EQ(leadingNumber(u"12abc"), 12);
    EXPECT_EQ(leadingNumber(u"3 4"), 3);
    EXPECT_EQ(leadingNumber(u"255\r"), 255);
}

TEST(LeadingNumber, MayFollowBlanksAndASign) {
    EXPECT_EQ(leadingNumber(u"  \t7"), 7);
    EXPECT_EQ(leadingNumber(u" -5"), -5);
    EXPECT_EQ(leadingNumber(u"+5"), 5);
}

TEST(LeadingNumber, MayHaveDecimals) {
    EXPECT_DOUBLE_EQ(leadingNumber(u"2.25x"), 2.25);
    EXPECT_DOUBLE_EQ(leadingNumber(u"-.5"), -0.5);
    EXPECT_DOUBLE_EQ(leadingNumber(u"4."), 4);
    EXPECT_DOUBLE_EQ(leadingNumber(u"1.2.3"), 1.2);
}

TEST(LeadingNumber, IsZeroWhereThereIsNone) {
    for (const TextView line : {u"", u"abc", u"-", u"+", u".", u" ", u"-x", u"&HFF", u"١"})
        EXPECT_EQ(leadingNumber(line), 0);
}

TEST(LeadingNumber, TakesALineOfAnyLength) {
    EXPECT_EQ(leadingNumber(Text(1000, u'9')), std::numeric_limits<double>::infinity());
    EXPECT_NEAR(leadingNumber(u"0." + Text(1000, u'3')), 1.0 / 3, 1e-14);
}

TEST(LeadingNumber, PaysNoHeedToTheLocale) {
    const char* before = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "es_ES.UTF-8");
    EXPECT_DOUBLE_EQ(leadingNumber(u"2.5"), 2.5);
    EXPECT_DOUBLE_EQ(leadingNumber(u"2,5"), 2);
    std::setlocale(LC_NUMERIC, before);
}

TEST(Rounding, GoesToTheNearest) {
    EXPECT_EQ(toInteger(2.4), 2);
    EXPECT_EQ(toInteger(2.6), 3);
    EXPECT_EQ(toInteger(-2.6), -3);
}

TEST(Digits, StandBehindAMinusSignBelowZero) {
    EXPECT_EQ(inDigits(0), u"0");
    EXPECT_EQ(inDigits(-1000), u"-1000");
    EXPECT_EQ(inDigits(32767), u"32767");
}

TEST(Rounding, TakesHalvesToTheEvenNeighbour) {
    EXPECT_EQ(toInteger(0.5), 0);
    EXPECT_EQ(toInteger(1.5), 2);
    EXPECT_EQ(toInteger(2.5), 2);
    EXPECT_EQ(toInteger(-1.5), -2);
    EXPECT_EQ(toInteger(-2.5), -2);
}

TEST(Rounding, HoldsSixteenBits) {
    EXPECT_EQ(toInteger(32767.4), 32767);
    EXPECT_EQ(toInteger(-32768.5), -32768);
    EXPECT_THROW(toInteger(32767.5), std::overflow_error);
    EXPECT_THROW(toInteger(-32769), std::overflow_error);
    EXPECT_THROW(toInteger(99999), std::overflow_error);
}

TEST(Rounding, HoldsThirtyTwoBitsForAColour) {
    EXPECT_EQ(toLong(2147483647.0), 2147483647);
    EXPECT_EQ(toLong(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    EXPECT_THROW(toLong(2147483648.0), std::overflow_error);
}

TEST(Rounding, RefusesWhatIsNoNumber) {
    EXPECT_THROW(toInteger(std::numeric_limits<double>::infinity()), std::overflow_error);
    EXPECT_THROW(toLong(std::numeric_limits<double>::quiet_NaN()), std::overflow_error);
}

}  // namespace
}  // namespace quillor
