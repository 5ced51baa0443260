// One line of a scenario: tests/scenarios/README.md says what each means.
#pragma once

#include <algorithm>
#include <map>
#include <sstream>
#include <string>

#include "tests/qt/walkers.h"

namespace quillor::testing {

struct Step {
    std::string verb;
    std::string rest;

    explicit Step(const std::string& line)
        : verb(line.substr(0, line.find(' '))), rest(line.substr(verb.size() + 1)) {}

    /// Does it; false where it says what is seen instead.
    bool act(Walker& shell) const {
        if (verb == "press")
            press(shell);
        else if (verb == "hold")
            hold(shell);
        else if (verb == "type")
            shell.type(fromUtf8(quoted()));
        else if (verb == "access")
            shell.access(static_cast<char16_t>(rest.front()));
        else if (verb == "compose")
            shell.compose(replaceAll(fromUtf8(quoted()), u"|", u"\n"));
        else if (verb == "click")
            shell.click(rest);
        else if (verb == "tab")
            tab(shell);
        else
            return false;
        return true;
    }

    /// Whether what a walker shows is as it says.
    bool isSeen(const std::string& shown) const {
        const std::string id = rest.substr(0, rest.find(' '));
        if (verb == "front")
            return shown.compare(0, id.size() + 1, id + ":") == 0;
        const std::size_t found = shown.find("\n" + id + " ");
        if (found == std::string::npos)
            return false;
        const std::string line = shown.substr(found + 1, shown.find('\n', found + 1) - found - 1);
        if (verb == "focus")
            return line.ends_with(" focus");
        return verb == "field" && line.find(" \"" + quoted() + "\" ") != std::string::npos;
    }

  private:
    std::string quoted() const {
        const std::size_t from = rest.find('"') + 1;
        return rest.substr(from, rest.rfind('"') - from);
    }
    static int codeOf(const std::string& name) {
        static const std::map<std::string, int> kKeys{
            {"Tab", key::kTab},       {"Return", key::kReturn}, {"Escape", key::kEscape},
            {"Delete", key::kDelete}, {"Left", key::kLeft},     {"Backspace", key::kBackspace},
            {"Right", key::kRight},   {"Up", key::kUp},         {"Down", key::kDown},
            {"Home", key::kHome},     {"End", key::kEnd}};
        const auto known = kKeys.find(name);
        return known == kKeys.end() ? name.front() : known->second;
    }
    void press(Walker& shell) const {
        const std::string name = rest.substr(rest.rfind(' ') + 1);
        const auto held = [this](const char* modifier) { return rest.starts_with(modifier); };
        shell.press(codeOf(name), {held("ctrl "), held("shift "), false, false});
    }
    void hold(Walker& shell) const {
        const std::string name = rest.substr(0, rest.find(' '));
        const int repeats = std::stoi(rest.substr(name.size() + 1));
        if (name.size() > 1)
            shell.holdKey(codeOf(name), repeats);
        else
            shell.hold(lowerCase(static_cast<char16_t>(name.front())), repeats);
    }
    void tab(Walker& shell) const {
        constexpr int kMost = 60;
        const Step focus("focus " + rest);
        for (int i = 0; i < kMost && !focus.isSeen(shell.shown()); ++i)
            shell.press(key::kTab);
    }
};

}  // namespace quillor::testing
