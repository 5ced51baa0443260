// From a key to its result: uncovered cells, or a filled strike box.
#include "game/guesses.h"

#include <algorithm>

#include "core/text_rules.h"
#include "game/game_screen.h"
#include "ui/sounds.h"

namespace quillor {

namespace {
constexpr std::size_t kShortestHint = 3;
constexpr int kCaptionOfNumbers = 28;
}  // namespace

Guesses::Guesses(frmGame& game) : game_(game) {
    constexpr TextView kGuessable = u"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ1234567890";
    static_assert(kGuessable.size() == kLastGuessKey && kGuessable[kCaptionOfNumbers - 1] == u'1');
    for (int i = 1; i <= kLastGuessKey; ++i)
        lblKey(i).caption = Text(1, kGuessable.at(static_cast<std::size_t>(i - 1)));
    lblKey(kNumbersKey).caption = u"123";
    lblKey(kHideNumbersKey).caption = u"(x)";
    for (int i = 1; i <= kWriteKey; ++i)
        lblKey(i).onClick = [this, i] { lblKey_Click(i); };
}

void Guesses::eTranslate() {
    lblKey(kNumbersKey).toolTip = game_.program.lang(texts::kNumbersTip);
    lblKey(kNumbersKey).spokenName = game_.program.lang(texts::kSpokenNumbers);
    lblKey(kHideNumbersKey).spokenName = game_.program.lang(texts::kSpokenHideNumbers);
    lblKey(kWriteKey).toolTip = game_.program.lang(texts::kWriteTip);
    lblKey(kWriteKey).caption = game_.program.lang(texts::kWrite);
    for (int i = 0; i < kStrikes; ++i)
        lblStrike(i).toolTip =
            game_.program.lang(texts::kMistakeTips.at(static_cast<std::size_t>(i)));
}

void Guesses::lblKey_Click(int index) {
    if (game_.settings.giGameState != kPlaying)
        return;
    if (index == kWriteKey)
        game_.answer.eEnterWord();
    else if (index == kNumbersKey || index == kHideNumbersKey)
        frmeNumbers.visible = index == kNumbersKey;
    else
        guess(lblKey(index).caption.front());
}

void Guesses::guess(char16_t key) {
    if (game_.settings.giGameState != kPlaying)
        return;
    HintReveal = false;
    const GuessResult result = eEnterKey(key);
    if (game_.settings.giGameState == kPlaying)
        game_.announcer.sayGuess(upperCase(key), result);
}

GuessResult Guesses::eEnterKey(char16_t key) {
    key = upperCase(key);
    hideKey(key);
    const Text folded = eFoldAccents(game_.settings.gsShownPhrase);
    const GuessResult result =
        folded.find(key) == Text::npos ? enterMistake(key) : enterHit(key, folded);
    if (game_.settings.giGameState < kDead && game_.settings.giStrikes < kStrikes)
        game_.colors.tmrColor.enabled = true;
    return result;
}

void Guesses::hideKey(char16_t key) {
    for (int i = 1; i <= kLastGuessKey; ++i)
        if (lblKey(i).caption.front() == key)
            lblKey(i).visible = shpKey(i).visible = false;
}

GuessResult Guesses::enterMistake(char16_t key) {
    const bool repeated =
        std::any_of(lblStrike.begin(), lblStrike.end() - 1,
                    [key](const Label& box) { return box.caption == Text(1, key); });
    if (repeated) {
        game_.colors.ePutNewColor(game_.settings.glYellow);
        return GuessResult::Repeated;
    }
    game_.colors.ePutNewColor(game_.settings.glRed);
    ePutStrikes(key);
    return GuessResult::Mistake;
}

GuessResult Guesses::enterHit(char16_t key, TextView folded) {
    const Uncovered uncovered = uncover(key, folded);
    game_.settings.giLettersFound = static_cast<std::int16_t>(uncovered.found);
    game_.board.showCount(uncovered.found);
    if (uncovered.all) {
        game_.settings.giGameState = kWon;
        game_.answer.eFinalStep();
    } else if (uncovered.any && !HintReveal) {
        game_.sounds.request(sound::kGoodLetter);
    }
    return uncovered.any ? GuessResult::Found : GuessResult::Repeated;
}

Guesses::Uncovered Guesses::uncover(char16_t key, TextView folded) {
    Uncovered result;
    result.found = -game_.board.BlankCells;
    for (int cell = 1; cell <= game_.board.cells(); ++cell) {
        if (folded.at(static_cast<std::size_t>(cell - 1)) == key)
            uncoverCell(cell, result);
        if (game_.board.isLetter(cell) && !game_.board.isFound(cell))
            result.all = false;
        else
            ++result.found;
    }
    return result;
}

void Guesses::uncoverCell(int cell, Uncovered& result) {
    if (game_.board.isFound(cell)) {
        game_.colors.ePutNewColor(game_.settings.glYellow);
        return;
    }
    Label& label = game_.board.lblLetter(cell);
    label.visible = true;
    result.any = true;
    if (HintReveal)
        label.caption = Text(1, game_.settings.gsCutPhrase.at(static_cast<std::size_t>(cell - 1)));
    else
        game_.colors.ePutNewColor(game_.settings.glGreen);
}

void Guesses::ePutStrikes(char16_t key) {
    for (int i = 0; i < kStrikes; ++i) {
        if (!lblStrike(i).caption.empty())
            continue;
        lblStrike(i).caption = Text(1, key);
        game_.settings.giStrikes = static_cast<std::int16_t>(i + 1);
        break;
    }
    game_.figure.ePutItHangman();
}

void Guesses::eHelpLetter() {
    GameSettings& settings = game_.settings;
    if (settings.gsPhrase.size() < kShortestHint) {
        game_.program.desktop.messageBox(MessageIcon::Information,
                                         game_.program.lang(texts::kHintTooShort));
        return;
    }
    const Text letters = replaceAll(eFoldAccents(settings.gsShownPhrase), u" ", u"");
    const auto once = std::find_if(letters.begin(), letters.end(), [&letters](char16_t character) {
        return std::count(letters.begin(), letters.end(), character) == 1;
    });
    if (once == letters.end()) {
        game_.program.desktop.messageBox(MessageIcon::Information,
                                         game_.program.lang(texts::kHintNone));
        return;
    }
    HintReveal = true;
    eEnterKey(*once);
    // After the letter: a hint that ends the game is not counted against it.
    settings.gbHintUsed = true;
}

void Guesses::showAllKeys() {
    for (int i = 1; i <= kWriteKey; ++i)
        lblKey(i).visible = shpKey(i).visible = true;
}

void Guesses::emptyStrikes() {
    for (Label& box : lblStrike)
        box.caption.clear();
}

}  // namespace quillor
