#include "topics/topic_opening.h"

#include "core/files.h"
#include "core/guard.h"
#include "core/topic_library.h"
#include "toolkit/style.h"

namespace quillor {

frmOpen::frmOpen(Program& program) : EntryScreen("frmOpen", program) {
    layOut();
    connect();
}

void frmOpen::connect() {
    lstTopics.onClick = [this] { enableAccept(true); };
    lstTopics.onDoubleClick = [this] { lblOk_Click(); };
    lstTopics.onKeyDown = [this](KeyEvent& event) { lstTopics_KeyDown(event); };
    connectAccept([this] { lblOk_Click(); });
}

// Also topics that are not loaded: one too long keeps those after it from the game.
void frmOpen::onLoad() {
    title = program_.lang(texts::kOpenTitle);
    translateAccept();
    colour();
    lstTopics.toolTip = program_.lang(texts::kOpenTip);
    lstTopics.spokenName = program_.lang(texts::kSpokenTopicList);
    lstTopics.selectionColor = settings_.glTheme;
    quietly("list the topics",
            [this] { files_ = topicFiles(topicFolder(settings_, program_.folder)); });
    for (const Place& file : files_)
        lstTopics.items.push_back(fromPath(file.path().stem()));
    if (!files_.empty())
        lstTopics.select(0);
}

void frmOpen::lblOk_Click() {
    if (lstTopics.listIndex() >= 0)
        program_.accept(*this);
}

void frmOpen::lstTopics_KeyDown(KeyEvent& event) {
    if (event.code != key::kReturn)
        return;
    event.handled = true;
    lblOk_Click();
}

void frmOpen::layOut() {
    layOutPanel();
    lstTopics.id = "lstTopics";
    add(lstTopics);
    layOutAccept();
    layOutView();
    fit(kListSheets[0].width, kListSheets[0].height);
}

// Where everything stands, in twips.
void frmOpen::arrange(const Sheet& paper) {
    arrangePanel(paper);
    arrangeAccept();
    lstTopics.font = style::kField;
    lstTopics.font.size *= largerOn(paper);
    lstTopics.place(kEdge, 480, kInner, shpOk.top - 300 - 480);
}

}  // namespace quillor
