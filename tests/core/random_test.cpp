// The generator: the same numbers everywhere, evenly spread.
#include "core/random.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

namespace quillor {
namespace {

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
