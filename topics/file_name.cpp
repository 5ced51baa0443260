// The rules of the strictest system, which is Windows, hold for all: topics travel.
#include "topics/file_name.h"

#include <algorithm>
#include <array>

#include "core/text_rules.h"

namespace quillor {

namespace {

constexpr TextView kForbidden = u"\\/:*?\"<>|";
constexpr char16_t kFirstPrintable = 32;
constexpr char16_t kDelete = 127;

constexpr std::array<TextView, 6> kDevices{u"CON", u"PRN", u"AUX", u"NUL", u"CONIN$", u"CONOUT$"};
constexpr std::array<TextView, 2> kPorts{u"COM", u"LPT"};
constexpr TextView kPortDigits = u"0123456789¹²³";

bool isDevice(TextView word) {
    if (std::find(kDevices.begin(), kDevices.end(), word) != kDevices.end())
        return true;
    return word.size() == 4 && kPortDigits.find(word.back()) != TextView::npos &&
           std::find(kPorts.begin(), kPorts.end(), word.substr(0, 3)) != kPorts.end();
}

}  // namespace

bool isForbiddenInNames(char16_t sign) {
    return sign < kFirstPrintable || sign == kDelete || kForbidden.find(sign) != TextView::npos;
}

Text withoutForbidden(TextView name) {
    Text legal(name);
    std::erase_if(legal, isForbiddenInNames);
    return legal;
}

// Windows looks at what stands before the first stop, and at no blanks around it.
Text besideDevices(TextView name) {
    const TextView start = name.substr(0, name.find(u'.'));
    if (!isDevice(trimmed(upperCase(start))))
        return Text(name);
    return Text(name).insert(start.find_last_not_of(u' ') + 1, u"_");
}

}  // namespace quillor
