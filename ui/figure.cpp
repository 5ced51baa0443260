// The pieces in one table: when they show, their places at rest, and the one drop away.
#include "ui/figure.h"

#include <algorithm>
#include <array>

#include "core/texts.h"
#include "toolkit/style.h"

namespace quillor {

static_assert(texts::kMistakeTips.size() == kMostMistakes, "each strike box has its tip");

void StrikeBoxes::arrange(const Area& area) {
    const Twips box = area.width / kMostMistakes;
    shpStrikes.place(area.left, area.top, area.width, area.height);
    for (int i = 0; i <= kMostMistakes; ++i) {
        const Twips x = area.left + box * static_cast<Twips>(i);
        lnStrike(i).span(x, area.top, x, area.bottom());
        if (i < kMostMistakes)
            lblStrike(i).place(x + 30, area.top, box - 60, area.height);
    }
}

void StrikeBoxes::eTranslate(const GameSettings& settings) {
    for (int i = 0; i < kMostMistakes; ++i)
        lblStrike(i).toolTip = eLang(settings, texts::kMistakeTips.at(static_cast<std::size_t>(i)));
}

void StrikeBoxes::show(const Round& round) {
    for (int i = 0; i < kMostMistakes; ++i) {
        const auto place = static_cast<std::size_t>(i);
        const bool filled = place < round.mistakes.size();
        if (filled && place >= shown_)
            for (Control* part :
                 std::initializer_list<Control*>{&lblStrike(i), &lnStrike(i), &lnStrike(i + 1)})
                part->move(Motion::Shake);
        lblStrike(i).caption = filled ? Text(1, round.mistakes[place]) : Text();
    }
    shown_ = round.mistakes.size();
}

namespace {

constexpr Twips kStroke = 75;
constexpr Color kWood = rgb(120, 84, 52);

using Member = std::variant<Line Figure::*, Shape Figure::*, Label Figure::*>;

struct Piece {
    Member member;
    const char* id;
    int mistake;       // that brings it; 0: it is there from the beginning
    Area rest;         // in the figure's frame; of a line from its first point to its second
    Twips drop;        // by how much it falls at death
    Twips inward = 0;  // and how far a limb's free end comes in from the left
};

// From back to front. A mistake more is a piece more, here and in the header.
constexpr std::array<Piece, 9> kPieces{{
    {&Figure::shpPrt7, "shpPrt7", 0, {660, 3360, 1080, 150}, 360},
    {&Figure::shpPrt5, "shpPrt5", 5, {1110, 2340, -30, 1020}, 60, 60},
    {&Figure::shpPrt6, "shpPrt6", 6, {1290, 2340, 30, 1020}, 60, -60},
    {&Figure::shpPrt3, "shpPrt3", 3, {1080, 1560, -240, 960}, 60, 240},
    {&Figure::shpPrt4, "shpPrt4", 4, {1320, 1560, 240, 960}, 60, -240},
    {&Figure::shpPrt2, "shpPrt2", 2, {1020, 1440, 360, 960}, 60},
    {&Figure::shpPrt1, "shpPrt1", 1, {900, 840, 600, 600}, 60},
    {&Figure::lnNeck, "lnNeck", 1, {1110, 1440, 180, 0}, 60},
    {&Figure::shpPrt0, "shpPrt0", 1, {900, 940, 600, 400}, 90},
}};

constexpr bool eachMistakeHasItsPiece() {
    for (int mistake = 1; mistake <= kMostMistakes; ++mistake)
        if (std::none_of(kPieces.begin(), kPieces.end(),
                         [mistake](const Piece& piece) { return piece.mistake == mistake; }))
            return false;
    return true;
}
static_assert(eachMistakeHasItsPiece());

ControlRef refTo(Figure& figure, const Piece& piece) {
    return std::visit([&figure](auto member) -> ControlRef { return &(figure.*member); },
                      piece.member);
}

Control& controlOf(Figure& figure, const Piece& piece) {
    return controlOf(refTo(figure, piece));
}

void putToRest(Figure& figure, const Piece& piece) {
    const Area& rest = piece.rest;
    if (const auto* line = std::get_if<Line Figure::*>(&piece.member))
        (figure.**line).span(rest.left, rest.top, rest.right(), rest.bottom());
    else
        controlOf(figure, piece).place(rest.left, rest.top, rest.width, rest.height);
}

void drop(Figure& figure, const Piece& piece) {
    controlOf(figure, piece).visible = true;
    if (const auto* member = std::get_if<Line Figure::*>(&piece.member)) {
        Line& line = figure.**member;
        line.span(line.x1, line.y1 + piece.drop, line.x2 + piece.inward, line.y2 + piece.drop);
    } else {
        controlOf(figure, piece).top += piece.drop;
    }
}

}  // namespace

Figure::Figure() {
    frmeMan.id = "frmeMan";
    layOutGallows();
    layOutMan();
    tmrDead.id = "tmrDead";
    tmrDead.interval = 100;
    tmrDead.onTick = [this] { tmrDead_Timer(); };
    eResetHangman();
    ePutItHangman(0);
}

void Figure::layOutGallows() {
    const auto beam = [](Line& line, const char* id) -> Line& {
        line.id = id;
        line.color = kWood;
        line.thickness = 120;
        return line;
    };
    beam(lnStick1, "lnStick1").span(360, 4020, 2760, 4020);
    beam(lnStick2, "lnStick2").span(2340, 180, 2340, 4020);
    beam(lnStick3, "lnStick3").span(900, 180, 2340, 180);
    lnRope.id = "lnRope";
    lnRope.color = rgb(170, 130, 80);
    lnRope.thickness = 60;
    lnRope.span(1200, 180, 1200, 960);
}

void Figure::layOutMan() {
    for (const Piece& piece : kPieces)
        controlOf(*this, piece).id = piece.id;
    for (Line* line : {&lnNeck, &shpPrt3, &shpPrt4, &shpPrt5, &shpPrt6}) {
        line->color = style::kInk;
        line->thickness = kStroke;
    }
    for (Shape* shape : {&shpPrt1, &shpPrt2}) {
        shape->backColor = rgb(255, 255, 255);
        shape->borderColor = style::kInk;
        shape->borderWidth = kStroke;
    }
    shpPrt1.kind = ShapeKind::Oval;
    shpPrt2.radius = 180;
    shpPrt7.backColor = kWood;
    shpPrt7.radius = 60;
    shpPrt0.textColor = style::kInk;
}

std::vector<ControlRef> Figure::pieces() {
    std::vector<ControlRef> all{&lnStick1, &lnStick2, &lnStick3, &lnRope};
    for (const Piece& piece : kPieces)
        all.push_back(refTo(*this, piece));
    return all;
}

void Figure::ePutItHangman(int mistakes) {
    for (const Piece& piece : kPieces)
        if (mistakes >= piece.mistake || piece.mistake < kMostMistakes)
            controlOf(*this, piece).visible = mistakes >= piece.mistake;
}

void Figure::eResetHangman() {
    tmrDead.enabled = false;
    for (const Piece& piece : kPieces) {
        putToRest(*this, piece);
        if (piece.mistake == kMostMistakes)
            controlOf(*this, piece).visible = false;
    }
    shpPrt0.caption = u"- -";
    shpPrt0.font = {Face::Comic, 16, true};
}

// All moves are relative: the drop runs once between two resets.
void Figure::tmrDead_Timer() {
    tmrDead.enabled = false;
    for (const Piece& piece : kPieces)
        drop(*this, piece);
    shpPrt0.caption = u"x x";
    shpPrt0.font.size = 14;
}

}  // namespace quillor
