// Random topic libraries, preferences and events.
#include <array>
#include <ostream>

#include "core/random.h"
#include "core/text_codec.h"
#include "tests/game/random_session.h"

namespace quillor::testing {

namespace {

class Dice {
  public:
    explicit Dice(std::uint64_t seed) : random_(seed) {}
    /// 0 .. sides-1.
    int roll(int sides) { return static_cast<int>(random_.next() * sides); }
    bool oneIn(int sides) { return roll(sides) == 0; }

  private:
    Random random_;
};

// Few different letters, so that they repeat; now and then what no key offers.
char16_t randomCharacter(Dice& dice) {
    constexpr TextView kUsual = u"AAEEIOSRNLTC";
    constexpr TextView kRare = u"ÁÉÍÓÚÜÑÀBDFGHJKMPQUVWXYZ0123456789";
    constexpr TextView kOdd = u"'.,-?!%&ÇÄ@/";
    const TextView source = dice.oneIn(40) ? kOdd : dice.oneIn(3) ? kRare : kUsual;
    return source.at(static_cast<std::size_t>(dice.roll(static_cast<int>(source.size()))));
}

Text randomPhrase(Dice& dice) {
    const int length = dice.oneIn(25) ? dice.roll(61) : 1 + dice.roll(24);
    Text phrase;
    for (int i = 0; i < length; ++i)
        phrase += dice.oneIn(7) ? u' ' : randomCharacter(dice);
    return phrase;
}

std::string randomTopic(Dice& dice) {
    Text lines = dice.oneIn(4) ? Text(u"TEMA [ESPAÑOL]") : randomPhrase(dice);
    const int phrases = dice.oneIn(6) ? dice.roll(3) : 2 + dice.roll(7);
    Text phrase = randomPhrase(dice);
    for (int i = 0; i < phrases; ++i) {
        lines.append(u"\r\n").append(phrase);
        if (!dice.oneIn(8))
            phrase = randomPhrase(dice);
    }
    return encodeText(lines);
}

GameSettings randomPreferences(Dice& dice) {
    GameSettings saved;
    saved.giDesign = static_cast<std::int16_t>(dice.oneIn(10) ? 9 : dice.roll(4));
    saved.gbUseSounds = dice.oneIn(2);
    saved.gbUseWikipedia = dice.oneIn(2);
    saved.gbHiddenLetters = dice.oneIn(4);
    saved.gbHardScore = dice.oneIn(4);
    saved.gbInfiniteScore = !dice.oneIn(4);
    saved.gbAgainstClock = dice.oneIn(3);
    saved.gbFirstLetter = dice.oneIn(3);
    saved.giWay = static_cast<std::int16_t>(dice.oneIn(10) ? 7 : dice.roll(5));
    saved.gbColorTransition = dice.oneIn(4);
    saved.giSavedTopic = static_cast<std::int16_t>(dice.oneIn(4) ? dice.roll(30) - 10 : 0);
    return saved;
}

struct Share {
    Act act;
    int weight;
};
constexpr std::array<Share, 12> kShares{{
    {Act::Guess, 640},
    {Act::Enter, 130},
    {Act::Answer, 25},
    {Act::Wait, 60},
    {Act::Click, 60},
    {Act::Hover, 10},
    {Act::Shortcut, 15},
    {Act::Menu, 12},
    {Act::FunctionKey, 3},
    {Act::SelectionKey, 8},
    {Act::BehindScreens, 10},
    {Act::CloseWindow, 1},
}};

Act randomAct(Dice& dice) {
    int sum = 0;
    for (const Share& share : kShares)
        sum += share.weight;
    int left = dice.roll(sum);
    for (const Share& share : kShares) {
        if (left < share.weight)
            return share.act;
        left -= share.weight;
    }
    return Act::Guess;
}

constexpr std::array<const char*, 12> kNames{
    "Guess",    "Enter", "Answer",      "Wait",         "Click",         "Hover",
    "Shortcut", "Menu",  "FunctionKey", "SelectionKey", "BehindScreens", "CloseWindow"};

}  // namespace

ProgramSetup randomSetup(std::uint64_t seed, bool english, bool classic) {
    Dice dice(seed);
    ProgramSetup setup{seed, english, classic, randomPreferences(dice), {}};
    const int topics = dice.oneIn(20) ? 0 : 1 + dice.roll(5);
    for (int i = 0; i < topics; ++i)
        setup.topics.push_back(randomTopic(dice));
    return setup;
}

std::vector<Event> randomEvents(std::uint64_t seed, int count) {
    Dice dice(~seed);
    std::vector<Event> events;
    for (int i = 0; i < count; ++i) {
        const Act act = randomAct(dice);
        events.push_back({act, static_cast<unsigned>(dice.roll(1 << 20))});
    }
    return events;
}

std::ostream& operator<<(std::ostream& out, const Event& event) {
    return out << "{Act::" << kNames.at(static_cast<std::size_t>(event.act)) << ", " << event.detail
               << '}';
}

std::ostream& operator<<(std::ostream& out, const ProgramSetup& setup) {
    out << "seed " << setup.seed << (setup.english ? ", English" : ", Spanish")
        << (setup.classic ? ", classic" : ", arcade");
    for (const std::string& topic : setup.topics)
        out << "\n--- topic\n" << toUtf8(decodeText(topic));
    return out << "\n---\n";
}

}  // namespace quillor::testing
