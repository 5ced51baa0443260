#include "game/rules/ways.h"

#include "core/numbers.h"
#include "core/texts.h"

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

}  // namespace quillor
