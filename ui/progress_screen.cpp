// It stands on the page that it was called from, which is there again when it closes.
#include "ui/progress_screen.h"

#include <algorithm>
#include <memory>

#include "core/numbers.h"
#include "core/text_rules.h"
#include "core/topic_library.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr Twips kChartMargin = 180;
constexpr Twips kDot = 30;        // that a single score is drawn as
constexpr int kSpeakDelay = 300;  // ms

// The picture behind a screen, to be handed on.
ImageRef paperOf(const Screen& screen) {
    for (const ControlRef& ref : screen.controls())
        if (auto* const* picture = std::get_if<Picture*>(&ref))
            return (*picture)->image;
    return nullptr;
}

// Not over a dialog, whose window has to be answered first, nor over a game that is being
// played: it would go on behind the page, with its clock.
bool isOffered(const ProgramScreen& screen) {
    return screen.over == nullptr && screen.name != "frmStart" && screen.name != "frmProgress" &&
           screen.program().settings.giGameState != kPlaying;
}

}  // namespace

frmProgress::frmProgress(Program& program) : ProgramScreen("frmProgress", program) {
    layOut();
    connect();
}

void frmProgress::connect() {
    lblBack.onClick = [this] { goBack(); };
    lblEmpty.onClick = [this] { lblEmpty_Click(); };
    showPress(lblBack, shpBack.backColor, settings_.glGreen, settings_.glRed);
    showPress(lblEmpty, lblEmpty.textColor, settings_.glGrey, settings_.glWhite);
    tmrSpeak.onTick = [this] {
        tmrSpeak.enabled = false;
        Text words;
        for (const Label& count : lblCount)
            words += count.caption + u". ";
        speak(words + lblScores.caption);
    };
}

void frmProgress::onLoad() {
    eTranslate();
    shpHead.backColor = shpEmpty.backColor = settings_.glTheme;
    shpBack.backColor = settings_.glRed;
    lstTopics.selectionColor = settings_.glTheme;
    for (Label* label : {&lblHeading, &lblBack, &lblEmpty})
        label->textColor = settings_.glWhite;
    for (Line& line : lnScore)
        line.color = settings_.glTheme;
    program_.keepPlayed();
    show(readProgress(program_.folder).value_or(Progress{}));
    tmrSpeak.enabled = true;
}

void frmProgress::eTranslate() {
    title = program_.lang(texts::kProgressTitle);
    lblHeading.caption = program_.lang(texts::kProgressHeading);
    lblBack.caption = program_.lang(texts::kBack);
    lblEmpty.caption = program_.lang(texts::kProgressEmpty);
    lblEmpty.toolTip = program_.lang(texts::kProgressEmptyTip);
    lblTopics.caption = program_.lang(texts::kProgressTopics);
    lstTopics.spokenName = lblTopics.caption;
}

void frmProgress::show(const Progress& progress) {
    showCounts(progress);
    showScores(progress.scores);
    showTopics(progress);
}

void frmProgress::showCounts(const Progress& progress) {
    const std::array<int, kLastCount + 1> counts{
        progress.won,       progress.lost,    progress.run,    progress.longestRun,
        progress.bestScore, progress.letters, progress.answers};
    for (int i = 0; i <= kLastCount; ++i) {
        const auto at = static_cast<std::size_t>(i);
        lblCount(i).caption =
            program_.lang(texts::kProgressCounts.at(at)) + inDigits(counts.at(at));
    }
}

void frmProgress::showScores(const std::vector<int>& scores) {
    scores_ = scores;
    drawScores();
    tellScores();
}

// From the oldest at the left to the last at the right, as high as the highest. A single
// one is a dot.
void frmProgress::drawScores() {
    const int count = static_cast<int>(scores_.size());
    const int steps = std::max(count, 2) - 1;
    const int most =
        scores_.empty() ? 0 : std::max(1, *std::max_element(scores_.begin(), scores_.end()));
    const auto across = [&](int i) {
        const Twips room = shpChart.width - 2 * kChartMargin;
        return shpChart.left + kChartMargin +
               room * static_cast<Twips>(i) / static_cast<Twips>(steps);
    };
    const auto down = [&](int i) {
        const Twips room = shpChart.height - 2 * kChartMargin;
        const int score = scores_[static_cast<std::size_t>(i)];
        return shpChart.bottom() - kChartMargin -
               room * static_cast<Twips>(score) / static_cast<Twips>(most);
    };
    for (int i = 1; i <= kLastScore; ++i) {
        lnScore(i).visible = i < count;
        if (i < count)
            lnScore(i).span(across(i - 1), down(i - 1), across(i), down(i));
    }
    if (count == 1) {
        lnScore(1).visible = true;
        lnScore(1).span(across(0), down(0), across(0) + kDot, down(0));
    }
}

void frmProgress::tellScores() {
    if (scores_.empty())
        lblScores.caption = program_.lang(texts::kProgressNoScores);
    else if (scores_.size() == 1)
        lblScores.caption = program_.lang(texts::kProgressOneScore) + inDigits(scores_.front());
    else
        lblScores.caption = program_.lang(texts::kProgressScores) +
                            inDigits(static_cast<int>(scores_.size())) +
                            program_.lang(texts::kProgressFrom) + inDigits(scores_.front()) +
                            program_.lang(texts::kProgressTo) + inDigits(scores_.back());
}

void frmProgress::showTopics(const Progress& progress) {
    lstTopics.clear();
    for (const Topic& topic : settings_.gaTopicLines)
        lstTopics.items.push_back(
            isolated(topicTitle(topic)) + u": " + inDigits(solvedPhrases(progress, topic)) +
            program_.lang(texts::kProgressOf) + inDigits(countPhrases(topic)));
    if (!lstTopics.items.empty())
        lstTopics.select(0);
}

