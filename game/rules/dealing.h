// Dealing: a topic with enough phrases, then one of them, never the last one again.
#pragma once

#include <cstdint>

#include "game/rules/ways.h"

namespace quillor {

enum class Deal {
    TooFewPhrases,  // nothing has changed
    Dealt,
    DealtAndCut,  // and the phrase was too long for the board
};

/// Deals a phrase of the topic: phrase, topic name and topic are in the record
/// then. Throws std::out_of_range for a topic that there is not.
Deal dealFrom(GameSettings& settings, std::int16_t topicIndex, const Chance& chance);

}  // namespace quillor
