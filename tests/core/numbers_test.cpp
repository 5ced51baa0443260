// Leading numbers of lines, rounding, and the random ones: the same everywhere, evenly
// spread.
#include "core/numbers.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

#include "core/random.h"

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

std::vector<int> percents(std::uint64_t seed) {
    Random random(seed);
    std::vector<int> drawn(8);
    std::generate(drawn.begin(), drawn.end(),
                  [&] { return static_cast<int>(random.next() * 100); });
    return drawn;
}

TEST(Random, GivesTheSameNumbersOnEveryPlatform) {
    EXPECT_EQ(percents(1), (std::vector<int>{56, 74, 97, 44, 44, 76, 87, 52}));
    EXPECT_EQ(percents(2026), (std::vector<int>{85, 47, 66, 38, 79, 72, 95, 80}));
}

TEST(Random, StaysWithinZeroAndOne) {
    Random random(3);
    for (int i = 0; i < 100'000; ++i) {
        const double drawn = random.next();
        ASSERT_GE(drawn, 0.0);
        ASSERT_LT(drawn, 1.0);
    }
}

TEST(Random, FillsTenBinsEvenly) {
    Random random(4);
    std::array<int, 10> bins{};
    for (int i = 0; i < 100'000; ++i)
        ++bins.at(static_cast<std::size_t>(random.next() * 10));
    EXPECT_GT(*std::min_element(bins.begin(), bins.end()), 9'600);
    EXPECT_LT(*std::max_element(bins.begin(), bins.end()), 10'400);
}

TEST(Random, ReseedingTwiceWithOneReadingDoesNotRepeat) {
    Random random(5);
    random.reseed(777);
    const double first = random.next();
    random.reseed(777);
    EXPECT_NE(random.next(), first);
}

TEST(Random, ReadingsOneApartGiveNumbersFarApart) {
    Random one(6);
    Random other(6);
    one.reseed(1000);
    other.reseed(1001);
    EXPECT_GT(std::abs(one.next() - other.next()), 0.001);
}

}  // namespace

}  // namespace quillor
