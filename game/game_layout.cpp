// Where everything on the game screen stands, in twips, and what it looks like
// at rest. Later controls stand in front of earlier ones.
#include "game/game_screen.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr Color kInk = rgb(40, 40, 40);
constexpr Color kPale = rgb(250, 250, 250);
constexpr Color kEdge = rgb(200, 204, 208);

constexpr Twips kBarHeight = 720;
constexpr Twips kLeftColumn = 300;
constexpr Twips kLeftWidth = 3000;
constexpr Twips kRightColumn = 3540;
constexpr Twips kRightWidth = 9360;
constexpr Twips kFooter = 7665;

constexpr Twips kKeyPitch = 945;
constexpr Twips kKeyWidth = 855;
constexpr Twips kKeyRow = 720;
constexpr Twips kKeyHeight = 640;
constexpr Twips kKeyRadius = 120;
constexpr int kKeysInRow = 10;

Label& describe(Label& label, const char* id, const Font& font, Color ink, Align align) {
    label.id = id;
    label.font = font;
    label.textColor = ink;
    label.align = align;
    return label;
}

}  // namespace

void frmGame::layOut() {
    width = style::kScreenWidth;
    height = style::kScreenHeight;
    add(imgBack(0)).place(0, 0, width, height);
    add(announcer.lblSpoken);
    layOutBar();
    layOutFigure();
    layOutStrikes();
    layOutControls();
    layOutBoard();
    layOutKeyboard();
}

void frmGame::layOutBar() {
    lblBluebar.id = "lblBluebar";
    lblBluebar.opaque = true;
    add(lblBluebar).place(0, 0, width, kBarHeight);
    const Font big{Face::Display, 17, true};
    add(describe(lblMenu, "lblMenu", style::kBarText, kPale, Align::Center))
        .place(240, 90, 1020, 540);
    lblMenu.role = LabelRole::Button;
    lblMenu.cornerRadius = style::kButtonRadius;
    layOutView({1320, 90, 780, 540}, kPale);
    add(describe(lblMode, "lblMode", style::kBarText, kPale, Align::Left))
        .place(2220, 90, 2400, 540);
    add(describe(status.lblStatus, "lblStatus", big, kPale, Align::Center))
        .place(4680, 90, 3840, 540);
    add(describe(score.lblScore, "lblScore", big, kPale, Align::Right)).place(8640, 90, 3540, 540);
    for (Label* label : {&lblMenu, &lblView, &lblMode, &status.lblStatus, &score.lblScore})
        label->opaque = true;
    sounds.shpWave.id = "shpWave";
    add(sounds.shpWave).place(12300, 90, 600, 540);
    Label& wave = describe(sounds.lblWave(0), "lblWave(0)", style::kSymbol, kPale, Align::Center);
    wave.role = LabelRole::CheckBox;
    add(wave).place(12300, 90, 600, 540);
    add(describe(lblHey, "lblHey", style::kText, rgb(90, 90, 90), Align::Center))
        .place(2100, kFooter, width - 4200, 360);
}

void frmGame::layOutFigure() {
    constexpr Twips kStroke = 75;
    constexpr Twips kWood = 120;
    figure.frmeMan.id = "frmeMan";
    add(figure.frmeMan).place(kLeftColumn, 900, kLeftWidth, 4140);
    Frame* man = &figure.frmeMan;
    add(imgBack(1), man).place(0, 0, width, height);

    const auto line = [&](Line& control, const char* id, Color color, Twips thickness) -> Line& {
        control.id = id;
        control.color = color;
        control.thickness = thickness;
        return add(control, man);
    };
    const Color wood = rgb(120, 84, 52);
    line(figure.lnStick1, "lnStick1", wood, kWood).span(360, 4020, 2760, 4020);
    line(figure.lnStick2, "lnStick2", wood, kWood).span(2340, 180, 2340, 4020);
    line(figure.lnStick3, "lnStick3", wood, kWood).span(900, 180, 2340, 180);
    line(figure.lnRope, "lnRope", rgb(170, 130, 80), 60).span(1200, 180, 1200, 960);

    figure.shpPrt7.id = "shpPrt7";
    figure.shpPrt7.backColor = wood;
    figure.shpPrt7.radius = 60;
    add(figure.shpPrt7, man).place(660, 3360, 1080, 150);
    line(figure.shpPrt5, "shpPrt5", kInk, kStroke).x1 = 1110;
    line(figure.shpPrt6, "shpPrt6", kInk, kStroke).x1 = 1290;
    line(figure.shpPrt3, "shpPrt3", kInk, kStroke).x1 = 1080;
    line(figure.shpPrt4, "shpPrt4", kInk, kStroke).x1 = 1320;
    const auto shape = [&](Shape& control, const char* id, ShapeKind kind) -> Shape& {
        control.id = id;
        control.kind = kind;
        control.backColor = rgb(255, 255, 255);
        control.borderColor = kInk;
        control.borderWidth = kStroke;
        return add(control, man);
    };
    figure.shpPrt2.radius = 180;
    shape(figure.shpPrt2, "shpPrt2", ShapeKind::RoundedRectangle).place(1020, 1440, 360, 960);
    shape(figure.shpPrt1, "shpPrt1", ShapeKind::Oval).place(900, 840, 600, 600);
    line(figure.lnNeck, "lnNeck", kInk, kStroke).span(1110, 1440, 1290, 1440);
    add(describe(figure.shpPrt0, "shpPrt0", {Face::Comic, 16, true}, kInk, Align::Center), man)
        .place(900, 940, 600, 400);
    for (Control* piece : std::initializer_list<Control*>{
             &figure.lnNeck, &figure.shpPrt0, &figure.shpPrt1, &figure.shpPrt2, &figure.shpPrt3,
             &figure.shpPrt4, &figure.shpPrt5})
        piece->visible = false;
    figure.eResetHangman();
}

