#include "app/program_screen.h"

#include <algorithm>
#include <utility>

#include "core/guard.h"
#include "core/numbers.h"
#include "core/settings_file.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

void switchFullScreen(ProgramScreen& screen) {
    Desktop& desktop = screen.program().desktop;
    desktop.setFullScreen(!desktop.isFullScreen());
}

bool isFullScreen(const ProgramScreen& screen) {
    return screen.program().desktop.isFullScreen();
}

}  // namespace

std::vector<ViewEntry> commonViewEntries() {
    return {
        {"mFullScreen",
         texts::kViewFullScreen,
         {key::kF11},
         {key::kReturn, false, true},
         switchFullScreen,
         isFullScreen,
         {}},
        {"mLanguage",
         texts::kViewLanguage,
         {},
         {},
         [](ProgramScreen& screen) { screen.changeLanguage(); },
         {},
         {}},
        {"mKeys",
         texts::kViewKeys,
         {},
         {},
         [](ProgramScreen& screen) { screen.showKeys(); },
         {},
         {}},
        {"mViewHelp",
         texts::kMenuHelp,
         {key::kF1},
         {},
         [](ProgramScreen& screen) { screen.openHelp(); },
         {},
         {}},
        {"mQuit",
         texts::kSpokenClose,
         {'Q', true},
         {},
         [](ProgramScreen& screen) { screen.quit(); },
         {},
         {}},
    };
}

ProgramScreen::ProgramScreen(const std::string& screenName, Program& program)
    : Screen(screenName), program_(program), settings_(program.settings) {
    makeEntries();
    lblSpoken.id = "lblSpoken";
    lblSpoken.role = LabelRole::Notification;
    lblSpoken.literal = true;
    add(lblSpoken);
    lblView.id = "lblView";
    lblView.menu = &mView;
    lblView.role = LabelRole::Button;
    lblView.onClick = [this] { popUpView(); };
    translateView();
}

void ProgramScreen::makeEntries() {
    mView.id = "mView";
    for (const ViewEntry& entry : program_.viewEntries) {
        MenuItem& item = items_.emplace_back();
        item.id = entry.id;
        item.shortcut = shortcutText(entry.key);
        item.checkable = entry.isOn != nullptr;
        if (entry.run)
            item.onClick = [this, &entry] { runEntry(entry); };
        mView.children.push_back(&item);
    }
}

void ProgramScreen::changeLanguage() {
    Program& program = program_;
    const bool english = !settings_.gbEnglish;
    if (!program.desktop.question(program.lang(texts::kAskLanguage)))
        return;
    quietly("chooseLanguage", [&] { chooseLanguage(program.folder, english); });
    if (speaksEnglish(program.folder) != english) {
        program.desktop.messageBox(MessageIcon::Critical, program.lang(texts::kLanguageStays));
        return;
    }
    // What stands over the game closes with it.
    Screen* game = over ? program.find(ScreenId::Game) : nullptr;
    if (game)
        program.close(*this);
    eRestartGame(program, game ? *game : *this);
}

void ProgramScreen::layOutView(const Area& place, Color ink, Frame* on) {
    lblView.font = style::kBarText;
    lblView.textColor = ink;
    lblView.cornerRadius = style::kButtonRadius;
    add(lblView, on).place(place.left, place.top, place.width, place.height);
}

void ProgramScreen::placeViewOnPaper(const Sheet& paper) {
    const bool wide = paper.layout == Layout::Wide;
    lblView.font.size = style::kBarText.size * (wide ? 1 : 1.3F);
    lblView.place(240, 240, wide ? 1020 : 1380, wide ? 540 : 660);
}

void ProgramScreen::drawBelow(Picture& page, const char* drawing, Twips top) const {
    constexpr float kShape = 3;  // its width, in heights
    constexpr Twips kEdge = 300;
    const Twips room = height - top;
    const Twips high = std::min(room - 2 * kEdge, (width - 4 * kEdge) / kShape);
    page.drawing = drawing;
    page.drawn = {(width - kShape * high) / 2, top + (room - high) / 2, kShape * high, high};
}

void ProgramScreen::translateView() {
    mView.caption = program_.lang(texts::kView);
    lblView.caption = u"&" + mView.caption;
    lblView.toolTip = program_.lang(texts::kViewTip);
    showEntries();
}

void ProgramScreen::showEntries() {
    auto item = items_.begin();
    for (const ViewEntry& entry : program_.viewEntries) {
        item->caption = program_.lang(entry.caption);
        item->checked = entry.isOn && entry.isOn(*this);
        item->enabled = !entry.isOffered || entry.isOffered(*this);
        ++item;
    }
}

// A screen reader chooses entries also while the menu is not open, as they were shown last.
void ProgramScreen::runEntry(const ViewEntry& entry) {
    if (!entry.isOffered || entry.isOffered(*this))
        entry.run(*this);
}

void ProgramScreen::popUpView() {
    showEntries();
    program_.desktop.popUp(*this, mView, &lblView);
}

void ProgramScreen::speak(Text words) {
    lblSpoken.caption = std::move(words);
    ++lblSpoken.said;
}

void ProgramScreen::openHelp() {
    openManual(program_);
}

void ProgramScreen::showKeys() {
    Text keys = program_.lang(ownKeys());
    if (!keys.empty())
        keys += u"\r\n";
    keys += program_.lang(texts::kKeysEverywhere);
    program_.desktop.messageBox(MessageIcon::Information, keys);
}

void ProgramScreen::quit() {
    if (mayQuit())
        closeRequest();
}

void ProgramScreen::leave() {
    if (program_.desktop.isFullScreen())
        program_.desktop.setFullScreen(false);
    else
        goBack();
}

void ProgramScreen::onKeyUnused(KeyEvent& event) {
    event.handled = true;
    if (Shortcut{key::kEscape}.isPressed(event))
        return leave();
    if (Shortcut{key::kF10}.isPressed(event) && isUsable(lblView))
        return popUpView();
    for (const ViewEntry& entry : program_.viewEntries)
        if (entry.key.isPressed(event) || entry.otherKey.isPressed(event))
            return runEntry(entry);
    event.handled = false;
}

Text shortcutText(const Shortcut& shortcut) {
    if (shortcut.code == 0)
        return {};
    const bool function = shortcut.code >= key::kF1 && shortcut.code <= key::kLastFunctionKey;
    const Text name = function ? u"F" + inDigits(shortcut.code - key::kF1 + 1)
                               : Text(1, static_cast<char16_t>(shortcut.code));
    return (shortcut.control ? u"Ctrl+" : u"") + Text(shortcut.alt ? u"Alt+" : u"") + name;
}

}  // namespace quillor
