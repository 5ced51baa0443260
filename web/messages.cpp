// All that is not plain ASCII is written by its number.
#include "web/messages.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace quillor {

namespace {

constexpr const char* kDigits = "0123456789abcdef";

std::string hex(unsigned value, int digits) {
    std::string out;
    for (int i = digits - 1; i >= 0; --i)
        out += kDigits[(value >> (4 * i)) & 0xF];
    return out;
}

bool isPlain(char16_t unit) {
    return unit >= u' ' && unit < 0x7F && unit != u'"' && unit != u'\\';
}

}  // namespace

void Messages::separate() {
    if (!first_)
        out_ += ',';
    first_ = false;
}

Messages& Messages::open(char bracket) {
    separate();
    out_ += bracket;
    first_ = true;
    return *this;
}

Messages& Messages::close(char bracket) {
    out_ += bracket;
    first_ = false;
    return *this;
}

Messages& Messages::value(const std::string& written) {
    separate();
    out_ += written;
    return *this;
}

Messages& Messages::key(const char* name) {
    separate();
    out_.append("\"").append(name).append("\":");
    first_ = true;
    return *this;
}

Messages& Messages::text(TextView value) {
    separate();
    out_ += '"';
    for (const char16_t unit : value)
        if (isPlain(unit))
            out_ += static_cast<char>(unit);
        else
            out_.append("\\u").append(hex(unit, 4));
    out_ += '"';
    return *this;
}

Messages& Messages::word(const std::string& value) {
    return text(Text(value.begin(), value.end()));
}

Messages& Messages::number(double value) {
    if (std::trunc(value) == value && std::abs(value) < 1e9)
        return this->value(std::to_string(static_cast<long>(value)));
    // The streams of the library would be more than all the rest of the shell.
    constexpr std::size_t kRoom = 32;
    std::array<char, kRoom> digits{};
    const int length = std::snprintf(digits.data(), digits.size(), "%.8g", value);
    return this->value(std::string(digits.data(), static_cast<std::size_t>(length)));
}

Messages& Messages::flag(bool value) {
    return this->value(value ? "true" : "false");
}

Messages& Messages::none() {
    return value("null");
}

Messages& Messages::color(Color value) {
    const int turned = redOf(value) * 65536 + greenOf(value) * 256 + blueOf(value);
    return this->value("\"#" + hex(static_cast<unsigned>(turned), 6) + "\"");
}

Messages& Messages::numbers(std::initializer_list<Twips> values) {
    beginList();
    for (const Twips each : values)
        number(static_cast<double>(each));
    return endList();
}

Messages& Messages::area(const Area& place) {
    return numbers({place.left, place.top, place.width, place.height});
}

}  // namespace quillor
