// One walk over all screens in both languages: what holds for each.
#include <algorithm>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "core/text_codec.h"
#include "core/text_rules.h"
#include "game/game_screen.h"
#include "tests/support/open_program.h"
#include "toolkit/controls.h"
#include "topics/topics.h"
#include "ui/progress_screen.h"
#include "ui/settings_screen.h"

namespace quillor::testing {
namespace {

struct Place {
    const char* name;
    ScreenId id;
    bool english;
};

void PrintTo(const Place& place, std::ostream* out) {
    *out << place.name;
}

class EveryScreen : public ::testing::TestWithParam<Place>, public OpenProgram {
  protected:
    EveryScreen() {
        addSettingsScreen(program);
        addProgressScreen(program);
        addTopicScreens(program);
        addGameScreens(program);
        if (GetParam().english)
            folder.write("English.txt", "");
        show(ScreenId::Start);
        if (needsGame())
            show(ScreenId::Game);
    }

    Screen& screen() { return show(GetParam().id); }

    template <typename T>
    std::vector<T*> all() {
        std::vector<T*> found;
        for (const ControlRef& ref : screen().controls())
            if (auto* const* control = std::get_if<T*>(&ref))
                found.push_back(*control);
        return found;
    }
    std::vector<Label*> buttons() {
        std::vector<Label*> found = all<Label>();
        std::erase_if(found, [](const Label* label) { return !isButton(*label); });
        return found;
    }

