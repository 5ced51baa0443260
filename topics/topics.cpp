#include "topics/topics.h"

#include <memory>

#include "core/guard.h"
#include "core/settings_file.h"
#include "game/rules/ways.h"
#include "topics/classic_entry.h"
#include "topics/inventor.h"
#include "topics/topic_opening.h"
#include "topics/topic_selection.h"
#include "topics/topic_sharing.h"

namespace quillor {

namespace {

void say(Program& program, const TextPair& text) {
    program.desktop.messageBox(MessageIcon::Information, program.lang(text));
}

void takeWay(Program& program, std::int16_t way) {
    GameSettings& settings = program.settings;
    eDoWay(settings, way);
    settings.gbTourStarted |= settings.giWay == kTour;
    program.note(eSaveSettings(settings, program.folder), texts::kSettingsUnsaved);
}

}  // namespace

bool eChoiceTopic(Program& program, std::int16_t topicIndex, std::int16_t way) {
    Deal deal = Deal::TooFewPhrases;
    const bool done = quietly("eChoiceTopic", [&] {
        deal =
            dealFrom(program.settings, topicIndex, [&program] { return program.desktop.draw(); });
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

void addTopicScreens(Program& program) {
    program.addScreen(ScreenId::Word1,
                      [](Program& owner) { return std::make_unique<frmWord1>(owner); });
    program.addScreen(ScreenId::Word2,
                      [](Program& owner) { return std::make_unique<frmWord2>(owner); });
    program.addScreen(ScreenId::Inventor,
                      [](Program& owner) { return std::make_unique<frmInventor>(owner); });
    program.addScreen(ScreenId::OpenTopic,
                      [](Program& owner) { return std::make_unique<frmOpen>(owner); });
    program.takeTopics = [&program](const std::vector<std::filesystem::path>& files) {
        return takeTopics(program, files);
    };
}

}  // namespace quillor