void frmGame::layOutStrikes() {
    constexpr Twips kBox = 480;
    constexpr Twips kLeft = kLeftColumn + 60;
    constexpr Twips kTop = 5220;
    constexpr Twips kHeight = 540;
    strikes.shpStrikes.id = "shpStrikes";
    strikes.shpStrikes.backColor = rgb(255, 255, 255);
    strikes.shpStrikes.borderColor = kEdge;
    strikes.shpStrikes.borderWidth = 15;
    strikes.shpStrikes.radius = 60;
    add(strikes.shpStrikes).place(kLeft, kTop, kBox * kMostMistakes, kHeight);
    for (int i = 0; i <= kMostMistakes; ++i) {
        const Twips x = kLeft + kBox * static_cast<Twips>(i);
        Line& edge = strikes.lnStrike(i);
        edge.thickness = 45;
        edge.span(x, kTop, x, kTop + kHeight);
        add(edge);
    }
    for (int i = 0; i < kMostMistakes; ++i) {
        Label& box = strikes.lblStrike(i);
        box.font = {Face::Display, 18, true};
        box.textColor = rgb(200, 20, 20);
        box.literal = true;
        add(box).place(kLeft + kBox * static_cast<Twips>(i) + 30, kTop, kBox - 60, kHeight);
    }
}

// The buttons in the left column, the points under the score, and the clock.
void frmGame::layOutControls() {
    constexpr Twips kButtonLeft = kLeftColumn + 60;
    constexpr Twips kButtonWidth = kLeftWidth - 120;
    playButton.shpPlay.id = "shpPlay";
    playButton.shpPlay.radius = style::kButtonRadius;
    add(playButton.shpPlay).place(kButtonLeft, 5940, kButtonWidth, 840);
    Label& play = describe(playButton.lblPlay(0), "lblPlay(0)", {Face::Display, 15, true}, kPale,
                           Align::Center);
    play.role = LabelRole::Button;
    play.cornerRadius = style::kButtonRadius;
    add(play).place(kButtonLeft, 5940, kButtonWidth, 840);

    webSearch.shpFinder.radius = style::kButtonRadius;
    add(webSearch.shpFinder).place(kButtonLeft, 6960, kButtonWidth, 600);
    for (Label& label : webSearch.lblFinder) {
        label.textColor = kPale;
        label.role = LabelRole::Button;
        label.cornerRadius = style::kButtonRadius;
    }
    webSearch.lblFinder(0).font = style::kSmallButton;
    webSearch.lblFinder(1).font = {Face::Webdings, 15, false};
    webSearch.lblFinder(1).caption = symbols::kMagnifier;
    webSearch.lblFinder(1).tabStop = false;
    add(webSearch.lblFinder(1)).place(kButtonLeft + 120, 6960, 540, 600);
    add(webSearch.lblFinder(0)).place(kButtonLeft + 660, 6960, kButtonWidth - 780, 600);
    webSearch.offer(false);

    accent.lblColor.visible = false;
    add(describe(accent.lblColor, "lblColor", {Face::Plain, 8, false}, rgb(120, 120, 120),
                 Align::Right))
        .place(11160, kFooter + 60, 1740, 240);

    add(describe(clock.lblTime, "lblTime", {Face::Display, 24, true}, kInk, Align::Right))
        .place(11100, 960, 1800, 600);
    clock.lblTime.visible = false;

    // Both labels rise by the same numbers; the bonus does so one line lower.
    score.frmePoints.id = "frmePoints";
    add(score.frmePoints).place(8100, kBarHeight, 4800, 1260);
    add(describe(score.lblPoints, "lblPoints", {Face::Display, 24, true}, kInk, Align::Right),
        &score.frmePoints)
        .place(0, 660, 4800, 540);
    score.frmeBonus.id = "frmeBonus";
    add(score.frmeBonus).place(8100, kBarHeight + 510, 4800, 1080);
    add(describe(score.lblBonus, "lblBonus", style::kText, kInk, Align::Right), &score.frmeBonus)
        .place(0, 660, 4800, 360);
    score.lblBonus.visible = score.lblPoints.visible = false;
}

