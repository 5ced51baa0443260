#include "topics/choice.h"

#include "core/guard.h"
#include "core/settings_file.h"
#include "game/rules/dealing.h"

namespace quillor {

namespace {

void say(Program& program, const TextPair& text) {
    program.desktop.messageBox(MessageIcon::Information, program.lang(text));
}

void takeWay(Program& program, std::int16_t way) {
    GameSettings& settings = program.settings;
    eDoWay(settings, way);
    settings.gbTourStarted |= settings.giWay == kTour;
    eSaveSettings(settings, program.folder);
}

}  // namespace

bool eChoiceTopic(Program& program, std::int16_t topicIndex, std::int16_t way) {
    Deal deal = Deal::TooFewPhrases;
    const bool done = quietly("eChoiceTopic", [&] {
        deal = dealFrom(program.settings, topicIndex, [&program] {
            program.desktop.seedRandom();
            return program.desktop.random();
        });
        if (deal == Deal::TooFewPhrases)
            say(program, texts::kTooFewPhrases);
        if (deal == Deal::DealtAndCut)
            say(program, texts::kPhraseCut);
        if (deal != Deal::TooFewPhrases)
            takeWay(program, way);
    });
    if (!done)
        program.desktop.messageBox(MessageIcon::Critical, program.lang(texts::kTopicsError));
    return done && deal != Deal::TooFewPhrases;
}

}  // namespace quillor