void frmProgress::lblEmpty_Click() {
    if (!program_.desktop.question(program_.lang(texts::kAskEmpty), true))
        return;
    if (!emptyProgress(program_.folder))
        program_.desktop.messageBox(MessageIcon::Critical, program_.lang(texts::kProgressUnsaved));
    show(readProgress(program_.folder).value_or(Progress{}));
}

void frmProgress::onKeyDown(KeyEvent& event) {
    if (event.code != key::kBackspace)
        return;
    event.handled = true;
    goBack();
}

void frmProgress::layOut() {
    imgBack.id = "imgBack";
    add(imgBack);
    tmrSpeak.id = "tmrSpeak";
    tmrSpeak.interval = kSpeakDelay;
    add(tmrSpeak);
    layOutHead();
    const auto text = [this](Label& label) {
        label.textColor = style::kInk;
        label.align = Align::Left;
        add(label);
    };
    for (Label& count : lblCount)
        text(count);
    lblScores.id = "lblScores";
    text(lblScores);
    shpChart.id = "shpChart";
    shpChart.backColor = settings_.glWhite;
    shpChart.borderColor = style::kEdge;
    shpChart.borderWidth = 15;
    shpChart.radius = style::kButtonRadius;
    add(shpChart);
    add(lnScore);
    for (Line& line : lnScore)
        line.thickness = 45;
    lblTopics.id = "lblTopics";
    text(lblTopics);
    lstTopics.id = "lstTopics";
    add(lstTopics);
    fit(kWideSheet.width, kWideSheet.height);
}

void frmProgress::layOutHead() {
    const auto button = [this](Shape& face, Label& label) {
        face.radius = label.cornerRadius = style::kButtonRadius;
        label.role = LabelRole::Button;
        add(face);
        add(label);
    };
    layOutView({}, style::kFaint);
    shpHead.id = "shpHead";
    shpHead.radius = style::kButtonRadius;
    add(shpHead);
    lblHeading.id = "lblHeading";
    lblHeading.font = {Face::Display, 26, true};
    add(lblHeading);
    shpBack.id = "shpBack";
    lblBack.id = "lblBack";
    button(shpBack, lblBack);
    shpEmpty.id = "shpEmpty";
    lblEmpty.id = "lblEmpty";
    button(shpEmpty, lblEmpty);
}

// Where everything stands, in twips: the topics beside what was done, or below it.
void frmProgress::arrange(const Sheet& paper) {
    const bool wide = paper.layout == Layout::Wide;
    const float larger = wide ? 1 : 1.3F;
    const Twips left = wide ? 1260 : 300;
    width = paper.width;
    height = paper.height;
    const Twips inner = width - 2 * left;
    const Twips column = wide ? (inner - 360) / 2 : inner;
    const Twips row = 420 * larger;
    const Twips first = wide ? 1620 : 2340;
    const Twips chart = first + static_cast<Twips>(kLastCount + 1) * row + (wide ? 720.F : 840.F);
    const Twips chartHeight = wide ? 2400 : 2700;
    imgBack.place(0, 0, width, height);
    placeViewOnPaper(paper);
    arrangeHead({left, wide ? 360.F : 990.F, inner, 960 * larger}, larger);
    for (int i = 0; i <= kLastCount; ++i) {
        lblCount(i).font = style::kBarText;
        lblCount(i).font.size *= larger;
        lblCount(i).place(left, first + row * static_cast<Twips>(i), column, row);
    }
    lblScores.place(left, chart - 480 * larger, column, 360 * larger);
    shpChart.place(left, chart, column, chartHeight);
    drawScores();
    const Twips beside = wide ? left + column + 360 : left;
    const Twips topics = wide ? first : chart + chartHeight + 300;
    lblTopics.place(beside, topics, column, 360 * larger);
    lstTopics.place(beside, topics + 420 * larger, column,
                    height - (wide ? 420.F : 300.F) - topics - 420 * larger);
    lblScores.font = lblTopics.font = style::kText;
    lstTopics.font = style::kField;
    for (Font* font : {&lblScores.font, &lblTopics.font, &lstTopics.font})
        font->size *= larger;
}

void frmProgress::arrangeHead(const Area& area, float larger) {
    const Twips inset = 150 * larger;
    const Twips button = 1920 * larger;
    const auto put = [&](Shape& face, Label& label, Twips x) {
        face.place(x, area.top + inset, button, area.height - 2 * inset);
        label.place(x, area.top + inset, button, area.height - 2 * inset);
        label.font = style::kSmallButton;
        label.font.size *= larger;
    };
    shpHead.place(area.left, area.top, area.width, area.height);
    const Twips beside = button + inset + 180;
    lblHeading.place(area.left + beside, area.top, area.width - 2 * beside, area.height);
    put(shpBack, lblBack, area.left + 180);
    put(shpEmpty, lblEmpty, area.right() - 180 - button);
}

void addProgressScreen(Program& program) {
    program.addScreen(ScreenId::Progress,
                      [](Program& owner) { return std::make_unique<frmProgress>(owner); });
    const auto open = [](ProgramScreen& screen) {
        screen.program().show(ScreenId::Progress).takePaper(paperOf(screen));
    };
    std::vector<ViewEntry>& entries = program.viewEntries;
    const auto keys = std::find_if(entries.begin(), entries.end(),
                                   [](const ViewEntry& entry) { return entry.id == "mKeys"; });
    entries.insert(keys, {"mProgress", texts::kProgress, {}, {}, open, {}, isOffered});
}

}  // namespace quillor
