// The loading sequence in its order, and the progress line that runs after it.
#include "app/start_screen.h"

#include <stdexcept>

#include "app/program.h"
#include "core/files.h"
#include "core/guard.h"
#include "core/numbers.h"
#include "core/settings_file.h"
#include "core/topic_library.h"

namespace quillor {

namespace {

constexpr Twips kLineFull = 5800;
constexpr Twips kLineStep = 120;
constexpr Twips kSubStart = 3000;
constexpr Twips kSubTurn = 4450;  // where the subtitle bounces back
constexpr Twips kSubEnd = 4470;   // and where it comes to rest
constexpr Twips kSubStep = 100;
constexpr Twips kSubBounce = 30;

constexpr std::size_t kColorFileLines = 10'000;  // the last of them wins; far beyond any real file
constexpr const char* kFontFile = "ARLRDBD.ttf";

}  // namespace

frmStart::frmStart(Program& program) : ProgramScreen("frmStart", program) {
    layOut();
    connect();
}

Control* frmStart::initialFocus() {
    return frmeFont.visible ? &lblAction : nullptr;
}

void frmStart::takePaper(const ImageRef& paper) {
    imgBack(0).image = imgBack(1).image = paper;
}

void frmStart::connect() {
    tmrBar.onTick = [this] { tmrBar_Timer(); };
    lblAction.onClick = [this] { lblAction_Click(); };
    lblAction.onMouseDown = [this] { shpAction.filled = true; };
    lblAction.onMouseUp = [this] { shpAction.filled = false; };
    lblEsc.onClick = [this] { program_.end(); };
    lblEsc.onMouseDown = [this] { lblEsc.opaque = true; };
    lblEsc.onMouseUp = [this] { lblEsc.opaque = false; };
}

void frmStart::onLoad() {
    // The reset comes first: it clears theme and language, which are set after it.
    eResetGlobalVariables(settings_);
    mbFontMissing_ = mbSubBounced_ = mbRebootReady_ = false;
    setPalette(settings_);
    removeWhatKilledRunsLeft();
    readColorFile();
    loadPicture();
    colourScreen();
    chooseLanguage();
    checkFont();
    repairTopicFolder();
    eLoadWords(settings_, program_.folder);
    writeFirstSettings();
}

// Where the program saves: the settings, and the topics of both languages.
void frmStart::removeWhatKilledRunsLeft() {
    GameSettings english;
    english.gbEnglish = true;
    for (const Place& folder :
         {program_.folder, topicFolder({}, program_.folder), topicFolder(english, program_.folder)})
        removeLeftovers(folder);
}

void frmStart::readColorFile() {
    const auto file = program_.folder / "Color.txt";
    if (!eFileExists(file))
        return;
    for (const Text& line : readLines(file, kColorFileLines))
        settings_.glTheme = toLong(leadingNumber(line));
    if (settings_.glTheme == 0)
        settings_.glTheme = settings_.glThemeNow;
    settings_.glThemeNow = settings_.glTheme;
}

void frmStart::loadPicture() {
    const auto file = program_.folder / "Pic.jpg";
    if (eFileExists(file))
        takePaper(program_.desktop.loadPicture(file));
}

void frmStart::colourScreen() {
    lnGo.color = settings_.glThemeNow;
    lblName.backColor = settings_.glWhite;
    lblSub.textColor = settings_.glTheme;
    lblSub.left = kSubStart;
    // The picture inside the frame lines up with the one behind it.
    imgBack(1).left = -frmeTitle.left;
    imgBack(1).top = -frmeTitle.top;
    frmeFont.left = 0;
}

void frmStart::chooseLanguage() {
    settings_.gbEnglish = speaksEnglish(program_.folder);
    eTranslate();
}

void frmStart::eTranslate() {
    translateView();
    lblManual.caption = program_.lang(texts::kFontMissing);
    lblAction.caption = program_.lang(texts::kSearchFont);
    lblEsc.toolTip = program_.lang(texts::kCloseTip);
    lblEsc.spokenName = program_.lang(texts::kSpokenClose);
}

void frmStart::checkFont() {
    mbFontMissing_ = !program_.desktop.fontPresent(texts::kDisplayFont);
    if (mbFontMissing_ && isFile(program_.folder / kFontFile))
        lblAction.caption = program_.lang(texts::kOpenFont);
}

// A folder that cannot be listed may be full of the player's topics: no sample then.
void frmStart::repairTopicFolder() {
    const Place folder = topicFolder(settings_, program_.folder);
    if (folder.disk().look(folder).kind == Disk::Kind::Nothing &&
        !quietly("make the topic folder", [&] { folder.disk().makeFolder(folder); })) {
        program_.note(false, texts::kTopicsUnsaved);
        throw std::runtime_error("no topic folder");
    }
    quietly("repairTopicFolder", [&] {
        if (topicFiles(folder).empty())
            program_.note(eWriteDemoTopic(settings_, program_.folder), texts::kTopicsUnsaved);
    });
}

void frmStart::writeFirstSettings() {
    const Place file = settingsFile(program_.folder);
    if (file.disk().look(file).kind != Disk::Kind::Nothing)
        return;
    settings_.gbUseSounds = true;
    settings_.gbFirstLetter = true;
    settings_.gbSettingsLoaded = true;
    program_.note(eSaveSettings(settings_, program_.folder), texts::kSettingsUnsaved);
}

void frmStart::tmrBar_Timer() {
    if (lnGo.x2 >= kLineFull) {
        eGoForm();
        return;
    }
    if (program_.desktop.preferences().reducedMotion) {
        lnGo.x2 = kLineFull;
        lblSub.left = kSubEnd;
        return;
    }
    lnGo.x2 += kLineStep;
    if (lblSub.left < kSubTurn) {
        if (!mbSubBounced_)
            lblSub.left += kSubStep;
        return;
    }
    if (!mbSubBounced_)
        lblSub.left -= kSubBounce;
    mbSubBounced_ = true;
}

void frmStart::eGoForm() {
    if (mbFontMissing_) {
        tmrBar.enabled = false;
        frmeFont.visible = true;
        setFocus(lblAction);
        return;
    }
    settings_.giScore = kFirstScore;
    settings_.giScoreKept = kFirstScore;
    program_.show(ScreenId::Menu).takePaper(imgBack(0).image);
    program_.close(*this);
}

void frmStart::lblAction_Click() {
    if (mbRebootReady_) {
        program_.desktop.startProgram();
        program_.end();
        return;
    }
    const auto fontFile = program_.folder / kFontFile;
    if (isFile(fontFile))
        program_.desktop.open(fontFile);
    else
        program_.desktop.openAddress(kSearchEngine, texts::kDisplayFont);
    lblAction.caption = program_.lang(texts::kRebootGame);
    mbRebootReady_ = true;
}

void frmStart::onKeyDown(KeyEvent& event) {
    if (frmeFont.visible && (event.code == 'R' || event.code == 'F')) {
        event.handled = true;
        lblAction_Click();
    }
}

}  // namespace quillor
