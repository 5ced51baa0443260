// Where the next phrase comes from: the five selection ways, the tour, and the
// dealing of a phrase, never the last one again.
#pragma once

#include <cstdint>
#include <functional>

#include "core/game_settings.h"

namespace quillor {

/// A draw in [0, 1), freshly seeded each time.
using Chance = std::function<double()>;

/// Takes over way Manual, Repeat or Tour; by the player's choice unless
/// `gbAutoChoice` says that the game deals by itself. Other ways are only
/// written down. The caller saves the settings.
void eDoWay(GameSettings& settings, std::int16_t way);
/// The player's choice of Any topic (index 0) or Hidden (1). The caller saves the settings.
void chooseFromAll(GameSettings& settings, int index);

/// Draws a topic for the ways that do so; for the others `giTopicIndex` stays.
void drawTopic(GameSettings& settings, const Chance& chance);

/// A game on the tour is over: the next topic in order, the first one after the
/// last. Returns whether that completes the tour; other ways and classic games
/// are left alone.
bool moveTourOn(GameSettings& settings);

/// "Tour 2/5": the place of the current topic in the tour.
Text ePutWhere(const GameSettings& settings);

enum class Deal {
    TooFewPhrases,  // nothing has changed
    Dealt,
    DealtAndCut,  // and the phrase was too long for the board
};

/// Deals a phrase of the topic: phrase, topic name and topic are in the record
/// then. Throws std::out_of_range for a topic that there is not.
Deal dealFrom(GameSettings& settings, std::int16_t topicIndex, const Chance& chance);

}  // namespace quillor
