// Random games of random events: whatever is done, the game stays whole.
// QUILLOR_RANDOM_GAMES in the environment is how many games are played in all,
// QUILLOR_RANDOM_SEED where the seeds begin.
#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "tests/game/random_session.h"

namespace quillor::testing {
namespace {

constexpr int kEvents = 800;  // in one session

std::uint64_t fromEnvironment(const char* name, std::uint64_t otherwise) {
    const char* value = std::getenv(name);
    return value ? std::strtoull(value, nullptr, 10) : otherwise;
}

// Leaves out parts of the list, large ones first, as long as `fails` says that the rest
// still fails, which must be true of the list itself.
template <typename T, typename Fails>
std::vector<T> shrunk(std::vector<T> list, Fails&& fails) {
    for (std::size_t part = std::max<std::size_t>(list.size() / 2, 1); part > 0; part /= 2) {
        for (std::size_t from = 0; from < list.size();) {
            const auto first = list.begin() + static_cast<std::ptrdiff_t>(from);
            const auto length = std::min(part, list.size() - from);
            std::vector<T> rest(list.begin(), first);
            rest.insert(rest.end(), first + static_cast<std::ptrdiff_t>(length), list.end());
            if (fails(rest))
                list = std::move(rest);
            else
                from += length;
        }
    }
    return list;
}

// The shortest list of events that still makes the same problem.
std::string report(const ProgramSetup& setup, std::vector<Event> events,
                   const std::string& problem) {
    events = shrunk(std::move(events), [&](const std::vector<Event>& fewer) {
        return playSession(setup, fewer).problem == problem;
    });
    std::ostringstream text;
    text << problem << "\nwith " << setup << "after these events:\n";
    for (const Event& event : events)
        text << "  " << event << '\n';
    return text.str();
}

class RandomGames : public ::testing::TestWithParam<std::tuple<bool, bool>> {};

TEST_P(RandomGames, KeepEveryInvariant) {
    const auto [english, classic] = GetParam();
    const std::uint64_t wanted = fromEnvironment("QUILLOR_RANDOM_GAMES", QUILLOR_RANDOM_GAMES) / 4;
    std::uint64_t seed = fromEnvironment("QUILLOR_RANDOM_SEED", 1);
    std::uint64_t games = 0;
    std::uint64_t guesses = 0;
    for (; games < wanted; ++seed) {
        const ProgramSetup setup = randomSetup(seed, english, classic);
        const std::vector<Event> events = randomEvents(seed, kEvents);
        const Outcome outcome = playSession(setup, events);
        ASSERT_EQ(outcome.problem, "") << report(
            setup,
            {events.begin(), events.begin() + static_cast<std::ptrdiff_t>(outcome.event) + 1},
            outcome.problem);
        games += static_cast<std::uint64_t>(outcome.games);
        guesses += static_cast<std::uint64_t>(outcome.guesses);
    }
    EXPECT_GT(guesses, 3 * games) << "hardly anything is played";
}

INSTANTIATE_TEST_SUITE_P(All, RandomGames, ::testing::Combine(::testing::Bool(), ::testing::Bool()),
                         [](const auto& modes) {
                             return std::string(std::get<0>(modes.param) ? "English" : "Spanish") +
                                    (std::get<1>(modes.param) ? "Classic" : "Arcade");
                         });

TEST(RandomSessions, AreTheSameForTheSameSeed) {
    const ProgramSetup setup = randomSetup(7, true, false);
    const std::vector<Event> events = randomEvents(7, kEvents);
    const Outcome first = playSession(setup, events);
    const Outcome second = playSession(setup, events);
    EXPECT_EQ(first.games, second.games);
    EXPECT_EQ(first.guesses, second.guesses);
    EXPECT_EQ(first.event, second.event);
    EXPECT_GT(first.guesses, 0);
}

TEST(Shrinking, LeavesWhatIsNeeded) {
    std::vector<int> list;
    for (int i = 0; i < 300; ++i)
        list.push_back(i);
    const auto fails = [](const std::vector<int>& some) {
        return std::count(some.begin(), some.end(), 41) > 0 &&
               std::count(some.begin(), some.end(), 250) > 0;
    };
    EXPECT_EQ(shrunk(list, fails), (std::vector<int>{41, 250}));
}

TEST(Shrinking, MayLeaveNothing) {
    EXPECT_TRUE(shrunk(std::vector<int>{1, 2, 3}, [](const auto&) { return true; }).empty());
}

}  // namespace
}  // namespace quillor::testing
