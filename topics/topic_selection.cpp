// Dealing: a topic with enough phrases, then one of them, never the last one again.
#include "topics/topic_selection.h"

#include <algorithm>

#include "app/shared_operations.h"
#include "core/guard.h"
#include "core/text_rules.h"
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

}  // namespace

frmWord2::frmWord2(Program& program) : EntryScreen("frmWord2", program) {
    layOut();
    connect();
}

void frmWord2::connect() {
    lstTopics.onClick = [this] { enableAccept(true); };
    lstTopics.onDoubleClick = [this] { lblOk_Click(); };
    lstTopics.onKeyDown = [this](KeyEvent& event) { lstTopics_KeyDown(event); };
    for (int i = 0; i <= 1; ++i) {
        lblChng(i).onClick = [this, i] { eChangeMode(i == 0 ? -1 : +1); };
        lblChng(i).onMouseDown = [this, i] { lblChng(i).textColor = settings_.glGrey; };
        lblChng(i).onMouseUp = [this, i] { lblChng(i).textColor = settings_.glWhite; };
    }
    connectAccept([this] { lblOk_Click(); });
}

void frmWord2::onLoad() {
    eTranslate();
    standOverGame();
    // The caption of the mode keeps its first text, whatever mode is pending.
    pendingMode_ = settings_.giWay;
    fillList();
}

void frmWord2::eTranslate() {
    title = program_.lang(texts::kSelectionTitle);
    translateAccept();
    lstTopics.toolTip = program_.lang(texts::kTopicsTip);
    lstTopics.spokenName = program_.lang(texts::kSpokenTopicList);
    lblSelect.caption = program_.lang(texts::kSelectionLabel);
    lblChng(0).spokenName = program_.lang(texts::kSpokenPreviousMode);
    lblChng(1).spokenName = program_.lang(texts::kSpokenNextMode);
}

void frmWord2::fillList() {
    for (const Topic& topic : settings_.gaTopicLines)
        lstTopics.items.push_back(replaceAll(topic[0], Text(u" ") + Text(texts::kSpanishTag), u""));
    const int topics = static_cast<int>(lstTopics.items.size());
    if (settings_.giTopicIndex >= 0 && topics > settings_.giTopicIndex)
        lstTopics.select(settings_.giTopicIndex);
}

void frmWord2::lblOk_Click() {
    settings_.gbAutoChoice = false;
    eChoiceTopic(static_cast<std::int16_t>(lstTopics.listIndex()));
}

// A mode of 3 or 4, taken over from the game, has no caption.
void frmWord2::eChangeMode(int step) {
    pendingMode_ += step;
    if (pendingMode_ == -1)
        pendingMode_ = kTour;
    else if (pendingMode_ == kTour + 1)
        pendingMode_ = kManual;
    if (pendingMode_ >= kManual && pendingMode_ <= kTour)
        lblOpt.caption =
            program_.lang(texts::kSelectionModes.at(static_cast<std::size_t>(pendingMode_)));
}

void frmWord2::lstTopics_KeyDown(KeyEvent& event) {
    switch (event.code) {
        case key::kReturn:
            if (!event.autoRepeat)
                lblOk_Click();
            break;
        case key::kEscape:
            program_.close(*this);
            break;
        case key::kRight:
            eChangeMode(+1);
            break;
        case key::kLeft:
            eChangeMode(-1);
            break;
        default:
            return;
    }
    event.handled = true;
}

void frmWord2::eChoiceTopic(std::int16_t listIndex) {
    if (!quietly("eChoiceTopic", [&] { choose(listIndex); }))
        program_.desktop.messageBox(MessageIcon::Critical, program_.lang(texts::kTopicsError));
}

void frmWord2::choose(std::int16_t topicIndex) {
    // A copy: what the game does with the phrase may load the library anew.
    const Topic topic = settings_.gaTopicLines.at(static_cast<std::size_t>(topicIndex));
    if (!hasEnoughPhrases(topic, settings_.gsLastPhrase)) {
        program_.desktop.messageBox(MessageIcon::Information, program_.lang(texts::kTooFewPhrases));
        return;
    }
    nameTopic(topic);
    settings_.giTopicIndex = settings_.giSavedTopic = topicIndex;
    dealPhrase(topic, countPhrases(topic));
    eCutPhrase(program_);
    tellGame();
    program_.close(*this);
}

void frmWord2::nameTopic(const Topic& topic) {
    settings_.gsTopicName = topicTitle(topic);
    if (settings_.gsTopicName.empty())
        settings_.gsTopicName = program_.lang(texts::kNoTopic);
    if (settings_.giWay == kHiddenTopic)
        settings_.gsTopicName = program_.lang(texts::kHiddenTopicName);
}

void frmWord2::dealPhrase(const Topic& topic, int phrases) {
    do {
        program_.desktop.seedRandom();
        const int slot = static_cast<int>(phrases * program_.desktop.random()) + 1;
        settings_.gsPhrase = topic.at(static_cast<std::size_t>(slot));
    } while (!isAcceptable(settings_.gsPhrase, settings_.gsLastPhrase));
    settings_.gsLastPhrase = settings_.gsPhrase;
}

void frmWord2::tellGame() {
    PhraseTaker& game = phraseTaker(program_);
    game.eDoWay(static_cast<std::int16_t>(pendingMode_));
    game.ePlayNewGame();
    if (settings_.giWay == kTour) {
        if (!settings_.gbTourStarted)
            settings_.giTourStart = settings_.giTopicIndex;
        settings_.gbTourStarted = true;
    }
    game.enableRepeatAndTour();
}

}  // namespace quillor
