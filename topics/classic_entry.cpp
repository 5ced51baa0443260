// What is typed is filtered key by key; what was pasted is checked at the end.
#include "topics/classic_entry.h"

#include <algorithm>

#include "core/text_rules.h"

namespace quillor {

namespace {

constexpr char16_t kSmallToCapital = 32;  // distance in the Latin alphabet

bool isAllowed(char16_t character) {
    return character == u' ' || eAlphabet(true).find(character) != TextView::npos;
}

}  // namespace

frmWord1::frmWord1(Program& program) : EntryScreen("frmWord1", program) {
    layOut();
    connect();
}

void frmWord1::connect() {
    txtWord.onKeyPress = [this](char16_t character) { return txtWord_KeyPress(character); };
    txtWord.onChange = [this] { enableAccept(!trimmed(txtWord.text()).empty()); };
    txtTheme.onKeyPress = [this](char16_t character) { return txtTheme_KeyPress(character); };
    txtTheme.onChange = [this] { txtTheme_Change(); };
    txtTheme.onGotFocus = [this] { txtTheme_GotFocus(); };
    txtTheme.onLostFocus = [this] { txtTheme_LostFocus(); };
    connectAccept([this] { lblOk_Click(); });
}

void frmWord1::onLoad() {
    eTranslate();
    colour();
    txtTheme.setText(settings_.gsClassicTopic);
    if (txtTheme.text().empty())
        txtTheme.setText(placeholder());
}

void frmWord1::eTranslate() {
    title = program_.lang(texts::kEntryTitle);
    lblSelect(0).caption = program_.lang(texts::kTopicLabel);
    lblSelect(1).caption = program_.lang(texts::kPhraseLabel);
    txtWord.toolTip = program_.lang(texts::kPhraseTip);
    txtWord.spokenName = program_.lang(texts::kSpokenPhraseField);
    txtTheme.toolTip = program_.lang(texts::kTopicTip);
    txtTheme.spokenName = program_.lang(texts::kSpokenTopicField);
    translateAccept();
}

char16_t frmWord1::eCheck_Key(char16_t character) const {
    if (character == u' ')
        return txtWord.text().empty() ? u'\0' : character;
    if (eAlphabet(false).find(character) != TextView::npos)
        return static_cast<char16_t>(character - kSmallToCapital);
    return character == kCharBackspace || isAllowed(character) ? character : u'\0';
}

char16_t frmWord1::txtWord_KeyPress(char16_t character) {
    if (character != kCharReturn)
        return eCheck_Key(character);
    setFocus(txtTheme);
    return 0;
}

char16_t frmWord1::txtTheme_KeyPress(char16_t character) {
    if (character != kCharReturn)
        return character;
    if (lblOk(0).enabled)
        lblOk_Click();
    return 0;
}

void frmWord1::txtTheme_Change() {
    const Text capitals = upperCase(txtTheme.text());
    txtTheme.textColor = capitals == placeholder() ? rgb(200, 200, 200) : rgb(0, 0, 0);
    txtTheme.setText(capitals);
}

void frmWord1::txtTheme_GotFocus() {
    if (upperCase(txtTheme.text()) == placeholder())
        txtTheme.setText(u"");
    txtTheme.setCaret(static_cast<int>(txtTheme.text().size()));
}

void frmWord1::txtTheme_LostFocus() {
    if (txtTheme.text().empty())
        txtTheme.setText(placeholder());
}

void frmWord1::lblOk_Click() {
    // Typed text is clean; what has been pasted may not be.
    const Text& phrase = txtWord.text();
    if (!std::all_of(phrase.begin(), phrase.end(), isAllowed)) {
        program_.desktop.messageBox(MessageIcon::Information, program_.lang(texts::kBadCharacters));
        return;
    }
    if (txtTheme.text().empty())
        txtTheme.setText(placeholder());
    settings_.gsPhrase = upperCase(trimmed(phrase));
    settings_.gsTopicName = upperCase(trimmed(txtTheme.text()));
    settings_.gsClassicTopic = trimmed(txtTheme.text());
    if (eCutPhrase(settings_))
        program_.desktop.messageBox(MessageIcon::Information, program_.lang(texts::kPhraseCut));
    program_.accept(*this);
}

void frmWord1::layOut() {
    constexpr int kPhraseLength = 35;
    constexpr int kTopicLength = 22;
    layOutPanel();
    const auto field = [&](TextField& text, const char* id, Label& label, int length) {
        label.textColor = kPale;
        label.align = Align::Left;
        add(label);
        text.id = id;
        text.maxLength = length;
        add(text);
    };
    field(txtWord, "txtWord", lblSelect(1), kPhraseLength);
    field(txtTheme, "txtTheme", lblSelect(0), kTopicLength);
    layOutAccept();
    layOutView();
    fit(kSheets[0].width, kSheets[0].height);
}

// Where everything stands, in twips.
void frmWord1::arrange(const Sheet& paper) {
    arrangePanel(paper);
    const float larger = largerOn(paper);
    const auto field = [&](TextField& text, Label& label, Twips top) {
        label.font = style::kBarText;
        label.font.size *= larger;
        label.place(kEdge, top, kInner, 360 * larger);
        text.font = style::kField;
        text.font.size *= larger;
        text.place(kEdge, top + 420 * larger, kInner, 600 * larger);
    };
    const bool wide = paper.layout == Layout::Wide;
    field(txtWord, lblSelect(1), wide ? 480 : 720);
    field(txtTheme, lblSelect(0), wide ? 1740 : 3000);
    arrangeAccept();
}

}  // namespace quillor
