// Sentences put together from the round and the record.
#include "game/announcer.h"

#include <utility>

#include "core/numbers.h"
#include "game/rules/scoring.h"

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

Text switchText(const Program& program, const TextPair& caption, bool on) {
    return program.lang(caption) + program.lang(on ? texts::kSpokenOn : texts::kSpokenOff);
}

Announcer::Announcer(Program& program, Speak speak) : program_(program), speak_(std::move(speak)) {}

void Announcer::sayNewGame(const Round& round) {
    speak_(program_.lang(texts::kTopicLabel) + u": " + program_.settings.gsTopicName + u". " +
           program_.lang(texts::kSpokenLetters) + inDigits(round.letters()) + u". " +
           spelled(round));
}

void Announcer::sayGuess(char16_t key, Happened happened, const Round& round) {
    speak_(Text(1, key) + program_.lang(wordsFor(happened)) +
           program_.lang(texts::kSpokenMistakes) + inDigits(program_.settings.giStrikes) +
           program_.lang(texts::kSpokenOf) + inDigits(kMostMistakes) + u". " + spelled(round));
}

void Announcer::sayEnding(const Round& round) {
    const bool dead = program_.settings.giGameState == kDead;
    speak_(program_.lang(dead ? texts::kDead : texts::kVictory) + u" " +
           program_.lang(texts::kSpokenAnswer) + answerOf(round) + points());
}

// As they are shown: none in a classic game, no score where it is infinite.
Text Announcer::points() const {
    const GameSettings& settings = program_.settings;
    if (settings.gbClassicMode)
        return {};
    Text text = program_.lang(texts::kSpokenPoints) + inDigits(settings.giScoreStep);
    if (settings.gbAnswerWritten)
        text += program_.lang(texts::kSpokenBonus);
    if (keepsScore(settings))
        text += program_.lang(texts::kSpokenNewScore) + inDigits(settings.giScoreShown);
    return text;
}

void Announcer::sayTime(const Round& round) {
    switch (round.secondsLeft) {
        case 60:
            return speak_(program_.lang(texts::kSpokenMinute));
        case 30:
            return speak_(program_.lang(texts::kSpokenHalfMinute));
        case 10:
            return speak_(program_.lang(texts::kSpokenTenSeconds));
        default:
            return;
    }
}

void Announcer::sayNoKey(char16_t sign) {
    speak_(Text(1, sign) + program_.lang(texts::kSpokenNoKey));
}

}  // namespace quillor
