// Each option is a caption and the button behind it, which act as one.
#include "app/menu_screen.h"

#include <utility>

#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr int kTopicsDelay = 200;  // ms

int buttonOf(int label) {
    return label < frmMenu::kFirstButton ? label + frmMenu::kFirstButton : label;
}

}  // namespace

frmMenu::frmMenu(Program& program) : ProgramScreen("frmMenu", program) {
    layOut();
    connect();
}

void frmMenu::connect() {
    for (int i = 0; i <= kLastButton; ++i) {
        lblOption(i).onClick = [this, i] { choose(i); };
        lblOption(i).onMouseMove = [this, i] { hover(i); };
        lblOption(i).onMouseDown = [this, i] { press(i); };
        lblOption(i).onMouseUp = [this, i] { release(i); };
    }
    imgBack.onMouseMove = [this] { eFallColor(); };
    tmrTopics.onTick = [this] { tmrTopics_Timer(); };
}

void frmMenu::onLoad() {
    eTranslate();
    eFallColor();
    tmrTopics.enabled = !program_.topicsToTake.empty();
}

void frmMenu::eTranslate() {
    title = program_.lang(texts::kMenuTitle);
    lblWelcome.caption = program_.lang(texts::kMenuHeading);
    for (int i = 0; i < kOptions; ++i) {
        const auto& option = texts::kMenuOptions.at(static_cast<std::size_t>(i));
        Label& button = lblOption(i + kFirstButton);
        lblOption(i).caption = program_.lang(option.caption);
        lblOption(i).toolTip = button.toolTip = program_.lang(option.tip);
        button.spokenName = lblOption(i).caption;
        std::erase(button.spokenName, u'&');
    }
}

Color frmMenu::restColor(int button) const {
    return button == kFirstButton ? settings_.glRed : settings_.glTheme;
}

void frmMenu::eFallColor() {
    for (int button = kFirstButton; button <= kLastButton; ++button)
        shpOption(button).backColor = restColor(button);
    hovered_ = kNoButton;
}

void frmMenu::hover(int label) {
    const int button = buttonOf(label);
    if (pressed_ || button == hovered_)
        return;
    eFallColor();
    hovered_ = button;
    shpOption(button).backColor = settings_.glGreen;
}

void frmMenu::press(int label) {
    rememberedColor_ = lblOption(label).backColor;
    rememberedOpaque_ = lblOption(label).opaque;
    Label& button = lblOption(buttonOf(label));
    button.backColor = settings_.glGreen - rgb(0, 30, 0);
    button.opaque = true;
    pressed_ = true;
}

// The label released gets the remembered colour, not the button behind it: a
// click closes the screen anyway.
void frmMenu::release(int label) {
    lblOption(label).backColor = rememberedColor_;
    lblOption(label).opaque = rememberedOpaque_;
    pressed_ = false;
}

void frmMenu::open(ScreenId screen) {
    program_.show(screen).takePaper(imgBack.image);
}

void frmMenu::choose(int option) {
    switch (buttonOf(option)) {
        case kFirstButton:
            settings_.gbClassicMode = false;
            open(ScreenId::Game);
            break;
        case kFirstButton + 1:
            settings_.gbClassicMode = true;
            open(ScreenId::Game);
            break;
        case kFirstButton + 2:
            open(ScreenId::Inventor);
            break;
        default:
            open(ScreenId::Settings);
            break;
    }
    program_.close(*this);
}

void frmMenu::onFilesDropped(const std::vector<std::filesystem::path>& files) {
    if (program_.takeTopics && program_.takeTopics(files))
        eRestartGame(program_, *this);
}

void frmMenu::tmrTopics_Timer() {
    tmrTopics.enabled = false;
    onFilesDropped(std::exchange(program_.topicsToTake, {}));
}

void frmMenu::onKeyDown(KeyEvent& event) {
    switch (event.code) {
        case 'A':
            choose(0);
            break;
        case 'C':
            choose(1);
            break;
        case 'I':
            choose(2);
            break;
        case 'S':
            choose(3);
            break;
        default:
            return;
    }
    event.handled = true;
}

void frmMenu::layOut() {
    tmrTopics.id = "tmrTopics";
    tmrTopics.interval = kTopicsDelay;
    add(tmrTopics);
    imgBack.id = "imgBack";
    add(imgBack);

    lblWelcome.id = "lblWelcome";
    lblWelcome.font = {Face::Display, 44, true};
    lblWelcome.textColor = rgb(40, 40, 40);
    add(lblWelcome);

    layOutView({}, style::kFaint);
    for (int i = 0; i < kOptions; ++i) {
        Shape& face = shpOption(i + kFirstButton);
        face.radius = style::kButtonRadius;
        add(face);
        Label& button = lblOption(i + kFirstButton);
        button.role = LabelRole::Button;
        button.group = 1;
        button.cornerRadius = style::kButtonRadius;
        add(button);
        Label& caption = lblOption(i);
        caption.textColor = rgb(250, 250, 250);
        caption.role = LabelRole::Button;
        caption.cornerRadius = style::kButtonRadius;
        caption.tabStop = false;  // the button behind it is the one to tab to
        add(caption);
    }
    fit(kWideSheet.width, kWideSheet.height);
}

// Where everything stands, in twips. What is drawn stands beside the buttons, or below them.
void frmMenu::arrange(const Sheet& paper) {
    const bool wide = paper.layout == Layout::Wide;
    width = paper.width;
    height = paper.height;
    const Twips buttonWidth = wide ? 5160 : width - 2 * 720;
    const Twips buttonHeight = wide ? 930 : 1380;
    const Twips pitch = wide ? 1230 : 1800;
    const Twips left = (width - buttonWidth) / 2;
    const Twips heading = wide ? 1080 : 1320 + (height - kHalfSheet.height) * 0.3F;
    const Twips top = wide ? 2580 : heading + 2100;
    const Font font{Face::Display, wide ? style::kButton.size : 25.F, true};
    imgBack.place(0, 0, width, height);
    imgBack.drawing = style::kMenuDrawing;
    imgBack.drawn = {};
    if (!wide)
        drawBelow(imgBack, style::kTallMenuDrawing, top + 3 * pitch + buttonHeight);
    placeViewOnPaper(paper);
    lblWelcome.place(left, heading, buttonWidth, 1080);
    for (int i = 0; i < kOptions; ++i) {
        const Twips y = top + static_cast<Twips>(i) * pitch;
        shpOption(i + kFirstButton).place(left, y, buttonWidth, buttonHeight);
        lblOption(i + kFirstButton).place(left, y, buttonWidth, buttonHeight);
        lblOption(i).font = font;
        lblOption(i).place(left + 240, y + 180, buttonWidth - 480, buttonHeight - 360);
    }
}

}  // namespace quillor
