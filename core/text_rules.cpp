// Alphabets, folding and the wrapping of a phrase.
#include "core/text_rules.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace quillor {

namespace {

// Capitals `first`, `first + step` .. `last` stand `distance` below their small
// letters. Plain A to Z are not in the table.
struct CaseRange {
    int first;
    int last;
    int step;
    int distance;
};

constexpr std::array<CaseRange, 29> kCaseRanges{{
    // Latin
    {0xC0, 0xD6, 1, 32},
    {0xD8, 0xDE, 1, 32},
    {0x100, 0x12E, 2, 1},
    {0x132, 0x136, 2, 1},
    {0x139, 0x147, 2, 1},
    {0x14A, 0x176, 2, 1},
    {0x178, 0x178, 1, -121},
    {0x179, 0x17D, 2, 1},
    {0x1CD, 0x1DB, 2, 1},
    {0x1DE, 0x1EE, 2, 1},
    {0x1F8, 0x21E, 2, 1},
    {0x222, 0x232, 2, 1},
    {0x1E00, 0x1E94, 2, 1},
    {0x1EA0, 0x1EFE, 2, 1},
    // Greek
    {0x386, 0x386, 1, 38},
    {0x388, 0x38A, 1, 37},
    {0x38C, 0x38C, 1, 64},
    {0x38E, 0x38F, 1, 63},
    {0x391, 0x3A1, 1, 32},
    {0x3A3, 0x3AB, 1, 32},
    {0x3A3, 0x3A3, 1, 31},  // final sigma, only on the way up
    {0x3D8, 0x3EE, 2, 1},
    // Cyrillic
    {0x400, 0x40F, 1, 80},
    {0x410, 0x42F, 1, 32},
    {0x460, 0x480, 2, 1},
    {0x48A, 0x4BE, 2, 1},
    {0x4C1, 0x4CD, 2, 1},
    {0x4C0, 0x4C0, 1, 15},
    {0x4D0, 0x52E, 2, 1},
}};

bool holds(const CaseRange& range, int capital) {
    return capital >= range.first && capital <= range.last &&
           (capital - range.first) % range.step == 0;
}

template <char16_t (*Convert)(char16_t)>
Text converted(TextView text) {
    Text result(text.size(), u'\0');
    std::transform(text.begin(), text.end(), result.begin(), Convert);
    return result;
}

constexpr TextView kFullAlphabet =
    u"1234567890AÁÀBCDEÉÈFGHIÍÌJKLMNÑOÓÒPQRSTUÚÙÜVWXYZaáàbcdeéèfghiíìjklmnñoóòpqrstuúùüvwxyz";
constexpr std::size_t kSmallLetters = 38;
static_assert(kFullAlphabet.size() == 10 + 2 * kSmallLetters);

constexpr TextView kAccented = u"ÁÉÍÓÚÀÈÌÒÙÜ";
constexpr TextView kPlain = u"AEIOUAEIOUU";

int darkComponent(int component) {
    return std::clamp(component, 0, 50) / 10 * 10;
}

}  // namespace

char16_t upperCase(char16_t character) {
    if (character < 0x80)  // most text, at once
        return character >= u'a' && character <= u'z' ? character - 32 : character;
    for (const CaseRange& range : kCaseRanges)
        if (holds(range, character - range.distance))
            return static_cast<char16_t>(character - range.distance);
    return character;
}

char16_t lowerCase(char16_t character) {
    if (character < 0x80)
        return character >= u'A' && character <= u'Z' ? character + 32 : character;
    for (const CaseRange& range : kCaseRanges)
        if (holds(range, character))
            return static_cast<char16_t>(character + range.distance);
    return character;
}

Text upperCase(TextView text) {
    return converted<upperCase>(text);
}
Text lowerCase(TextView text) {
    return converted<lowerCase>(text);
}

Text trimmed(TextView text) {
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == TextView::npos)
        return {};
    return Text(text.substr(first, text.find_last_not_of(u' ') - first + 1));
}

Text oneLine(TextView text) {
    constexpr TextView kBreaks = u"\r\n\v\f\u0085\u2028\u2029";
    const std::size_t first = text.find_first_not_of(kBreaks);
    if (first == TextView::npos)
        return {};
    Text line;
    for (std::size_t i = first; i <= text.find_last_not_of(kBreaks); ++i) {
        const bool breaks = kBreaks.find(text[i]) != TextView::npos;
        if (text[i] == u'\r' && text[i + 1] == u'\n')
            ++i;  // both are one break
        line += breaks ? u' ' : text[i];
    }
    return line;
}

