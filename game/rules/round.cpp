// Laying out, uncovering, and the state before and after.
#include "game/rules/round.h"

#include <algorithm>

#include "core/text_rules.h"

namespace quillor {

namespace {

// Between two rows that are exactly full there is no blank: where a word starts
// is seen in the phrase alone.
void markWords(const GameSettings& settings, std::vector<Cell>& cells) {
    std::size_t at = 0;
    for (Cell& cell : cells) {
        if (!cell.isLetter())
            continue;
        const std::size_t next = settings.gsPhrase.find_first_not_of(u' ', at);
        if (next == Text::npos)
            return;
        cell.startsWord = next == 0 || settings.gsPhrase[next - 1] == u' ';
        at = next + 1;
    }
}

void layOut(const GameSettings& settings, Round& round) {
    round.folded = eFoldAccents(settings.gsShownPhrase);
    round.hiddenLetters = settings.gbHiddenLetters;
    const std::size_t length = std::min<std::size_t>(round.folded.size(), kBoardCells);
    round.cells.assign(length, {});
    for (std::size_t i = 0; i < length; ++i) {
        const char16_t character = settings.gsCutPhrase.at(i);
        round.cells[i].character = character;
        round.cells[i].state = character == u' ' ? CellState::Blank : CellState::Hidden;
    }
    markWords(settings, round.cells);
}

void uncoverRest(Round& round, bool dead) {
    round.hiddenLetters = false;
    for (Cell& cell : round.cells)
        if (cell.state == CellState::Hidden)
            cell.state = dead ? CellState::Missed : CellState::Found;
}

}  // namespace

bool isGuessKey(char16_t sign) {
    return kGuessKeys.find(upperCase(sign)) != TextView::npos;
}

int Round::letters() const {
    return static_cast<int>(std::count_if(cells.begin(), cells.end(),
                                          [](const Cell& cell) { return cell.isLetter(); }));
}

int Round::found() const {
    return static_cast<int>(
        std::count_if(cells.begin(), cells.end(), [](const Cell& cell) { return cell.isFound(); }));
}

void ePutMagicWord(const GameSettings& settings, Round& round) {
    if (settings.giGameState == kPlaying)
        layOut(settings, round);
    else
        uncoverRest(round, settings.giGameState == kDead);
}

void startRound(GameSettings& settings, Round& round) {
    settings.giGameState = kPlaying;
    ePutMagicWord(settings, round);
}

void clearRound(GameSettings& settings, Round& round) {
    settings.giGameState = kIdle;
    settings.giStrikes = 0;
    settings.gbAnswerWritten = false;
    settings.gbHintUsed = false;
    round = {};
}

bool isOver(const GameSettings& settings) {
    return settings.giGameState == kDead || settings.giGameState == kWon;
}

Text spelled(const Round& round) {
    Text text;
    text.reserve(3 * round.cells.size());
    for (const Cell& cell : round.cells) {
        if (!cell.isLetter())
            continue;
        if (cell.startsWord && !text.empty())
            text += u", ";
        if (!cell.isFound())
            text += u'_';
        else if (round.hiddenLetters && cell.state == CellState::Found)
            text += u'?';
        else
            text += cell.character;
        text += u' ';
    }
    return text;
}

Text answerOf(const Round& round) {
    Text text;
    for (const Cell& cell : round.cells) {
        if (!cell.isLetter())
            continue;
        if (cell.startsWord && !text.empty())
            text += u' ';
        text += cell.character;
    }
    return text;
}

}  // namespace quillor
