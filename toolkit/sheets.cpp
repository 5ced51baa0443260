#include "toolkit/sheets.h"

#include <algorithm>

namespace quillor {

Sheet sheetFor(std::span<const Sheet> sheets, double roomWidth, double roomHeight) {
    constexpr double kHighest = 1.3;  // of a sheet's least height: what is too far apart is not one
    const Layout wanted = roomWidth < roomHeight ? Layout::Tall : Layout::Wide;
    Sheet best;
    double bestScale = 0;
    for (const Sheet& sheet : sheets) {
        const double scale = std::min(roomWidth / static_cast<double>(sheet.width),
                                      roomHeight / static_cast<double>(sheet.height));
        if (sheet.layout != wanted || scale <= bestScale)
            continue;
        best = sheet;
        bestScale = scale;
    }
    if (wanted == Layout::Tall && bestScale > 0) {
        const auto least = static_cast<double>(best.height);
        best.height =
            static_cast<Twips>(std::clamp(roomHeight / bestScale, least, kHighest * least));
    }
    return best;
}

}  // namespace quillor
