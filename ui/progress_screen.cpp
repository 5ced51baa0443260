// It stands on the page that it was called from, which is there again when it closes.
#include "ui/progress_screen.h"

#include <algorithm>
#include <memory>

#include "core/numbers.h"
#include "core/topic_library.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr Twips kLeft = 1260;
constexpr Twips kColumn = 5160;
constexpr Twips kRight = kLeft + kColumn + 360;
constexpr Twips kInner = 2 * kColumn + 360;
constexpr Area kChart{kLeft, 5280, kColumn, 2400};
constexpr Twips kChartMargin = 180;
constexpr int kSpeakDelay = 300;  // ms

// The picture behind a screen, to be handed on.
ImageRef paperOf(const Screen& screen) {
    for (const ControlRef& ref : screen.controls())
        if (auto* const* picture = std::get_if<Picture*>(&ref))
            return (*picture)->image;
    return nullptr;
}

// Not over a dialog, whose window has to be answered first.
bool isOffered(const ProgramScreen& screen) {
    return screen.over == nullptr && screen.name != "frmStart" && screen.name != "frmProgress";
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

// From the oldest at the left to the last at the right, as high as the highest.
void frmProgress::showScores(const std::vector<int>& scores) {
    const int steps = static_cast<int>(scores.size()) - 1;
    const int most = scores.empty() ? 0 : std::max(1, *std::ranges::max_element(scores));
    const auto across = [steps](int i) {
        const Twips room = kChart.width - 2 * kChartMargin;
        return kChart.left + kChartMargin +
               room * static_cast<Twips>(i) / static_cast<Twips>(steps);
    };
    const auto down = [&scores, most](int i) {
        const Twips room = kChart.height - 2 * kChartMargin;
        const int score = scores[static_cast<std::size_t>(i)];
        return kChart.bottom() - kChartMargin -
               room * static_cast<Twips>(score) / static_cast<Twips>(most);
    };
    for (int i = 1; i <= kLastScore; ++i) {
        lnScore(i).visible = i <= steps;
        if (i <= steps)
            lnScore(i).span(across(i - 1), down(i - 1), across(i), down(i));
    }
    lblScores.caption = program_.lang(texts::kProgressNoScores);
    if (!scores.empty())
        lblScores.caption = program_.lang(texts::kProgressScores) +
                            inDigits(static_cast<int>(scores.size())) +
                            program_.lang(texts::kProgressFrom) + inDigits(scores.front()) +
                            program_.lang(texts::kProgressTo) + inDigits(scores.back());
}

void frmProgress::showTopics(const Progress& progress) {
    lstTopics.clear();
    for (const Topic& topic : settings_.gaTopicLines)
        lstTopics.items.push_back(
            topicTitle(topic) + u": " + inDigits(solvedPhrases(progress, topic)) +
            program_.lang(texts::kProgressOf) + inDigits(countPhrases(topic)));
    if (!lstTopics.items.empty())
        lstTopics.select(0);
}

void frmProgress::lblEmpty_Click() {
    if (!program_.desktop.question(program_.lang(texts::kAskEmpty), true))
        return;
    emptyProgress(program_.folder);
    show(readProgress(program_.folder).value_or(Progress{}));
}

void frmProgress::onKeyDown(KeyEvent& event) {
    if (event.code != key::kBackspace)
        return;
    event.handled = true;
    goBack();
}

// Where everything stands, in twips.
void frmProgress::layOut() {
    width = kWideSheet.width;
    height = kWideSheet.height;
    imgBack.id = "imgBack";
    add(imgBack).place(0, 0, width, height);
    tmrSpeak.id = "tmrSpeak";
    tmrSpeak.interval = kSpeakDelay;
    add(tmrSpeak);
    layOutHead();
    const auto text = [this](Label& label) -> Label& {
        label.font = style::kText;
        label.textColor = style::kInk;
        label.align = Align::Left;
        return add(label);
    };
    for (int i = 0; i <= kLastCount; ++i) {
        text(lblCount(i)).place(kLeft, 1620 + 420 * static_cast<Twips>(i), kColumn, 420);
        lblCount(i).font = style::kBarText;
    }
    lblScores.id = "lblScores";
    text(lblScores).place(kLeft, 4800, kColumn, 360);
    shpChart.id = "shpChart";
    shpChart.backColor = settings_.glWhite;
    shpChart.borderColor = style::kEdge;
    shpChart.borderWidth = 15;
    shpChart.radius = style::kButtonRadius;
    add(shpChart).place(kChart.left, kChart.top, kChart.width, kChart.height);
    add(lnScore);
    for (Line& line : lnScore)
        line.thickness = 45;
    lblTopics.id = "lblTopics";
    text(lblTopics).place(kRight, 1620, kColumn, 360);
    lstTopics.id = "lstTopics";
    lstTopics.font = style::kField;
    add(lstTopics).place(kRight, 2040, kColumn, 5640);
}

void frmProgress::layOutHead() {
    const auto shape = [this](Shape& face, const char* id, const Area& place) {
        face.id = id;
        face.radius = style::kButtonRadius;
        add(face).place(place.left, place.top, place.width, place.height);
    };
    const auto button = [this](Label& label, const char* id, const Area& place) {
        label.id = id;
        label.font = style::kSmallButton;
        label.role = LabelRole::Button;
        label.cornerRadius = style::kButtonRadius;
        add(label).place(place.left, place.top, place.width, place.height);
    };
    constexpr Area kBackPlace{kLeft + 180, 510, 1920, 660};
    constexpr Area kEmptyPlace{kLeft + kInner - 2100, 510, 1920, 660};
    layOutView({240, 240, 1020, 540}, style::kFaint);
    shape(shpHead, "shpHead", {kLeft, 360, kInner, 960});
    lblHeading.id = "lblHeading";
    lblHeading.font = {Face::Display, 26, true};
    add(lblHeading).place(kLeft + 2400, 360, kInner - 4800, 960);
    shape(shpBack, "shpBack", kBackPlace);
    button(lblBack, "lblBack", kBackPlace);
    shape(shpEmpty, "shpEmpty", kEmptyPlace);
    button(lblEmpty, "lblEmpty", kEmptyPlace);
}

void addProgressScreen(Program& program) {
    program.addScreen(ScreenId::Progress,
                      [](Program& owner) { return std::make_unique<frmProgress>(owner); });
    const auto open = [](ProgramScreen& screen) {
        screen.program().show(ScreenId::Progress).takePaper(paperOf(screen));
    };
    std::vector<ViewEntry>& entries = program.viewEntries;
    const auto keys = std::ranges::find(entries, "mKeys", &ViewEntry::id);
    entries.insert(keys, {"mProgress", texts::kProgress, {}, {}, open, {}, isOffered});
}

}  // namespace quillor
