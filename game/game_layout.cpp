// What everything on the game screen looks like at rest, and the figure and the board inside
// their frames. Later controls stand in front of earlier ones.
#include "game/game_screen.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr Color kInk = rgb(40, 40, 40);
constexpr Color kPale = rgb(250, 250, 250);
constexpr Color kEdge = rgb(200, 204, 208);

constexpr Twips kKeyRadius = 120;

Label& describe(Label& label, const char* id, const Font& font, Color ink, Align align) {
    label.id = id;
    label.font = font;
    label.textColor = ink;
    label.align = align;
    return label;
}

}  // namespace

void frmGame::layOut() {
    add(imgBack(0));
    layOutBar();
    layOutFigure();
    layOutStrikes();
    layOutControls();
    layOutBoard();
    layOutKeyboard();
    fit(kWideSheet.width, kWideSheet.height);
}

void frmGame::layOutBar() {
    lblBluebar.id = "lblBluebar";
    lblBluebar.opaque = true;
    add(lblBluebar);
    const Font big{Face::Display, 17, true};
    add(describe(lblMenu, "lblMenu", style::kBarText, kPale, Align::Center));
    lblMenu.role = LabelRole::Button;
    lblMenu.cornerRadius = style::kButtonRadius;
    layOutView({1320, 90, 780, 540}, kPale);
    add(describe(lblMode, "lblMode", style::kBarText, kPale, Align::Left));
    add(describe(status.lblStatus, "lblStatus", big, kPale, Align::Center));
    add(describe(score.lblScore, "lblScore", big, kPale, Align::Right));
    for (Label* label : {&lblMenu, &lblView, &lblMode, &status.lblStatus, &score.lblScore})
        label->opaque = true;
    sounds.shpWave.id = "shpWave";
    add(sounds.shpWave);
    Label& wave = describe(sounds.lblWave(0), "lblWave(0)", style::kSymbol, kPale, Align::Center);
    wave.role = LabelRole::CheckBox;
    add(wave);
    add(describe(lblHey, "lblHey", style::kText, style::kFaint, Align::Center));
}

void frmGame::layOutFigure() {
    constexpr Twips kStroke = 75;
    constexpr Twips kWood = 120;
    figure.frmeMan.id = "frmeMan";
    add(figure.frmeMan);
    Frame* man = &figure.frmeMan;
    add(imgBack(1), man);

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
    strikes.shpStrikes.id = "shpStrikes";
    strikes.shpStrikes.backColor = rgb(255, 255, 255);
    strikes.shpStrikes.borderColor = kEdge;
    strikes.shpStrikes.borderWidth = 15;
    strikes.shpStrikes.radius = 60;
    add(strikes.shpStrikes);
    for (Line& edge : strikes.lnStrike) {
        edge.thickness = 45;
        add(edge);
    }
    for (Label& box : strikes.lblStrike) {
        box.font = {Face::Display, 18, true};
        box.textColor = rgb(200, 20, 20);
        box.literal = true;
        add(box);
    }
}

// The buttons, the points, and the clock.
void frmGame::layOutControls() {
    playButton.shpPlay.id = "shpPlay";
    playButton.shpPlay.radius = style::kButtonRadius;
    add(playButton.shpPlay);
    Label& play = describe(playButton.lblPlay(0), "lblPlay(0)", {Face::Display, 15, true}, kPale,
                           Align::Center);
    play.role = LabelRole::Button;
    play.cornerRadius = style::kButtonRadius;
    add(play);

    webSearch.shpFinder.radius = style::kButtonRadius;
    add(webSearch.shpFinder);
    for (Label& label : webSearch.lblFinder) {
        label.textColor = kPale;
        label.role = LabelRole::Button;
        label.cornerRadius = style::kButtonRadius;
    }
    webSearch.lblFinder(0).font = style::kSmallButton;
    webSearch.lblFinder(1).font = {Face::Webdings, 15, false};
    webSearch.lblFinder(1).caption = symbols::kMagnifier;
    webSearch.lblFinder(1).tabStop = false;
    add(webSearch.lblFinder(1));
    add(webSearch.lblFinder(0));
    webSearch.offer(false);

    accent.lblColor.visible = false;
    add(describe(accent.lblColor, "lblColor", {Face::Plain, 9, false}, rgb(110, 110, 110),
                 Align::Right));

    add(describe(clock.lblTime, "lblTime", {Face::Display, 24, true}, kInk, Align::Right));
    clock.lblTime.visible = false;

    // Both labels rise by the same numbers; the bonus does so one line lower.
    score.frmePoints.id = "frmePoints";
    add(score.frmePoints);
    add(describe(score.lblPoints, "lblPoints", {Face::Display, 24, true}, kInk, Align::Right),
        &score.frmePoints)
        .place(0, 660, 0, 540);
    score.frmeBonus.id = "frmeBonus";
    add(score.frmeBonus);
    add(describe(score.lblBonus, "lblBonus", style::kText, kInk, Align::Right), &score.frmeBonus)
        .place(0, 660, 0, 360);
    score.lblBonus.visible = score.lblPoints.visible = false;
}

void frmGame::layOutBoard() {
    constexpr Twips kCell = 495;
    constexpr Twips kAcross = 600;
    constexpr Twips kDown = 720;
    board.lblTopic.literal = true;
    add(describe(board.lblTopic, "lblTopic", {Face::Display, 20, true}, kInk, Align::Center));
    board.shpLimit.id = "shpLimit";
    board.shpLimit.visible = false;
    add(board.shpLimit);
    board.frmeMagic.id = "frmeMagic";
    add(board.frmeMagic);
    add(imgBack(2), &board.frmeMagic);
    board.lblBoard.id = "lblBoard";
    board.lblBoard.role = LabelRole::Reader;
    board.lblBoard.literal = true;
    board.lblBoard.cornerRadius = style::kButtonRadius;
    board.lblBoard.visible = false;
    add(board.lblBoard, &board.frmeMagic);
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
    Frame& letters = keyboard.frmeBoard;
    letters.id = "frmeBoard";
    letters.visible = false;
    add(letters);
    Frame& digits = keyboard.frmeNumbers;
    digits.id = "frmeNumbers";
    digits.visible = false;
    add(digits, &letters);

    const auto put = [&](int key, Frame& frame) {
        Shape& face = keyboard.shpKey(key);
        face.borderColor = kEdge;
        face.borderWidth = 15;
        face.radius = kKeyRadius;
        add(face, &frame);
        Label& label = keyboard.lblKey(key);
        label.role = LabelRole::Button;
        label.group = Keyboard::kGroup;
        label.cornerRadius = kKeyRadius;
        add(label, &frame);
    };
    for (int key = 1; key < Keyboard::kFirstDigit; ++key)
        put(key, letters);
    put(Keyboard::kNumbersKey, letters);
    put(Keyboard::kWriteKey, letters);
    for (int key = Keyboard::kFirstDigit; key <= Keyboard::kLastGuessKey; ++key)
        put(key, digits);
    put(Keyboard::kHideNumbersKey, digits);
}

}  // namespace quillor
