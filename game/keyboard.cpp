#include "game/keyboard.h"

#include <utility>

namespace quillor {

namespace {

static_assert(kGuessKeys.size() == Keyboard::kLastGuessKey);

// Of a key that can be guessed.
char16_t characterOf(int key) {
    return kGuessKeys.at(static_cast<std::size_t>(key - 1));
}

bool isCommandKey(int key) {
    return key >= Keyboard::kNumbersKey;
}

// The row of digits gets such a key, too, to begin with.
bool leadsTheEye(int key) {
    constexpr TextView kLeading = u"AEIOU1";
    return isCommandKey(key) || kLeading.find(characterOf(key)) != TextView::npos;
}

}  // namespace

Keyboard::Keyboard(Program& program, Told told) : program_(program), told_(std::move(told)) {
    for (int key = 1; key <= kLastGuessKey; ++key)
        lblKey(key).caption = Text(1, characterOf(key));
    lblKey(kNumbersKey).caption = u"123";
    lblKey(kHideNumbersKey).caption = u"(x)";
    for (int key = 1; key <= kWriteKey; ++key) {
        Label& label = lblKey(key);
        const auto accent = [this, key] {
            return colors_.at(static_cast<std::size_t>(key)).accent;
        };
        label.onClick = [this, key] { lblKey_Click(key); };
        label.onRightClick = [] {};  // a key does not open the menu
        label.onMouseMove = [this, key, accent] {
            told_.mouseCame();
            light(key, accent());
        };
        label.onMouseDown = [this, key] { light(key, program_.settings.glGreen); };
        label.onMouseUp = [this, key, accent] { light(key, accent()); };
    }
    frmeBoard.onMouseMove = [this] {
        told_.mouseCame();
        leaveKeys();
    };
}

void Keyboard::arrange(Twips left, Twips top, Twips width, const Grid& grid) {
    constexpr int kLetters = kFirstDigit - 1;
    constexpr int kDigitKeys = kLastGuessKey - kLetters + 1;  // and the one that hides them
    const auto keyWidth = [&](int columns) {
        return (width + grid.gap) / static_cast<Twips>(columns) - grid.gap;
    };
    const auto put = [&](int key, int columns, int place, int span, float fontSize) {
        const Twips pitch = keyWidth(columns) + grid.gap;
        const Area area{pitch * static_cast<Twips>(place % columns),
                        (grid.height + grid.gap) * static_cast<Twips>(place / columns),
                        pitch * static_cast<Twips>(span) - grid.gap, grid.height};
        shpKey(key).place(area.left, area.top, area.width, area.height);
        lblKey(key).place(area.left, area.top, area.width, area.height);
        lblKey(key).font = {Face::Display, fontSize, true};
    };
    for (int key = 1; key <= kLetters; ++key)
        put(key, grid.columns, key - 1, 1, grid.fontSize);
    put(kNumbersKey, grid.columns, kLetters, 1, grid.commandFontSize);
    const int rows = kLetters / grid.columns + 1;
    const int rest = rows * grid.columns - kLetters - 1;  // for the longest word
    put(kWriteKey, grid.columns, kLetters + 1, rest, grid.commandFontSize);

    const int digitColumns = grid.columns >= 10 ? kDigitKeys : (kDigitKeys + 1) / 2;
    for (int key = kFirstDigit; key <= kLastGuessKey; ++key)
        put(key, digitColumns, key - kFirstDigit, 1, grid.fontSize);
    put(kHideNumbersKey, digitColumns, kDigitKeys - 1, 1, grid.commandFontSize);
    const int digitRows = (kDigitKeys + digitColumns - 1) / digitColumns;
    const auto heightOf = [&](int count) {
        return (grid.height + grid.gap) * static_cast<Twips>(count) - grid.gap;
    };
    frmeBoard.place(left, top, width, heightOf(rows + digitRows));
    frmeNumbers.place(0, heightOf(rows) + grid.gap, width, heightOf(digitRows));
}

Label& Keyboard::firstKey() {
    for (Label& label : lblKey)
        if (isUsable(label))
            return label;
    return lblKey(kWriteKey);
}

void Keyboard::eTranslate() {
    lblKey(kNumbersKey).toolTip = program_.lang(texts::kNumbersTip);
    lblKey(kNumbersKey).spokenName = program_.lang(texts::kSpokenNumbers);
    lblKey(kHideNumbersKey).spokenName = program_.lang(texts::kSpokenHideNumbers);
    lblKey(kWriteKey).toolTip = program_.lang(texts::kWriteTip);
    lblKey(kWriteKey).caption = program_.lang(texts::kWrite);
}

void Keyboard::lblKey_Click(int index) {
    if (program_.settings.giGameState != kPlaying)
        return;
    if (index == kWriteKey)
        told_.writeAnswer();
    else if (index == kNumbersKey || index == kHideNumbersKey)
        frmeNumbers.visible = index == kNumbersKey;
    else
        told_.guess(characterOf(index));
}

void Keyboard::show(const GameSettings& settings, const Round& round) {
    frmeBoard.visible = settings.giGameState != kIdle;
    if (!frmeBoard.visible)
        frmeNumbers.visible = false;
    for (int key = 1; key <= kLastGuessKey; ++key)
        lblKey(key).visible = shpKey(key).visible =
            !round.used.test(static_cast<std::size_t>(key - 1));
}

void Keyboard::eLoadKeysColors() {
    const GameSettings& settings = program_.settings;
    for (int key = 1; key <= kWriteKey; ++key) {
        KeyColors& colors = colors_.at(static_cast<std::size_t>(key));
        colors = {settings.glWhite, settings.glTheme};
        if (leadsTheEye(key)) {
            colors.face = rgb(30, 30, 30) + settings.glGrey;
            colors.accent = isCommandKey(key) ? settings.glTheme : settings.glRed;
        }
    }
    eRestoreColor();
}

void Keyboard::eRestoreColor() {
    for (int key = 1; key <= kWriteKey; ++key) {
        if (key == currentKey_)
            continue;
        shpKey(key).backColor = colors_.at(static_cast<std::size_t>(key)).face;
        lblKey(key).textColor = program_.settings.glBlack;
    }
}

void Keyboard::leaveKeys() {
    currentKey_ = kNoKey;
    eRestoreColor();
}

void Keyboard::light(int key, Color face) {
    currentKey_ = key;
    eRestoreColor();
    shpKey(key).backColor = face;
    lblKey(key).textColor = program_.settings.glWhite;
}

}  // namespace quillor
