#include "game/rules/dealing.h"

#include <algorithm>

#include "core/text_rules.h"
#include "core/texts.h"
#include "core/topic_library.h"

namespace quillor {

namespace {

/// Consecutive phrases from the first slot; a gap ends the count.
int countPhrases(const Topic& topic) {
    const auto gap =
        std::find_if(topic.begin() + 1, topic.end(), [](const Text& line) { return line.empty(); });
    return static_cast<int>(gap - topic.begin()) - 1;
}

bool isAcceptable(const Text& phrase, const Text& last) {
    return !trimmed(phrase).empty() && phrase != last;
}

// At least two phrases, and one of them can be dealt: otherwise dealing would
// never end.
bool hasEnoughPhrases(const Topic& topic, const Text& last) {
    if (topic[1].empty() || topic[2].empty())
        return false;
    return std::any_of(topic.begin() + 1, topic.begin() + 1 + countPhrases(topic),
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