namespace {

constexpr char16_t kFirstStrongIsolate = 0x2068;
constexpr char16_t kPopIsolate = 0x2069;

struct SignRange {
    char16_t first, last;
};

template <std::size_t Count>
bool isIn(const std::array<SignRange, Count>& ranges, char16_t sign) {
    return std::any_of(ranges.begin(), ranges.end(), [sign](SignRange range) {
        return sign >= range.first && sign <= range.last;
    });
}

// Embeddings, overrides, isolates and marks.
constexpr std::array<SignRange, 4> kTurning{
    {{0x061C, 0x061C}, {0x200E, 0x200F}, {0x202A, 0x202E}, {0x2066, 0x2069}}};
constexpr std::array<SignRange, 3> kEnding{{{0, 0x1F}, {0x7F, 0x9F}, {0x2028, 0x2029}}};
// Hebrew, Arabic and their like; the last two are halves of signs beyond 16 bits.
constexpr std::array<SignRange, 5> kFromTheRight{
    {{0x0590, 0x08FF}, {0xFB1D, 0xFDFF}, {0xFE70, 0xFEFF}, {0xD802, 0xD803}, {0xD83A, 0xD83B}}};

}  // namespace

bool isHiddenSign(char16_t sign) {
    return isIn(kTurning, sign) || isIn(kEnding, sign);
}

Text isolated(TextView text) {
    Text clean;
    for (const char16_t sign : text)
        if (!isIn(kTurning, sign))
            clean += isIn(kEnding, sign) ? u' ' : sign;
    const bool turns = std::any_of(clean.begin(), clean.end(),
                                   [](char16_t sign) { return isIn(kFromTheRight, sign); });
    return turns ? kFirstStrongIsolate + clean + kPopIsolate : clean;
}

Text replaceAll(TextView text, TextView what, TextView with) {
    Text result;
    std::size_t from = 0;
    if (!what.empty()) {
        for (std::size_t at = text.find(what); at != TextView::npos; at = text.find(what, from)) {
            result.append(text.substr(from, at - from)).append(with);
            from = at + what.size();
        }
    }
    return result.append(text.substr(from));
}

TextView eAlphabet(bool full) {
    return full ? kFullAlphabet : kFullAlphabet.substr(kFullAlphabet.size() - kSmallLetters);
}

Text eFoldAccents(TextView text) {
    Text result = upperCase(text);
    for (char16_t& character : result) {
        const std::size_t at = kAccented.find(character);
        if (at != TextView::npos)
            character = kPlain[at];
    }
    return result;
}

WrappedPhrase wrapPhrase(TextView phrase) {
    if (phrase.size() <= kRowCells || phrase.find(u' ') == TextView::npos)
        return {Text(phrase), false};
    WrappedPhrase wrapped;
    int room = kRowCells;
    int rows = 1;
    std::size_t from = 0;
    for (;;) {
        const std::size_t blank = std::min(phrase.find(u' ', from), phrase.size());
        wrapped.shown.append(phrase.substr(from, blank - from));
        if (blank == phrase.size())
            return wrapped;
        wrapped.shown.push_back(u' ');
        room -= static_cast<int>(blank - from) + 1;
        from = blank + 1;
        const std::size_t next = std::min(phrase.find(u' ', from), phrase.size());
        if (static_cast<int>(next - from) <= room)
            continue;
        // A row that its words fill exactly takes no blank behind it.
        if (room == -1)
            wrapped.shown.pop_back();
        if (++rows > kBoardRows) {
            wrapped.cut = true;
            return wrapped;
        }
        // A word that overran its row leaves less than no room.
        wrapped.shown.append(static_cast<std::size_t>(std::max(room, 0)), u' ');
        room = kRowCells;
    }
}

bool eCutPhrase(GameSettings& settings) {
    WrappedPhrase wrapped = wrapPhrase(settings.gsPhrase);
    settings.gsPhrase = eFoldAccents(settings.gsPhrase);
    settings.gsShownPhrase = wrapped.shown;
    settings.gsCutPhrase = std::move(wrapped.shown);
    return wrapped.cut;
}

Color eDarkShade(Color color) {
    const int blue = static_cast<int>(std::floor(color / 65536.0));
    const int rest = static_cast<int>(color - blue * 65536LL);
    return rgb(darkComponent(rest % 256), darkComponent(rest / 256), darkComponent(blue));
}

PastedText ePasteText(TextView text, TextView selected, int caret, TextView clipboard) {
    const int at = std::clamp(caret, 0, static_cast<int>(text.size()));
    const int after = at + static_cast<int>(clipboard.size());
    if (!selected.empty())
        return {replaceAll(text, selected, clipboard), after};
    const auto cut = static_cast<std::size_t>(at);
    return {Text(text.substr(0, cut)).append(clipboard).append(text.substr(cut)), after};
}

}  // namespace quillor
