// Windows-1252 and UTF-8, by hand: no platform's converter is the same as
// another's, and none may fail on a player's file.
#include "core/text_codec.h"

#include <algorithm>
#include <array>
#include <optional>

namespace quillor {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr char32_t kReplacement = 0xFFFD;

// Bytes 80..9F; the five without a character keep their number.
constexpr std::array<char16_t, 32> kUpperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t fromWindows1252(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80u] : byte;
}

std::optional<char> toWindows1252(char16_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<char>(character);
    const auto found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
    if (found == kUpperControls.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

// One character of UTF-8. A wrong byte is a character of length 1 that is not
// valid; overlong forms, surrogates and numbers past 10FFFF are wrong.
struct Utf8Step {
    char32_t character = kReplacement;
    std::size_t length = 1;
    bool valid = false;
};

Utf8Step stepUtf8(std::string_view bytes, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned first = byte(at);
    if (first < 0x80)
        return {first, 1, true};
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || at + length > bytes.size())
        return {};
    char32_t character = first & (0xFFu >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80)
            return {};
        character = character << 6 | (byte(at + i) & 0x3Fu);
    }
    constexpr std::array<char32_t, 5> kSmallest{0, 0, 0x80, 0x800, 0x10000};
    if (character < kSmallest[length] || character > 0x10FFFF ||
        (character >= 0xD800 && character <= 0xDFFF))
        return {};
    return {character, length, true};
}

bool isUtf8BeyondAscii(std::string_view bytes) {
    const auto beyondAscii =
        std::find_if(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) != 0; });
    if (beyondAscii == bytes.end())
        return false;
    for (auto at = static_cast<std::size_t>(beyondAscii - bytes.begin()); at < bytes.size();) {
        const Utf8Step step = stepUtf8(bytes, at);
        if (!step.valid)
            return false;
        at += step.length;
    }
    return true;
}

void appendUtf8(std::string& bytes, char32_t character) {
    const auto put = [&](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | character >> 6);
        put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        put(0xE0 | character >> 12);
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xF0 | character >> 18);
        put(0x80 | (character >> 12 & 0x3F));
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

Text decodeWindows1252(std::string_view bytes) {
    Text text(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return fromWindows1252(static_cast<unsigned char>(byte)); });
    return text;
}

std::optional<std::string> encodeWindows1252(TextView text) {
    std::string bytes(text.size(), '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::optional<char> byte = toWindows1252(text[i]);
        if (!byte)
            return std::nullopt;
        bytes[i] = *byte;
    }
    return bytes;
}

bool readsAsUtf8(std::string_view bytes) {
    return bytes.starts_with(kUtf8Mark) || isUtf8BeyondAscii(bytes);
}

}  // namespace

Text decodeText(std::string_view bytes) {
    if (bytes.starts_with(kUtf8Mark))
        return fromUtf8(bytes.substr(kUtf8Mark.size()));
    return isUtf8BeyondAscii(bytes) ? fromUtf8(bytes) : decodeWindows1252(bytes);
}

std::string encodeText(TextView text) {
    std::optional<std::string> bytes = encodeWindows1252(text);
    // A few accented pairs (such as Ã©) would be taken for UTF-8 when read back.
    if (bytes && !readsAsUtf8(*bytes))
        return *std::move(bytes);
    return std::string(kUtf8Mark) + toUtf8(text);
}

std::string toUtf8(TextView text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t character = text[i];
        const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
        const bool paired = character >= 0xD800 && character <= 0xDBFF && i + 1 < text.size() &&
                            text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF;
        if (paired)
            character = 0x10000 + ((character - 0xD800) << 10) + (text[++i] - 0xDC00u);
        else if (surrogate)
            character = kReplacement;
        appendUtf8(bytes, character);
    }
    return bytes;
}

Text fromUtf8(std::string_view bytes) {
    Text text;
    text.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        const Utf8Step step = stepUtf8(bytes, at);
        at += step.length;
        if (step.character < 0x10000) {
            text.push_back(static_cast<char16_t>(step.character));
        } else {
            text.push_back(static_cast<char16_t>(0xD7C0 + (step.character >> 10)));
            text.push_back(static_cast<char16_t>(0xDC00 + (step.character & 0x3FF)));
        }
    }
    return text;
}

}  // namespace quillor