void frmGame::layOutBoard() {
    constexpr Twips kCell = 495;
    constexpr Twips kAcross = 600;
    constexpr Twips kDown = 720;
    board.lblTopic.literal = true;
    add(describe(board.lblTopic, "lblTopic", {Face::Display, 20, true}, kInk, Align::Center))
        .place(4560, 960, 6960, 600);
    board.shpLimit.id = "shpLimit";
    board.shpLimit.visible = false;
    // A little to the right, as the board keeps a little to the left in it.
    add(board.shpLimit).place(kRightColumn + 420, 2040, kRightWidth - 360, 2640);
    board.frmeMagic.id = "frmeMagic";
    add(board.frmeMagic).place(kRightColumn, 2040, 0, 0);
    add(imgBack(2), &board.frmeMagic).place(0, 0, width, height);
    add(board.lnLetter, &board.frmeMagic);
    add(board.lblLetter, &board.frmeMagic);
    for (int i = 1; i <= kBoardCells; ++i) {
        Label& cell = board.lblLetter(i);
        const Twips left = 120 + kAcross * static_cast<Twips>((i - 1) % kRowCells);
        const Twips top = kDown * static_cast<Twips>((i - 1) / kRowCells);
        cell.place(left, top, kCell, kCell);
        cell.font = {Face::Display, 24, true};
        cell.literal = true;
        cell.visible = false;
        Line& underline = board.lnLetter(i);
        underline.span(left, top + 480, left + 480, top + 480);
        underline.thickness = 45;
        underline.visible = false;
    }
    add(describe(board.lblCont, "lblCont", {Face::Display, 11, true}, rgb(90, 90, 90),
                 Align::Right),
        &board.frmeMagic)
        .place(0, 0, 600, 300);
    board.lblCont.visible = false;
}

void frmGame::layOutKeyboard() {
    constexpr int kDigits = 28;
    constexpr Twips kDigitPitch = (kRightWidth + 90) / 11;
    Frame& letters = keyboard.frmeBoard;
    letters.id = "frmeBoard";
    letters.visible = false;
    add(letters).place(kRightColumn, 4800, kRightWidth, 4 * kKeyRow);
    Frame& digits = keyboard.frmeNumbers;
    digits.id = "frmeNumbers";
    digits.visible = false;
    add(digits, &letters).place(0, 3 * kKeyRow, kRightWidth, kKeyHeight);

    const auto put = [&](int key, Frame& frame, Twips left, Twips top, Twips keyWidth) {
        Shape& face = keyboard.shpKey(key);
        face.borderColor = kEdge;
        face.borderWidth = 15;
        face.radius = kKeyRadius;
        add(face, &frame).place(left, top, keyWidth, kKeyHeight);
        Label& label = keyboard.lblKey(key);
        label.font = {Face::Display, 19, true};
        label.role = LabelRole::Button;
        label.cornerRadius = kKeyRadius;
        add(label, &frame).place(left, top, keyWidth, kKeyHeight);
    };
    for (int key = 1; key < kDigits; ++key)
        put(key, letters, kKeyPitch * static_cast<Twips>((key - 1) % kKeysInRow),
            kKeyRow * static_cast<Twips>((key - 1) / kKeysInRow), kKeyWidth);
    put(Keyboard::kNumbersKey, letters, 7 * kKeyPitch, 2 * kKeyRow, kKeyWidth);
    put(Keyboard::kWriteKey, letters, 8 * kKeyPitch, 2 * kKeyRow, kKeyPitch + kKeyWidth);
    for (int key = kDigits; key <= Keyboard::kLastGuessKey; ++key)
        put(key, digits, kDigitPitch * static_cast<Twips>(key - kDigits), 0, kDigitPitch - 90);
    put(Keyboard::kHideNumbersKey, digits, 10 * kDigitPitch, 0, kDigitPitch - 90);
    keyboard.lblKey(Keyboard::kNumbersKey).font = style::kSmallButton;
    keyboard.lblKey(Keyboard::kWriteKey).font = style::kSmallButton;
    keyboard.lblKey(Keyboard::kHideNumbersKey).font = style::kSmallButton;
}

}  // namespace quillor
