// Keeps the menu's checks, the record and the settings file in step.
#include "game/selection_ways.h"

#include "core/numbers.h"
#include "core/settings_file.h"
#include "game/game_screen.h"

namespace quillor {

SelectionWays::SelectionWays(frmGame& game) : game_(game) {
    for (int i = 0; i <= 2; ++i)
        game_.menu.mDoWay(i).onClick = [this, i] { mDoWay_Click(i); };
    for (int i = 0; i <= 1; ++i)
        game_.menu.mDoWayAll(i).onClick = [this, i] { mDoWayAll_Click(i); };
    game_.menu.mHelpy.onClick = [this] { mHelpy_Click(); };
    game_.menu.mHide.onClick = [this] { mHide_Click(); };
}

void SelectionWays::uncheckAll() {
    for (MenuItem& item : game_.menu.mDoWay)
        item.checked = false;
    for (MenuItem& item : game_.menu.mDoWayAll)
        item.checked = false;
}

void SelectionWays::mDoWay_Click(int index) {
    if (!game_.menu.mAuto.enabled || !game_.menu.mDoWay(index).enabled)
        return;
    game_.settings.gbAutoChoice = false;
    eDoWay(static_cast<std::int16_t>(index));
}

void SelectionWays::eDoWay(std::int16_t way) {
    GameSettings& settings = game_.settings;
    if (!settings.gbAutoChoice && way <= kTour) {
        uncheckAll();
        game_.menu.mDoWay(way).checked = true;
        settings.giTourStart = 0;
    }
    if (way == kManual || way == kRepeat)
        settings.gbTourStarted = false;
    if (way == kRepeat)
        settings.giTopicIndex = settings.giSavedTopic;
    if (way == kTour)
        startTour();
    settings.giWay = way;
    eSaveSettings(settings, game_.program.folder);
}

void SelectionWays::startTour() {
    GameSettings& settings = game_.settings;
    // The deals of a tour on its way must not move its start.
    if (settings.gbAutoChoice && settings.gbTourStarted)
        return;
    settings.giTourStart = settings.giTopicIndex;
    if (!settings.gbTourStarted && settings.giGameState == kWon) {
        // The topic just won counts as the tour's first.
        settings.giTopicIndex = topicAfter(settings.giTopicIndex);
        settings.gbTourStarted = true;
    }
}

void SelectionWays::mDoWayAll_Click(int index) {
    if (!game_.menu.mAuto.enabled)
        return;
    uncheckAll();
    game_.menu.mDoWayAll(index).checked = true;
    game_.settings.gbTourStarted = false;
    game_.settings.giTourStart = 0;
    game_.settings.giWay = static_cast<std::int16_t>(kAnyTopic + index);
    eSaveSettings(game_.settings, game_.program.folder);
}

void SelectionWays::eActivateAuto() {
    const std::int16_t way = game_.settings.giWay;
    if (way <= kManual || way > kHiddenTopic)
        return;
    game_.menu.mDoWay(0).checked = false;
    MenuItem& item = way <= kTour ? game_.menu.mDoWay(way) : game_.menu.mDoWayAll(way - kAnyTopic);
    item.checked = true;
}

void SelectionWays::eCheckOthers() {
    game_.menu.mHelpy.checked = game_.settings.gbFirstLetter;
    game_.menu.mHide.checked = game_.settings.gbHiddenLetters;
}

void SelectionWays::mHelpy_Click() {
    game_.settings.gbFirstLetter = !game_.settings.gbFirstLetter;
    eCheckOthers();
    eSaveSettings(game_.settings, game_.program.folder);
}

void SelectionWays::mHide_Click() {
    game_.settings.gbHiddenLetters = !game_.settings.gbHiddenLetters;
    eCheckOthers();
    eSaveSettings(game_.settings, game_.program.folder);
}

Text SelectionWays::ePutWhere() const {
    const GameSettings& settings = game_.settings;
    const int topics = settings.giTopicMax + 1;
    const int steps = settings.giTopicIndex - settings.giTourStart;
    const int position = (steps >= 0 ? steps : topics + steps) + 1;
    return game_.program.lang(texts::kTourPosition) + inDigits(position) +
           game_.program.lang(texts::kTourOf) + inDigits(topics);
}

std::int16_t SelectionWays::topicAfter(std::int16_t topic) const {
    return topic >= game_.settings.giTopicMax ? std::int16_t{0}
                                              : static_cast<std::int16_t>(topic + 1);
}

}  // namespace quillor