  private:
    static bool needsGame() {
        return GetParam().id == ScreenId::Word1 || GetParam().id == ScreenId::Word2;
    }
};

bool isSymbol(const Label& label) {
    return label.font.face == Face::Webdings || label.font.face == Face::Wingdings;
}

// Where a control stands on the screen.
struct Box {
    Twips left, top, right, bottom;
};
Box boxOf(const Control& control) {
    Twips left = control.left;
    Twips top = control.top;
    for (const Frame* frame = control.parent; frame; frame = frame->parent) {
        left += frame->left;
        top += frame->top;
    }
    return {left, top, left + control.width, top + control.height};
}

bool within(const Box& inner, const Box& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

bool overlap(const Box& a, const Box& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

// In one row, and touching or nearly so.
bool sideBySide(const Box& a, const Box& b) {
    constexpr Twips kGap = 300;
    return a.top < b.bottom && b.top < a.bottom && a.left < b.right + kGap &&
           b.left < a.right + kGap;
}

TEST_P(EveryScreen, HasATitleAndASize) {
    EXPECT_FALSE(screen().title.empty());
    EXPECT_GT(screen().width, 0);
    EXPECT_GT(screen().height, 0);
}

TEST_P(EveryScreen, NamesEachControlOnce) {
    std::set<std::string> ids;
    for (const ControlRef& ref : screen().controls()) {
        EXPECT_NE(controlOf(ref).id, "");
        EXPECT_TRUE(ids.insert(controlOf(ref).id).second) << controlOf(ref).id;
    }
}

TEST_P(EveryScreen, PutsEachControlInFrontOfItsFrame) {
    std::set<const Control*> behind;
    for (const ControlRef& ref : screen().controls()) {
        const Control& control = controlOf(ref);
        EXPECT_TRUE(control.parent == nullptr || behind.contains(control.parent)) << control.id;
        behind.insert(&control);
    }
}

TEST_P(EveryScreen, KeepsWhatIsReadOrUsedWithinItsWindow) {
    const Box window{0, 0, screen().width, screen().height};
    for (const Label* label : all<Label>())
        EXPECT_TRUE(within(boxOf(*label), window)) << label->id;
    for (const TextField* field : all<TextField>())
        EXPECT_TRUE(within(boxOf(*field), window)) << field->id;
    for (const ListBox* list : all<ListBox>())
        EXPECT_TRUE(within(boxOf(*list), window)) << list->id;
}

// A half of a display, a tablet, a phone; and back.
struct Room {
    double width, height;
};
constexpr Room kRooms[] = {{960, 1040}, {768, 1024}, {360, 640}, {400, 900}, {1320, 810}};

TEST_P(EveryScreen, KeepsWhatIsReadOrUsedWithinWindowsOfAnyShape) {
    for (const Room& room : kRooms) {
        screen().fit(room.width, room.height);
        const Box window{0, 0, screen().width, screen().height};
        for (const ControlRef& ref : screen().controls()) {
            const Control& control = controlOf(ref);
            EXPECT_TRUE(std::holds_alternative<Picture*>(ref) || !Player::sees(control) ||
                        within(boxOf(control), window))
                << control.id << " at " << room.width;
        }
    }
}

TEST_P(EveryScreen, LetsNothingThatIsPressedOverlapInATallWindow) {
    for (const Room& room : kRooms) {
        screen().fit(room.width, room.height);
        std::vector<Control*> seen;
        for (Label* button : buttons())
            if (button->tabStop && Player::sees(*button))
                seen.push_back(button);
        for (TextField* field : all<TextField>())
            seen.push_back(field);
        for (ListBox* list : all<ListBox>())
            seen.push_back(list);
        for (const Control* one : seen)
            for (const Control* other : seen)
                EXPECT_TRUE(one == other || !overlap(boxOf(*one), boxOf(*other)))
                    << one->id << " and " << other->id << " at " << room.width;
    }
}

TEST_P(EveryScreen, StandsAsItDidWhenTheWindowIsAsItWas) {
    std::map<const Control*, Area> before;
    for (const ControlRef& ref : screen().controls())
        before[&controlOf(ref)] = areaOnScreen(controlOf(ref));
    for (const Room& room : kRooms)
        screen().fit(room.width, room.height);
    for (const ControlRef& ref : screen().controls())
        EXPECT_EQ(areaOnScreen(controlOf(ref)), before[&controlOf(ref)]) << controlOf(ref).id;
}

TEST_P(EveryScreen, KeepsTheLabelsThatAreSeenWithinTheirFrames) {
    for (const Label* label : all<Label>())
        EXPECT_TRUE(!label->parent || !Player::sees(*label) ||
                    within(boxOf(*label), boxOf(*label->parent)))
            << label->id;
}

TEST_P(EveryScreen, OffersTheFurtherMenuWithEveryEntryNamed) {
    const auto& shown = dynamic_cast<ProgramScreen&>(screen());
    for (const MenuItem* item : shown.mView.children)
        EXPECT_FALSE(item->caption.empty()) << item->id;
    const std::vector<Label*> labels = all<Label>();
    EXPECT_NE(std::find(labels.begin(), labels.end(), &shown.lblView), labels.end());
}

TEST_P(EveryScreen, SaysWhatEachButtonDoes) {
    for (const Label* button : buttons()) {
        const Text& spoken = button->spokenName.empty() ? button->caption : button->spokenName;
        EXPECT_NE(trimmed(spoken), u"") << button->id;
        EXPECT_TRUE(!isSymbol(*button) || !button->spokenName.empty()) << button->id;
        EXPECT_TRUE(button->onClick) << button->id;
    }
}

TEST_P(EveryScreen, NamesItsFieldsAndLists) {
    for (const TextField* field : all<TextField>())
        EXPECT_NE(field->spokenName, u"") << field->id;
    for (const ListBox* list : all<ListBox>())
        EXPECT_NE(list->spokenName, u"") << list->id;
}

TEST_P(EveryScreen, SaysNoAccessMarkAloud) {
    for (const Label* label : all<Label>()) {
        const Text& spoken = label->spokenName;
        EXPECT_EQ(spoken.find(u"&&"), Text::npos) << label->id;
        const std::size_t mark = spoken.find(u'&');
        EXPECT_TRUE(mark == Text::npos || spoken.substr(mark, 2) == u"& ") << label->id;
    }
}

TEST_P(EveryScreen, GivesEachAccessKeyToOneButton) {
    std::map<char16_t, std::string> owners;
    for (const Label* label : all<Label>()) {
        const char16_t accessed = accessKey(*label);
        EXPECT_TRUE(!accessed || owners.emplace(accessed, label->id).second)
            << label->id << " and " << owners[accessed];
    }
}

TEST_P(EveryScreen, StartsWithTheFocusOnAControlThatIsSeen) {
    const Control* focused = screen().initialFocus();
    EXPECT_TRUE(!focused || (Player::sees(*focused) && focused->enabled)) << focused->id;
}

TEST_P(EveryScreen, ReachesEveryButtonOrTheOneBesideItByTab) {
    const std::vector<Label*> labels = buttons();
    for (const Label* button : labels)
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](const Label* stop) {
            return stop->tabStop && sideBySide(boxOf(*stop), boxOf(*button));
        })) << button->id;
}

INSTANTIATE_TEST_SUITE_P(All, EveryScreen,
                         ::testing::Values(Place{"StartSpanish", ScreenId::Start, false},
                                           Place{"StartEnglish", ScreenId::Start, true},
                                           Place{"MenuSpanish", ScreenId::Menu, false},
                                           Place{"MenuEnglish", ScreenId::Menu, true},
                                           Place{"GameSpanish", ScreenId::Game, false},
                                           Place{"GameEnglish", ScreenId::Game, true},
                                           Place{"OptionsSpanish", ScreenId::Settings, false},
                                           Place{"OptionsEnglish", ScreenId::Settings, true},
                                           Place{"Word1Spanish", ScreenId::Word1, false},
                                           Place{"Word1English", ScreenId::Word1, true},
                                           Place{"Word2Spanish", ScreenId::Word2, false},
                                           Place{"Word2English", ScreenId::Word2, true},
                                           Place{"OpenTopicSpanish", ScreenId::OpenTopic, false},
                                           Place{"OpenTopicEnglish", ScreenId::OpenTopic, true},
                                           Place{"ProgressSpanish", ScreenId::Progress, false},
                                           Place{"ProgressEnglish", ScreenId::Progress, true},
                                           Place{"InventorSpanish", ScreenId::Inventor, false},
                                           Place{"InventorEnglish", ScreenId::Inventor, true}),
                         [](const auto& place) { return place.param.name; });

}  // namespace
}  // namespace quillor::testing
