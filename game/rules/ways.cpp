#include "game/rules/ways.h"

#include <algorithm>

#include "core/numbers.h"
#include "core/text_rules.h"
#include "core/texts.h"
#include "core/topic_library.h"

namespace quillor {

namespace {

std::int16_t topicAfter(const GameSettings& settings, std::int16_t topic) {
    return topic >= settings.giTopicMax ? std::int16_t{0} : static_cast<std::int16_t>(topic + 1);
}

void startTour(GameSettings& settings) {
    // The deals of a tour on its way must not move its start.
    if (settings.gbAutoChoice && settings.gbTourStarted)
        return;
    settings.giTourStart = settings.giTopicIndex;
    if (!settings.gbTourStarted && settings.giGameState == kWon) {
        // The topic just won counts as the tour's first.
        settings.giTopicIndex = topicAfter(settings, settings.giTopicIndex);
        settings.gbTourStarted = true;
    }
}

bool isAcceptable(const Text& phrase, const Text& last) {
    return !trimmed(phrase).empty() && phrase != last;
}

// One of them can be dealt, too: otherwise dealing would never end.
bool hasEnoughPhrases(const Topic& topic, const Text& last) {
    const int phrases = countPhrases(topic);
    if (phrases < kFewestPhrases)
        return false;
    return std::any_of(topic.begin() + 1, topic.begin() + 1 + phrases,
                       [&last](const Text& phrase) { return isAcceptable(phrase, last); });
}

Text nameOf(const Topic& topic, const GameSettings& settings) {
    if (settings.giWay == kHiddenTopic)
        return eLang(settings, texts::kHiddenTopicName);
    const Text title = topicTitle(topic);
    return title.empty() ? eLang(settings, texts::kNoTopic) : title;
}

Text drawPhrase(const Topic& topic, const Text& last, const Chance& chance) {
    const int phrases = countPhrases(topic);
    for (;;) {
        const int slot = static_cast<int>(phrases * chance()) + 1;
        const Text& phrase = topic.at(static_cast<std::size_t>(slot));
        if (isAcceptable(phrase, last))
            return phrase;
    }
}

}  // namespace

void eDoWay(GameSettings& settings, std::int16_t way) {
    if (!settings.gbAutoChoice && way <= kTour)
        settings.giTourStart = 0;
    if (way == kManual || way == kRepeat)
        settings.gbTourStarted = false;
    if (way == kRepeat)
        settings.giTopicIndex = settings.giSavedTopic;
    if (way == kTour)
        startTour(settings);
    settings.giWay = way;
}

void chooseFromAll(GameSettings& settings, int index) {
    settings.gbTourStarted = false;
    settings.giTourStart = 0;
    settings.giWay = static_cast<std::int16_t>(kAnyTopic + index);
}

void drawTopic(GameSettings& settings, const Chance& chance) {
    if (settings.giWay >= kAnyTopic)
        settings.giTopicIndex = static_cast<std::int16_t>(chance() * (settings.giTopicMax + 1));
}

bool moveTourOn(GameSettings& settings) {
    if (settings.giWay != kTour || settings.gbClassicMode)
        return false;
    settings.giTopicIndex = topicAfter(settings, settings.giTopicIndex);
    return settings.giTopicIndex == settings.giTourStart;
}

Text ePutWhere(const GameSettings& settings) {
    const int topics = settings.giTopicMax + 1;
    const int steps = settings.giTopicIndex - settings.giTourStart;
    const int position = (steps >= 0 ? steps : topics + steps) + 1;
    return eLang(settings, texts::kTourPosition) + inDigits(position) +
           eLang(settings, texts::kTourOf) + inDigits(topics);
}

Deal dealFrom(GameSettings& settings, std::int16_t topicIndex, const Chance& chance) {
    const Topic& topic = settings.gaTopicLines.at(static_cast<std::size_t>(topicIndex));
    if (!hasEnoughPhrases(topic, settings.gsLastPhrase))
        return Deal::TooFewPhrases;
    settings.gsTopicName = nameOf(topic, settings);
    settings.giTopicIndex = settings.giSavedTopic = topicIndex;
    settings.gsPhrase = drawPhrase(topic, settings.gsLastPhrase, chance);
    settings.gsLastPhrase = settings.gsPhrase;
    return eCutPhrase(settings) ? Deal::DealtAndCut : Deal::Dealt;
}

}  // namespace quillor
