// What the tour shows: every screen, and the states a player meets on them.
#pragma once

#include <filesystem>
#include <vector>

#include "app/program.h"
#include "qt/tour/tour.h"

namespace quillor {

/// Puts a topic with a known answer into an empty program folder, and takes
/// over what changes the look from `model` (empty: nothing): the language
/// marker, the colour file and the picture.
void prepareTourFolder(const std::filesystem::path& folder, const std::filesystem::path& model);

/// The steps, in the language of the program. Ends the program.
std::vector<TourStep> tourScript(Tour& tour, bool english);

}  // namespace quillor
