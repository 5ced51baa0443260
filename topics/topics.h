// What the rest of the program needs of this folder: its screens, and the choice
// of a topic by the player or by the game itself.
#pragma once

#include <cstdint>

#include "app/program.h"

namespace quillor {

/// Makes classic entry, topic selection, inventor and what the inventor opens known to the
/// program, and how topics of others are taken in.
void addTopicScreens(Program& program);

/// Deals a phrase of the topic and takes the selection way over, which is saved.
/// Returns whether there is a game to play now; otherwise a box has said why not:
/// the topic has too few phrases, or there is no such topic.
bool eChoiceTopic(Program& program, std::int16_t topicIndex, std::int16_t way);

}  // namespace quillor
