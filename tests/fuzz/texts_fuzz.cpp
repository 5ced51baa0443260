// Texts from anywhere: decoding, numbers, capitals, pasting, and a game on any phrase.
#include <stdexcept>

#include "core/game_settings.h"
#include "core/numbers.h"
#include "core/text_codec.h"
#include "core/text_rules.h"
#include "game/rules/clock.h"
#include "game/rules/guess.h"
#include "game/rules/scoring.h"
#include "tests/fuzz/bytes.h"

namespace quillor::testing {

namespace {

void decode(std::string_view file) {
    const Text text = decodeText(file);
    require(decodeText(encodeText(text)) == text, "what was read is written so that it reads so");
    require(fromUtf8(toUtf8(fromUtf8(file))) == fromUtf8(file), "UTF-8 comes back");
}

void count(TextView text) {
    const double number = leadingNumber(text);
    try {
        const int whole = toInteger(number);
        require(whole == leadingNumber(inDigits(whole)), "digits mean their number");
    } catch (const std::overflow_error&) {
    }
    try {
        toLong(number);
    } catch (const std::overflow_error&) {
    }
}

void change(const Text& text) {
    require(upperCase(text).size() == text.size(), "capitals keep the length");
    require(lowerCase(text).size() == text.size(), "small letters keep the length");
    require(eFoldAccents(text).size() == text.size(), "folding keeps the length");
    require(trimmed(trimmed(text)) == trimmed(text), "trimming is done at once");
}

// Every key, then the answer, on a board of any phrase, and the clock running out.
void play(Bytes& bytes, Text phrase) {
    GameSettings settings;
    Round round;
    settings.gsPhrase = std::move(phrase);
    settings.gbHardScore = bytes.below(2) != 0;
    settings.gbAgainstClock = bytes.below(2) != 0;
    settings.gbHiddenLetters = bytes.below(2) != 0;
    eCutPhrase(settings);
    ePutMagicWord(settings, round);
    startRound(settings, round);
    ePutSomeTime(round, round.letters());
    require(round.cells.size() <= kBoardCells, "cells past the last one do not exist");
    Happened happened = Happened::Nothing;
    while (!bytes.empty() && settings.giGameState == kPlaying) {
        switch (bytes.below(4)) {
            case 0:
                happened = passSecond(settings, round);
                break;
            case 1:
                eHelpLetter(settings, round);
                break;
            case 2:
                happened = judgeAnswer(settings, round, bytes.text());
                break;
            default:
                happened =
                    eEnterKey(settings, round, kGuessKeys.at(bytes.below(kGuessKeys.size())));
        }
        if (eFinalStep(settings, round, happened))
            eScoreUpDown(settings, round);
        require(round.found() <= round.letters(), "no more is found than there is");
        require(round.mistakes.size() <= kMostMistakes, "the last mistake ends the game");
        require(settings.giScoreShown >= 0, "the score is held");
    }
}

void paste(Bytes& bytes) {
    const Text text = bytes.text();
    const Text selected = bytes.text();
    const int caret = bytes.byte() - 128;
    const Text clipboard = bytes.text();
    const PastedText pasted = ePasteText(text, selected, caret, clipboard);
    require(pasted.caret >= 0, "the caret stands in the text");
}

}  // namespace

}  // namespace quillor::testing

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillor::testing;
    Bytes bytes(data, size);
    decode(Bytes(bytes).file());
    paste(bytes);
    const quillor::Text text = bytes.text();
    count(text);
    change(text);
    play(bytes, text);
    return 0;
}
