// Numbers are read by hand: the C library's readers follow the locale.
#include "core/numbers.h"

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

namespace quillor {

namespace {

bool isDigit(char16_t character) {
    return character >= u'0' && character <= u'9';
}

// A double holds no more decimals than this; the ones behind them are skipped.
constexpr int kMostDecimals = 15;

template <typename Integer>
Integer rounded(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0);
    const double result = up ? below + 1 : below;
    if (!(result >= std::numeric_limits<Integer>::min() &&
          result <= std::numeric_limits<Integer>::max()))
        throw std::overflow_error("number out of range");
    return static_cast<Integer>(result);
}

}  // namespace

double leadingNumber(TextView line) {
    std::size_t at = 0;
    while (at < line.size() && (line[at] == u' ' || line[at] == u'\t'))
        ++at;
    const bool negative = at < line.size() && line[at] == u'-';
    if (negative || (at < line.size() && line[at] == u'+'))
        ++at;
    double value = 0;
    for (; at < line.size() && isDigit(line[at]); ++at)
        value = value * 10 + (line[at] - u'0');
    if (at < line.size() && line[at] == u'.') {
        double decimals = 0;
        double scale = 1;
        for (int count = 0; count < kMostDecimals && ++at < line.size() && isDigit(line[at]);
             ++count) {
            decimals = decimals * 10 + (line[at] - u'0');
            scale *= 10;
        }
        value += decimals / scale;
    }
    return negative ? -value : value;
}

Text inDigits(int value) {
    const std::string digits = std::to_string(value);
    return Text(digits.begin(), digits.end());
}

std::int16_t toInteger(double value) {
    return rounded<std::int16_t>(value);
}

std::int32_t toLong(double value) {
    return rounded<std::int32_t>(value);
}

}  // namespace quillor
