// What everything on the game screen looks like at rest, and the board inside its frame.
// Later controls stand in front of earlier ones.
#include "game/game_screen.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

using style::kInk;
using style::kPale;

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
    layOutView({}, kPale);
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
    Frame* man = &figure.frmeMan;
    add(*man);
    add(imgBack(1), man);
    for (const ControlRef& piece : figure.pieces())
        std::visit([this, man](auto* control) { add(*control, man); }, piece);
}

void frmGame::layOutStrikes() {
    strikes.shpStrikes.id = "shpStrikes";
    strikes.shpStrikes.backColor = rgb(255, 255, 255);
    strikes.shpStrikes.borderColor = style::kFineEdge;
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
        .place(0, ScoreLine::kPointsTop, 0, 540);
    score.frmeBonus.id = "frmeBonus";
    add(score.frmeBonus);
    add(describe(score.lblBonus, "lblBonus", style::kText, kInk, Align::Right), &score.frmeBonus)
        .place(0, ScoreLine::kPointsTop, 0, 360);
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
        face.borderColor = style::kFineEdge;
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
