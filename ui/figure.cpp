// The pieces' places at rest, and the one drop away from them.
#include "ui/figure.h"

#include <algorithm>

#include "core/texts.h"

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
        const Text mistake =
            round.mistakes.substr(std::min(static_cast<std::size_t>(i), round.mistakes.size()), 1);
        if (lblStrike(i).caption.empty() && !mistake.empty())
            for (Control* part :
                 std::initializer_list<Control*>{&lblStrike(i), &lnStrike(i), &lnStrike(i + 1)})
                part->move(Motion::Shake);
        lblStrike(i).caption = mistake;
    }
}

Figure::Figure() {
    tmrDead.id = "tmrDead";
    tmrDead.interval = 100;
    tmrDead.onTick = [this] { tmrDead_Timer(); };
}

void Figure::ePutItHangman(int mistakes) {
    static_assert(kMostMistakes == 6, "each mistake brings a piece, the last one the second leg");
    shpPrt0.visible = shpPrt1.visible = lnNeck.visible = mistakes >= 1;
    shpPrt2.visible = mistakes >= 2;
    shpPrt3.visible = mistakes >= 3;
    shpPrt4.visible = mistakes >= 4;
    shpPrt5.visible = mistakes >= 5;
    if (mistakes >= kMostMistakes)
        shpPrt6.visible = true;
}

void Figure::eResetHangman() {
    tmrDead.enabled = false;
    lnNeck.y1 = lnNeck.y2 = 1440;
    shpPrt0.caption = u"- -";
    shpPrt0.font.size = 16;
    shpPrt0.top = 940;
    shpPrt1.top = 840;
    shpPrt2.top = 1440;
    const auto rest = [](Line& limb, Twips y1, Twips y2, Twips x2) {
        limb.y1 = y1;
        limb.y2 = y2;
        limb.x2 = x2;
    };
    rest(shpPrt3, 1560, 2520, 840);
    rest(shpPrt4, 1560, 2520, 1560);
    rest(shpPrt5, 2340, 3360, 1080);
    rest(shpPrt6, 2340, 3360, 1320);
    shpPrt7.top = 3360;
    shpPrt6.visible = false;
}

// All moves are relative: the drop runs once between two resets.
void Figure::tmrDead_Timer() {
    constexpr Twips kSag = 60;
    const auto sag = [](Line& line, Twips inward) {
        line.y1 += kSag;
        line.y2 += kSag;
        line.x2 += inward;
        line.visible = true;
    };
    shpPrt7.top += 360;
    sag(lnNeck, 0);
    shpPrt0.caption = u"x x";
    shpPrt0.font.size = 14;
    shpPrt0.top += 90;
    shpPrt1.top += kSag;
    shpPrt2.top += kSag;
    shpPrt0.visible = shpPrt1.visible = shpPrt2.visible = true;
    sag(shpPrt3, 240);
    sag(shpPrt4, -240);
    sag(shpPrt5, 60);
    sag(shpPrt6, -60);
    tmrDead.enabled = false;
}

}  // namespace quillor
