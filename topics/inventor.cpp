// From typed phrases to a topic file.
#include "topics/inventor.h"

#include <algorithm>

#include "app/program.h"
#include "core/files.h"
#include "core/guard.h"
#include "core/numbers.h"
#include "core/text_rules.h"
#include "core/topic_library.h"
#include "toolkit/style.h"
#include "topics/topic_check.h"
#include "topics/topic_opening.h"
#include "topics/topic_sharing.h"

namespace quillor {

namespace {

constexpr std::size_t kMostLines = 10'000;  // of a topic that is opened

// As it is derived from a topic's name.
Text fileNameFor(TextView topic) {
    return besideDevices(withoutForbidden(upperCase(topic)));
}

Text twoDigits(int value) {
    const Text digits = inDigits(value);
    return digits.size() < 2 ? u"0" + digits : digits;
}

}  // namespace

frmInventor::frmInventor(Program& program) : ProgramScreen("frmInventor", program) {
    layOut();
    connect();
}

void frmInventor::connect() {
    connectFields();
    connectButtons();
    lstTopics.onKeyDown = [this](KeyEvent& event) { lstTopics_KeyDown(event); };
}

void frmInventor::connectFields() {
    txtTheme.onChange = [this] { txtFile.setText(fileNameFor(txtTheme.text())); };
    txtTheme.onKeyPress = [this](char16_t character) { return txtTheme_KeyPress(character); };
    txtFile.onChange = [this] { txtFile_Change(); };
    txtFile.onLostFocus = [this] { txtFile.setText(besideDevices(txtFile.text())); };
    txtWord.onChange = [this] { showHint(); };
    txtWord.onKeyPress = [this](char16_t character) { return txtWord_KeyPress(character); };
    txtWord.onKeyDown = [this](KeyEvent& event) { txtWord_KeyDown(event); };
}

void frmInventor::connectButtons() {
    lblOk.onClick = [this] { lblOk_Click(); };
    lblDel.onClick = [this] { lblDel_Click(); };
    lblOpen.onClick = [this] { lblOpen_Click(); };
    lblHelp.onClick = [this] { lblHelp_Click(); };
    lblBack.onClick = [this] { lblBack_Click(); };
    for (Label& label : lblSave) {
        label.onClick = [this] { lblSave_Click(); };
        showPress(label, shpSave.backColor, settings_.glGreen, settings_.glRed);
    }
    showPress(lblBack, shpBack.backColor, settings_.glGreen, settings_.glRed);
    for (Label* label : {&lblOk, &lblDel, &lblOpen, &lblHelp})
        showPress(*label, label->textColor, settings_.glGrey, settings_.glWhite);
}

void frmInventor::onLoad() {
    eTranslate();
    for (Shape* shape : {&shpHead, &shpAdd, &shpDel, &shpOpen, &shpHelp})
        shape->backColor = settings_.glTheme;
    shpBack.backColor = shpSave.backColor = settings_.glRed;
    lstTopics.selectionColor = settings_.glTheme;
    for (Label* label : {&lblOk, &lblDel, &lblOpen, &lblHelp, &lblBack, &lblSave(1), &lblLabel(0)})
        label->textColor = settings_.glWhite;
    eRefreshButton();
}

// The menu comes back, except when the program starts over.
void frmInventor::onUnload() {
    if (!restarting_)
        program_.show(ScreenId::Menu).takePaper(imgBack.image);
}

void frmInventor::eRefreshButton() {
    const int phrases = static_cast<int>(lstTopics.items.size());
    lblCont.caption = twoDigits(phrases) + u"/" + twoDigits(kTopicPhrases);
    lblSave(0).enabled = shpSave.enabled = phrases > 0 && !txtFile.text().empty();
    showHint();
}

// The phrase that is being typed comes before the topic.
void frmInventor::showHint() {
    Text hint = hintOfPhrase();
    if (hint.empty())
        hint = hintOfTopic();
    if (!hint.empty())
        hint.front() = upperCase(hint.front());
    lblHint.caption = hint;
}

Text frmInventor::hintOfPhrase() const {
    const Text phrase = trimmed(upperCase(txtWord.text()));
    if (phrase.empty())
        return {};
    if (const std::vector<Text> flaws = phraseFlaws(phrase, settings_.gbEnglish); !flaws.empty())
        return flaws.front();
    const auto same = [folded = eFoldAccents(phrase)](const Text& other) {
        return eFoldAccents(trimmed(other)) == folded;
    };
    if (std::any_of(lstTopics.items.begin(), lstTopics.items.end(), same))
        return program_.lang(texts::kHintListed);
    for (const Topic& topic : settings_.gaTopicLines)
        if (topicTitle(topic) != trimmed(upperCase(txtTheme.text())) &&
            std::any_of(topic.begin() + 1, topic.end(), same))
            return replaceAll(program_.lang(texts::kFlawElsewhere), u"%",
                              isolated(topicTitle(topic)));
    return {};
}

Text frmInventor::hintOfTopic() const {
    Text hint;
    const auto add = [&hint](const Text& text) { hint += (hint.empty() ? u"" : u" ") + text; };
    if (!txtFile.text().empty() && eFileExists(itsFile()))
        add(program_.lang(texts::kHintReplaces));
    const auto phrases = static_cast<int>(lstTopics.items.size());
    if (phrases < kFewestPhrases && !(txtTheme.text().empty() && lstTopics.items.empty()))
        add(program_.lang(texts::kHintTwoPhrases));
    if (phrases > kTopicPhrases)
        add(program_.lang(texts::kHintTooMany));
    return hint;
}

Place frmInventor::itsFile() const {
    return topicFolder(settings_, program_.folder) /
           toPath(besideDevices(txtFile.text()) + u".txt");
}

char16_t frmInventor::eCheck_Key(char16_t character) const {
    const bool allowed = character == kCharBackspace || character == u' ' ||
                         eAlphabet(true).find(character) != TextView::npos;
    return allowed ? character : u'\0';
}

char16_t frmInventor::txtTheme_KeyPress(char16_t character) {
    switch (character) {
        case kCharReturn:
            setFocus(txtWord);
            txtWord.selectAll();
            return 0;
        case kCharBackspace:
            // Over a selection, Backspace deletes it as everywhere.
            if (txtTheme.caret() > 0 || txtTheme.selectionLength() > 0)
                return character;
            lblBack_Click();
            return 0;
        case u'?':
            lblHelp_Click();
            return 0;
        default:
            return character;
    }
}

// The caret stays between the signs that it was between.
void frmInventor::txtFile_Change() {
    const Text legal = withoutForbidden(txtFile.text());
    if (legal != txtFile.text()) {
        const auto caret = static_cast<std::size_t>(txtFile.caret());
        const Text before = withoutForbidden(txtFile.text().substr(0, caret));
        txtFile.setText(legal);
        txtFile.setCaret(static_cast<int>(before.size()));
    }
    eRefreshButton();
}

char16_t frmInventor::txtWord_KeyPress(char16_t character) {
    if (character == kCharReturn && !trimmed(txtWord.text()).empty()) {
        lblOk_Click();
        return 0;
    }
    return eCheck_Key(character);
}

void frmInventor::txtWord_KeyDown(KeyEvent& event) {
    if (!event.onlyControl())
        return;
    switch (event.code) {
        case 'X':
            cut();
            break;
        case 'C':
            eCopyToClipboard(program_, txtWord.selectedText());
            break;
        case 'V':
            paste();
            break;
        default:
            return;
    }
    event.handled = true;
}

// Every occurrence of the selected text goes, not only the selected one.
void frmInventor::cut() {
    const Text selected = txtWord.selectedText();
    const int caret = txtWord.caret();
    eCopyToClipboard(program_, selected);
    txtWord.setText(replaceAll(txtWord.text(), selected, u""));
    txtWord.setCaret(caret);
}

void frmInventor::paste() {
    const int caret = ePasteText(program_, txtWord.text(), txtWord.selectedText(), txtWord.caret());
    txtWord.setText(settings_.gsTextResult);
    txtWord.setCaret(caret);
}

void frmInventor::lstTopics_KeyDown(KeyEvent& event) {
    if (event.code == key::kDelete)
        lblDel_Click();
    else if (event.code == key::kReturn && !event.alt)
        lblSave_Click();
    else
        return;
    event.handled = true;
}

void frmInventor::lblOk_Click() {
    lstTopics.items.push_back(u" " + trimmed(upperCase(txtWord.text())));
    lstTopics.select(static_cast<int>(lstTopics.items.size()) - 1);
    txtWord.setText(u"");
    eRefreshButton();
}

void frmInventor::lblDel_Click() {
    const int index = lstTopics.listIndex();
    if (index < 0)
        return;
    lstTopics.removeItem(index);
    // The entry that moved up is next, so that Delete can be pressed again.
    lstTopics.select(std::min(index, static_cast<int>(lstTopics.items.size()) - 1));
    eRefreshButton();
}

void frmInventor::lblSave_Click() {
    if (!lblSave(0).enabled)
        return;
    if (!quietly("saveTopic", [this] { saveTopic(); })) {
        lblHint.caption = program_.lang(texts::kTopicUnsaved);
        speak(lblHint.caption);
        return;
    }
    if (program_.desktop.question(program_.lang(texts::kAskRestart))) {
        restarting_ = true;
        eRestartGame(program_, *this);
        return;
    }
    clearAll();
    setFocus(txtTheme);
}

void frmInventor::clearAll() {
    lstTopics.clear();
    txtWord.setText(u"");
    txtTheme.setText(u"");
    txtFile.setText(u"");  // also where there was no topic name for it to follow
    txtTheme.maxLength = txtFile.maxLength = kNameLength;
    eRefreshButton();
}

void frmInventor::saveTopic() {
    txtFile.setText(besideDevices(txtFile.text()));
    std::vector<Text> lines;
    lines.push_back(upperCase(txtTheme.text()));
    if (!settings_.gbEnglish)
        lines.front() += u" " + lowerCase(texts::kSpanishTag);
    for (const Text& phrase : lstTopics.items)
        lines.push_back(lowerCase(trimmed(phrase)));
    writeLines(itsFile(), lines);
}

bool frmInventor::mayLoseTopic() {
    return lstTopics.items.empty() ||
           program_.desktop.question(program_.lang(texts::kLoseTopic), true);
}

void frmInventor::lblOpen_Click() {
    if (!mayLoseTopic())
        return;
    program_.showOver(ScreenId::OpenTopic, *this, imgBack.image, [this] {
        const Place file = dynamic_cast<frmOpen&>(*program_.find(ScreenId::OpenTopic)).chosen();
        if (!quietly("open a topic", [&] { openTopic(file); }))
            program_.desktop.messageBox(MessageIcon::Information,
                                        replaceAll(program_.lang(texts::kShareUnread), u"%",
                                                   isolated(fromPath(file.path().filename()))));
    });
}

// A name that is longer than those that can be typed stays whole.
void frmInventor::openTopic(const Place& file) {
    const std::vector<Text> lines = readLines(file, kMostLines);
    clearAll();
    const Text topicName = topicTitle({lines.empty() ? Text() : lines.front()});
    const Text stem = fromPath(file.path().stem());
    txtTheme.maxLength = std::max(kNameLength, static_cast<int>(topicName.size()));
    txtFile.maxLength = std::max(kNameLength, static_cast<int>(stem.size()));
    txtTheme.setText(topicName);
    txtFile.setText(stem);
    for (std::size_t i = 1; i < lines.size(); ++i)
        if (const Text phrase = trimmed(upperCase(lines[i])); !phrase.empty())
            lstTopics.items.push_back(u" " + phrase);
    if (!lstTopics.items.empty())
        lstTopics.select(static_cast<int>(lstTopics.items.size()) - 1);
    eRefreshButton();
    setFocus(txtWord);
}

void frmInventor::onFilesDropped(const std::vector<std::filesystem::path>& files) {
    if (!takeTopics(program_, files) || !mayLoseTopic()) {
        showHint();  // a file of that name may be there now
        return;
    }
    restarting_ = true;
    eRestartGame(program_, *this);
}

// Escape is pressed by mistake more easily than the button.
void frmInventor::goBack() {
    if (mayLoseTopic())
        lblBack_Click();
}

void frmInventor::lblHelp_Click() {
    program_.desktop.messageBox(MessageIcon::Information, program_.lang(texts::kFileNameHelp));
    program_.desktop.messageBox(MessageIcon::Information, program_.lang(texts::kBackHelp));
}

}  // namespace quillor
