// Sentences put together from the board and the record.
#include "game/announcer.h"

#include "core/numbers.h"
#include "game/game_screen.h"

namespace quillor {

namespace {

const TextPair& wordsFor(GuessResult result) {
    switch (result) {
        case GuessResult::Found:
            return texts::kSpokenFound;
        case GuessResult::Repeated:
            return texts::kSpokenRepeated;
        default:
            return texts::kSpokenMistake;
    }
}

}  // namespace

Announcer::Announcer(frmGame& game) : game_(game) {
    lblSpoken.id = "lblSpoken";
    lblSpoken.role = LabelRole::Notification;
}

Text Announcer::board() const {
    Text spelled;
    for (int cell = 1; cell <= game_.board.cells(); ++cell) {
        const bool isLetter = game_.board.isLetter(cell);
        if (!isLetter && spelled.ends_with(u", "))
            continue;
        if (isLetter)
            spelled += game_.board.isFound(cell) ? game_.board.lblLetter(cell).caption : Text(u"_");
        spelled += isLetter ? u" " : u", ";
    }
    return spelled;
}

void Announcer::sayNewGame() {
    const Program& program = game_.program;
    lblSpoken.caption = program.lang(texts::kTopicLabel) + u": " + game_.settings.gsTopicName +
                        u". " + program.lang(texts::kSpokenLetters) +
                        inDigits(game_.board.letters()) + u". " + board();
}

void Announcer::sayGuess(char16_t key, GuessResult result) {
    const Program& program = game_.program;
    lblSpoken.caption = Text(1, key) + program.lang(wordsFor(result)) +
                        program.lang(texts::kSpokenMistakes) + inDigits(game_.settings.giStrikes) +
                        program.lang(texts::kSpokenOfSix) + board();
}

void Announcer::sayEnding() {
    const bool dead = game_.settings.giGameState == kDead;
    lblSpoken.caption = game_.program.lang(dead ? texts::kDead : texts::kVictory) + u" " +
                        game_.program.lang(texts::kSpokenAnswer) + game_.settings.gsPhrase;
}

}  // namespace quillor
