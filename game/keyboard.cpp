#include "game/keyboard.h"

#include <utility>

namespace quillor {

namespace {

static_assert(kGuessKeys.size() == Keyboard::kLastGuessKey);

bool isVowelKey(int key) {
    return key == 1 || key == 5 || key == 9 || key == 16 || key == 22;
}
bool isCommandKey(int key) {
    return key >= Keyboard::kNumbersKey;
}
constexpr int kKeyOfOne = 28;

}  // namespace

Keyboard::Keyboard(Program& program, Told told) : program_(program), told_(std::move(told)) {
    for (int key = 1; key <= kLastGuessKey; ++key)
        lblKey(key).caption = Text(1, kGuessKeys.at(static_cast<std::size_t>(key - 1)));
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
        told_.guess(lblKey(index).caption.front());
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
    for (int key = 0; key <= kWriteKey; ++key) {
        KeyColors& colors = colors_.at(static_cast<std::size_t>(key));
        colors = {settings.glWhite, settings.glTheme};
        if (key == kKeyOfOne || isVowelKey(key) || isCommandKey(key)) {
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
