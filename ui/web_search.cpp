// The addresses that an answer is looked up at.
#include "ui/web_search.h"

#include "app/shared_operations.h"
#include "core/text_rules.h"
#include "toolkit/press_feedback.h"

namespace quillor {

namespace {
// The Spanish edition in both interface languages.
constexpr TextView kEncyclopedia = u"http://es.wikipedia.org/wiki/";
}  // namespace

WebSearch::WebSearch(Program& program) : program_(program) {
    shpFinder.id = "shpFinder";
    for (Label& label : lblFinder) {
        label.onClick = [this] { lblFinder_Click(); };
        // Whichever element is pressed, the caption shows it.
        showPress(label, lblFinder(0).textColor, program.settings.glGrey, program.settings.glWhite);
    }
}

void WebSearch::offer(bool shown) {
    shpFinder.visible = shown;
    for (Label& label : lblFinder)
        label.visible = shown;
}

void WebSearch::eTranslate() {
    lblFinder(0).caption = program_.lang(texts::kFinder);
    lblFinder(1).spokenName = replaceAll(lblFinder(0).caption, u"&", u"");
    for (Label& label : lblFinder)
        label.toolTip = program_.lang(texts::kFinderTip);
}

void WebSearch::lblFinder_Click() {
    const TextView start = program_.settings.gbUseWikipedia ? kEncyclopedia : kSearchEngine;
    program_.desktop.openAddress(start, lowerCase(program_.settings.gsPhrase));
}

}  // namespace quillor
