// Sentences put together from the round and the record.
#include "game/announcer.h"

#include "core/numbers.h"

namespace quillor {

namespace {

const TextPair& wordsFor(Happened happened) {
    switch (happened) {
        case Happened::Found:
            return texts::kSpokenFound;
        case Happened::Repeated:
            return texts::kSpokenRepeated;
        default:
            return texts::kSpokenMistake;
    }
}

}  // namespace

Text spelled(const Round& round) {
    Text text;
    for (const Cell& cell : round.cells) {
        if (!cell.isLetter())
            continue;
        if (cell.startsWord && !text.empty())
            text += u", ";
        if (!cell.isFound())
            text += u"_ ";
        else
            text +=
                Text(1, round.hiddenLetters && cell.state == CellState::Found ? u'?'
                                                                              : cell.character) +
                u" ";
    }
    return text;
}

Announcer::Announcer(Program& program) : program_(program) {
    lblSpoken.id = "lblSpoken";
    lblSpoken.role = LabelRole::Notification;
    lblSpoken.literal = true;
}

void Announcer::sayNewGame(const Round& round) {
    lblSpoken.caption = program_.lang(texts::kTopicLabel) + u": " + program_.settings.gsTopicName +
                        u". " + program_.lang(texts::kSpokenLetters) + inDigits(round.letters()) +
                        u". " + spelled(round);
}

void Announcer::sayGuess(char16_t key, Happened happened, const Round& round) {
    lblSpoken.caption = Text(1, key) + program_.lang(wordsFor(happened)) +
                        program_.lang(texts::kSpokenMistakes) +
                        inDigits(program_.settings.giStrikes) + program_.lang(texts::kSpokenOf) +
                        inDigits(kMostMistakes) + u". " + spelled(round);
}

void Announcer::sayEnding() {
    const bool dead = program_.settings.giGameState == kDead;
    lblSpoken.caption = program_.lang(dead ? texts::kDead : texts::kVictory) + u" " +
                        program_.lang(texts::kSpokenAnswer) + program_.settings.gsPhrase;
}

}  // namespace quillor
