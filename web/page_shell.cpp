// What follows an event: focus, differences, the page in front, and the next alarm.
#include "web/page_shell.h"

#include <algorithm>

#include "web/look_messages.h"

namespace quillor {

namespace {

// Handlers that answer each other's changes for ever must not hang the program.
constexpr int kMostRounds = 8;

}  // namespace

ShownScreen* PageShell::find(int number) const {
    for (const auto& each : screens_)
        if (each->number() == number)
            return each.get();
    return nullptr;
}

ShownScreen* PageShell::find(const Screen& screen) const {
    for (const auto& each : screens_)
        if (&each->screen() == &screen)
            return each.get();
    return nullptr;
}

// A screen that is shown once more comes to the front.
void PageShell::show(Screen& screen) {
    const auto known = std::find_if(screens_.begin(), screens_.end(),
                                    [&](const auto& each) { return &each->screen() == &screen; });
    if (known != screens_.end()) {
        std::rotate(known, known + 1, screens_.end());
        return;
    }
    const ShownScreen* below = screen.over ? find(*screen.over) : nullptr;
    screen.fit(width_, height_);
    screens_.push_back(
        std::make_unique<ShownScreen>(++numbers_, below ? below->number() : 0, screen));
}

void PageShell::close(Screen& screen) {
    const auto known = std::find_if(screens_.begin(), screens_.end(),
                                    [&](const auto& each) { return &each->screen() == &screen; });
    if (known == screens_.end())
        return;
    keys.forget(screen);
    toldClosed_.push_back((*known)->number());
    closed_.push_back(std::move(*known));
    screens_.erase(known);
}

void PageShell::setRoom(double width, double height) {
    width_ = width;
    height_ = height;
    event([this] {
        for (const auto& each : screens_)
            each->screen().fit(width_, height_);
    });
}

void PageShell::apply(const Preferences& wanted) {
    preferences_ = wanted;
    scheme_ = Scheme(wanted);
    event([] {});
}

void PageShell::tick() {
    alarm_.reset();
    clock_.tick(now(),
                [this](Screen& screen, Timer& timer) { event([&] { screen.tick(timer); }); });
    Messages messages;
    messages.beginList();
    setAlarm(messages);
    send(messages.endList());
}

void PageShell::settle() {
    if (!events_.areDone() || ended_)
        return;
    if (telling_) {
        again_ = true;
        return;
    }
    refresh();
    if (!events_.areIdle())
        return;
    closed_.clear();
    if (onIdle)
        onIdle();
}

void PageShell::tellNow() {
    if (!ended_ && !telling_)
        refresh();
}

// Moving the focus runs handlers, which may open and close screens.
void PageShell::refresh() {
    telling_ = true;
    int rounds = 0;
    do {
        again_ = false;
        std::vector<Screen*> open;
        for (const auto& each : screens_)
            open.push_back(&each->screen());
        for (const Screen* screen : open)
            if (ShownScreen* shown = find(*screen))
                shown->focus().settle();
    } while (again_ && ++rounds < kMostRounds);
    Messages messages;
    messages.beginList();
    tellColorsOnce(messages);
    tellLanguageOnce(messages);
    for (const auto& each : screens_)
        each->tell(messages, scheme_, pixelsOfTwip());
    tellFronts(messages);
    std::vector<Screen*> open;
    for (const auto& each : screens_)
        open.push_back(&each->screen());
    clock_.look(open, now());
    setAlarm(messages);
    telling_ = false;
    send(messages.endList());
}

// On the page in front; what stands over it is as large.
double PageShell::pixelsOfTwip() const {
    double twip = 0;
    for (const auto& each : screens_)
        if (!each->screen().over)
            twip = std::min(width_ / each->sheet().width, height_ / each->sheet().height);
    return twip;
}

// The script shows the last of the large screens, and what stands over it.
void PageShell::tellFronts(Messages& messages) {
    for (const int number : std::exchange(toldClosed_, {}))
        messages.beginObject().key("tell").word("close").key("screen").number(number).endObject();
    int front = 0;
    for (const auto& each : screens_)
        if (!each->screen().over)
            front = each->number();
    if (std::exchange(front_, front) == front)
        return;
    messages.beginObject().key("tell").word("front").key("screen").number(front).endObject();
}

void PageShell::tellColorsOnce(Messages& messages) {
    const std::pair colors{scheme_, accent()};
    if (colors_ == colors)
        return;
    colors_ = colors;
    tellColors(messages, scheme_, colors.second);
}

void PageShell::tellLanguageOnce(Messages& messages) {
    const Language spoken = language();
    if (language_ == spoken)
        return;
    language_ = spoken;
    messages.beginObject().key("tell").word("language").key("english").flag(spoken.english);
    messages.key("close").text(spoken.close).endObject();
}

// Only when it is another moment than the script knows already.
void PageShell::setAlarm(Messages& messages) {
    const std::optional<std::int64_t> due = clock_.nextDue();
    if (std::exchange(alarm_, due) == due)
        return;
    messages.beginObject().key("tell").word("alarm").key("after");
    messages.number(due ? static_cast<double>(std::max<std::int64_t>(*due - now(), 0)) : -1);
    messages.endObject();
}

}  // namespace quillor
