// The list, and the mode that goes with the choice.
#include "topics/topic_selection.h"

#include "core/text_rules.h"
#include "toolkit/style.h"
#include "topics/topic_sharing.h"
#include "topics/topics.h"

namespace quillor {

frmWord2::frmWord2(Program& program) : EntryScreen("frmWord2", program) {
    layOut();
    connect();
}

void frmWord2::connect() {
    lstTopics.onClick = [this] { enableAccept(true); };
    lstTopics.onDoubleClick = [this] { lblOk_Click(); };
    lstTopics.onKeyDown = [this](KeyEvent& event) { lstTopics_KeyDown(event); };
    for (int i = 0; i <= 1; ++i) {
        lblChng(i).onClick = [this, i] { eChangeMode(i == 0 ? -1 : +1); };
        showPress(lblChng(i), lblChng(i).textColor, settings_.glGrey, settings_.glWhite);
    }
    connectAccept([this] { lblOk_Click(); });
}

void frmWord2::onLoad() {
    eTranslate();
    colour();
    lstTopics.selectionColor = settings_.glTheme;
    // The caption of the mode keeps its first text, whatever mode is pending.
    pendingMode_ = settings_.giWay;
    fillList();
}

void frmWord2::eTranslate() {
    title = program_.lang(texts::kSelectionTitle);
    translateAccept();
    lstTopics.toolTip = program_.lang(texts::kTopicsTip);
    lstTopics.spokenName = program_.lang(texts::kSpokenTopicList);
    lblSelect.caption = program_.lang(texts::kSelectionLabel);
    lblChng(0).spokenName = program_.lang(texts::kSpokenPreviousMode);
    lblChng(1).spokenName = program_.lang(texts::kSpokenNextMode);
}

void frmWord2::fillList() {
    for (const Topic& topic : settings_.gaTopicLines)
        lstTopics.items.push_back(replaceAll(topic[0], Text(u" ") + Text(texts::kSpanishTag), u""));
    const int topics = static_cast<int>(lstTopics.items.size());
    if (settings_.giTopicIndex >= 0 && topics > settings_.giTopicIndex)
        lstTopics.select(settings_.giTopicIndex);
    // A screen reader says how many there are, and not which one is selected.
    if (lstTopics.listIndex() >= 0)
        speak(lstTopics.items.at(static_cast<std::size_t>(lstTopics.listIndex())));
}

void frmWord2::lblOk_Click() {
    settings_.gbAutoChoice = false;
    const auto topic = static_cast<std::int16_t>(lstTopics.listIndex());
    if (eChoiceTopic(program_, topic, static_cast<std::int16_t>(pendingMode_)))
        program_.accept(*this);
}

void frmWord2::onFilesDropped(const std::vector<std::filesystem::path>& files) {
    Screen* game = program_.find(ScreenId::Game);
    if (!takeTopics(program_, files) || !game)
        return;
    program_.close(*this);
    eRestartGame(program_, *game);
}

// A mode of 3 or 4, taken over from the game, has no caption.
void frmWord2::eChangeMode(int step) {
    pendingMode_ += step;
    if (pendingMode_ == -1)
        pendingMode_ = kTour;
    else if (pendingMode_ == kTour + 1)
        pendingMode_ = kManual;
    if (pendingMode_ >= kManual && pendingMode_ <= kTour)
        lblOpt.caption =
            program_.lang(texts::kSelectionModes.at(static_cast<std::size_t>(pendingMode_)));
    speak(program_.lang(texts::kSpokenWay) + lblOpt.caption);
}

void frmWord2::lstTopics_KeyDown(KeyEvent& event) {
    switch (event.code) {
        case key::kReturn:
            if (event.alt)
                return;
            lblOk_Click();
            break;
        case key::kRight:
            eChangeMode(+1);
            break;
        case key::kLeft:
            eChangeMode(-1);
            break;
        default:
            return;
    }
    event.handled = true;
}

void frmWord2::layOut() {
    layOutPanel();
    lstTopics.id = "lstTopics";
    add(lstTopics);
    lblSelect.id = "lblSelect";
    lblSelect.textColor = kPale;
    lblSelect.align = Align::Left;
    add(lblSelect);
    lblOpt.id = "lblOpt";
    lblOpt.caption = texts::kSelectionModes.front().spanish;
    lblOpt.textColor = kPale;
    add(lblOpt);
    for (int i = 0; i <= 1; ++i) {
        Shape& frame = shpChng(i);
        frame.filled = false;
        frame.borderColor = kPale;
        frame.borderWidth = 30;
        add(frame);
        Label& arrow = lblChng(i);
        arrow.caption = i == 0 ? symbols::kTriangleLeft : symbols::kTriangleRight;
        arrow.font = {Face::Webdings, 16, false};
        arrow.textColor = kPale;
        arrow.toolTip = texts::kChangeModeTip;
        arrow.role = LabelRole::Button;
        add(arrow);
    }
    layOutAccept();
    layOutView();
    fit(kListSheets[0].width, kListSheets[0].height);
}

// Where everything stands, in twips: the list takes what the others leave.
void frmWord2::arrange(const Sheet& paper) {
    arrangePanel(paper);
    arrangeAccept();
    const float larger = largerOn(paper);
    const Twips arrow = 600 * larger;
    const Twips modes = shpOk.top - 300 - arrow;
    lstTopics.font = style::kField;
    lstTopics.font.size *= larger;
    lstTopics.place(kEdge, 480, kInner, modes - 180 - 480);
    const Twips rightArrow = kEdge + kInner - arrow;  // ends with the list
    const Twips leftArrow = kEdge + 1980;
    lblSelect.place(kEdge, modes, 1920, arrow);
    lblOpt.place(leftArrow + arrow, modes, rightArrow - leftArrow - arrow, arrow);
    lblSelect.font = lblOpt.font = style::kBarText;
    for (int i = 0; i <= 1; ++i) {
        const Twips left = i == 0 ? leftArrow : rightArrow;
        shpChng(i).place(left, modes, arrow, arrow);
        lblChng(i).place(left, modes, arrow, arrow);
    }
}

}  // namespace quillor
