// Every control is compared with what was told of it last; only what differs is told.
#include "web/shown_screen.h"

#include <algorithm>
#include <utility>

#include "web/look_messages.h"

namespace quillor {

namespace {

constexpr double kUsualTwips = 15;  // a pixel, where a point of a font is one of a page

}  // namespace

ShownScreen::ShownScreen(int number, int over, Screen& screen)
    : number_(number),
      over_(over),
      screen_(screen),
      focus_(screen),
      told_(screen.controls().size()) {}

const ControlRef* ShownScreen::at(int index) const {
    const auto& controls = screen_.controls();
    const bool known = index >= 0 && index < static_cast<int>(controls.size());
    return known ? &controls[static_cast<std::size_t>(index)] : nullptr;
}

int ShownScreen::indexOf(const Control* control) const {
    const auto& controls = screen_.controls();
    for (std::size_t i = 0; i < controls.size(); ++i)
        if (&controlOf(controls[i]) == control)
            return static_cast<int>(i);
    return -1;
}

void ShownScreen::tell(Messages& messages, const Scheme& scheme, double twip) {
    twip_ = twip;
    if (!std::exchange(opened_, true))
        tellOpening(messages);
    tellScreen(messages);
    const bool repaint = scheme != scheme_;
    scheme_ = scheme;
    const Grounds grounds(screen_);
    for (std::size_t i = 0; i < told_.size(); ++i)
        tellControl(messages, static_cast<int>(i), grounds, scheme, repaint);
    if (const int focused = indexOf(focus_.control()); focused != focused_) {
        focused_ = focused;
        messages.beginObject().key("tell").word("focus").key("screen").number(number_);
        messages.key("control").number(focused).endObject();
    }
}

void ShownScreen::tellOpening(Messages& messages) const {
    messages.beginObject().key("tell").word("open").key("screen").number(number_);
    messages.key("name").word(screen_.name).key("over").number(over_);
    messages.key("controls").beginList();
    for (const ControlRef& ref : screen_.controls()) {
        messages.beginObject();
        tellKind(messages, ref);
        messages.key("parent").number(indexOf(controlOf(ref).parent)).endObject();
    }
    messages.endList().endObject();
}

// A screen of one layout stands on a wide page, a dialog on none.
Sheet ShownScreen::sheet() const {
    Sheet sheet = screen_.sheet();
    if (sheet.width <= 0) {
        sheet.width = over_ != 0 ? screen_.width : std::max(screen_.width, kWideSheet.width);
        sheet.height = over_ != 0 ? screen_.height : std::max(screen_.height, kWideSheet.height);
    }
    return sheet;
}

void ShownScreen::tellScreen(Messages& messages) {
    const Area size{0, 0, screen_.width, screen_.height};
    const bool same = size == size_ && sheet_ == screen_.sheet() && title_ == screen_.title &&
                      enabled_ == screen_.enabled;
    if (same)
        return;
    size_ = size;
    sheet_ = screen_.sheet();
    title_ = screen_.title;
    enabled_ = screen_.enabled;
    const Sheet sheet = this->sheet();
    messages.beginObject().key("tell").word("screen").key("screen").number(number_);
    messages.key("title").text(title_).key("enabled").flag(enabled_);
    messages.key("size").numbers({size.width, size.height});
    messages.key("sheet").numbers({sheet.width, sheet.height}).endObject();
}

// Of what is not seen nobody asks.
bool ShownScreen::takeInk(Told& told, const ControlRef& ref, const Grounds& grounds,
                          const Scheme& scheme) const {
    if (!isSeen(controlOf(ref)))
        return false;
    std::optional<Inked> now;
    if (auto* const* label = std::get_if<Label*>(&ref); label && !(*label)->caption.empty()) {
        now = inked(grounds, **label, scheme);
        // Letters that are large on a desk may be small on a phone.
        Font drawn = (*label)->font;
        drawn.size *= static_cast<float>(twip_ * kUsualTwips);
        if (twip_ > 0)
            now->needed = std::max(now->needed, scheme.needed(contrastNeeded(drawn)));
    }
    if (auto* const* line = std::get_if<Line*>(&ref))
        now = inked(grounds, **line, scheme);
    if (!now || now == told.inked)
        return false;
    told.inked = now;
    return true;
}

void ShownScreen::tellControl(Messages& messages, int index, const Grounds& grounds,
                              const Scheme& scheme, bool repaint) {
    const ControlRef& ref = *at(index);
    const Control& control = controlOf(ref);
    Told& told = told_[static_cast<std::size_t>(index)];
    const ShownControl::Changes changes = told.shown.update(ref);
    const bool first = std::exchange(told.first, false);
    const bool ink = takeInk(told, ref, grounds, scheme);
    const bool shape = std::holds_alternative<Shape*>(ref) && changes.state;
    const bool moved = std::exchange(told.motions, control.motions) != control.motions;
    if (!changes.any() && !first && !ink && !repaint && !moved)
        return;
    messages.beginObject().key("tell").word("set").key("screen").number(number_);
    messages.key("control").number(index);
    if (changes.place || first)
        messages.key("place").area(told.shown.area);
    if (changes.state || first)
        messages.key("visible").flag(told.shown.visible).key("enabled").flag(told.shown.enabled);
    if (changes.words || first)
        messages.key("name").text(told.shown.name).key("tip").text(told.shown.toolTip);
    if (changes.words)
        messages.key("said").number(told.shown.said);
    if (changes.checked || first)
        messages.key("checked").flag(told.shown.checked);
    if (changes.look || first || ink || repaint || shape)
        tellLook(messages, ref, told.shown, told.inked.value_or(Inked{}), scheme);
    if (moved && isSeen(control))
        messages.key("motion").word(control.motion == Motion::Shake ? "shake" : "appear");
    messages.endObject();
}

}  // namespace quillor
