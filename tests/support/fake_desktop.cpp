// Boxes are answered in the order they were scripted; focus goes as in a window.
#include "tests/support/fake_desktop.h"

#include <algorithm>
#include <stdexcept>

#include <gtest/gtest.h>

#include "core/files.h"
#include "core/text_codec.h"

namespace quillor::testing {

namespace {

constexpr int kFirstSound = 101;
constexpr std::int64_t kDay = 24 * 60 * 60 * 1000;

constexpr TextView kYesReply = u"yes";

MenuItem* findItem(MenuItem& menu, const std::string& id) {
    if (!menu.enabled)
        return nullptr;
    if (menu.id == id)
        return &menu;
    for (MenuItem* child : menu.children)
        if (MenuItem* found = findItem(*child, id))
            return found;
    return nullptr;
}

}  // namespace

FakeDesktop::FakeDesktop() {
    for (std::size_t i = 0; i < sounds_.size(); ++i)
        sounds_[i] = static_cast<std::byte>(kFirstSound + static_cast<int>(i));
}

FakeDesktop::~FakeDesktop() {
    for (const Box& box : boxes_)
        ADD_FAILURE() << "never asked for: " << box.kind << " \"" << toUtf8(box.text) << '"';
}

void FakeDesktop::expectMessage(TextView text, Callback whileOpen) {
    boxes_.push_back({"message", Text(text), {}, std::move(whileOpen)});
}

void FakeDesktop::expectCritical(TextView text, Callback whileOpen) {
    boxes_.push_back({"critical message", Text(text), {}, std::move(whileOpen)});
}

void FakeDesktop::answerQuestion(TextView text, bool yes, Callback whileOpen) {
    boxes_.push_back(
        {"question", Text(text), yes ? Text(kYesReply) : Text(), std::move(whileOpen)});
}

void FakeDesktop::answerInput(TextView prompt, TextView typed, Callback whileOpen) {
    boxes_.push_back({"input", Text(prompt), Text(typed), std::move(whileOpen)});
}

void FakeDesktop::expectAbout(TextView title, TextView text) {
    boxes_.push_back({"about", Text(title).append(u"#").append(text), {}, {}});
}

Text FakeDesktop::answer(const std::string& kind, TextView text) {
    if (boxes_.empty()) {
        ADD_FAILURE() << "unscripted " << kind << " \"" << toUtf8(text) << '"';
        return {};
    }
    Box box = std::move(boxes_.front());
    boxes_.pop_front();
    EXPECT_EQ(box.kind, kind) << toUtf8(text);
    EXPECT_EQ(toUtf8(box.text), toUtf8(text));
    keys.letGo();
    if (box.whileOpen) {
        ++boxesOpen_;
        box.whileOpen();
        --boxesOpen_;
    }
    return box.kind == kind ? box.reply : Text();
}

void FakeDesktop::messageBox(MessageIcon icon, TextView text) {
    answer(icon == MessageIcon::Critical ? "critical message" : "message", text);
}

bool FakeDesktop::question(TextView text, bool yesLoses) {
    noPreselected = yesLoses;
    return answer("question", text) == kYesReply;
}

Text FakeDesktop::inputBox(TextView prompt) {
    return answer("input", prompt);
}

void FakeDesktop::aboutBox(TextView title, TextView text) {
    answer("about", Text(title).append(u"#").append(text));
}

void FakeDesktop::advance(int milliseconds) {
    const std::int64_t until = now_ + milliseconds;
    clock_.look(openScreens_, now_);
    while (!ended) {
        const std::optional<std::int64_t> due = clock_.nextDue();
        now_ = std::max(now_, due ? std::min(*due, until) : until);
        if (!due || *due > until)
            return;
        clock_.tick(now_,
                    [&](Screen& screen, Timer& timer) { deliver([&] { screen.tick(timer); }); });
    }
}

void FakeDesktop::setTimeOfDay(TimeOfDay time) {
    const std::int64_t wanted = ((time.hour * 60 + time.minute) * 60 + time.second) * 1000LL;
    dayStart_ = ((wanted - now_) % kDay + kDay) % kDay;
}

TimeOfDay FakeDesktop::timeOfDay() {
    const auto seconds = static_cast<int>((dayStart_ + now_) % kDay / 1000);
    return {seconds / 3600, seconds / 60 % 60, seconds % 60};
}

void FakeDesktop::deliver(const Callback& event) {
    if (ended)
        return;
    events_.run(event);
    settle();
}

void FakeDesktop::settle() {
    if (events_.areIdle() && onIdle)
        onIdle();
    const std::vector<Screen*> screens = openScreens_;
    for (Screen* screen : screens)
        if (const auto found = focus_.find(screen); found != focus_.end())
            found->second.settle();
    clock_.look(openScreens_, now_);
}

Control* FakeDesktop::focusOf(const Screen& screen) const {
    const auto found = focus_.find(&screen);
    return found == focus_.end() ? nullptr : found->second.control();
}

ImageRef FakeDesktop::loadPicture(const Place& file) {
    if (!readFileStart(file, 1).starts_with("\xFF\xD8"))  // as every JPEG file does
        throw std::runtime_error("no picture");
    return picturesFit ? std::make_shared<FakeImage>(file) : nullptr;
}

std::span<const std::byte> FakeDesktop::sound(int id) {
    if (!soundsCarried)
        return {};
    return std::span<const std::byte>(sounds_).subspan(static_cast<std::size_t>(id - kFirstSound),
                                                       1);
}

void FakeDesktop::playWave(std::span<const std::byte> image) {
    playedSounds.push_back(image.empty() ? 0 : std::to_integer<int>(image.front()));
}

double FakeDesktop::random() {
    if (draws.empty())
        return random_.next();
    const double draw = draws.front();
    draws.pop_front();
    return draw;
}

void FakeDesktop::seedRandom() {
    ++seedings;
    random_.reseed(static_cast<std::uint64_t>(now_));
}

void FakeDesktop::show(Screen& screen) {
    shown.push_back(screen.name);
    std::erase(openScreens_, &screen);
    openScreens_.push_back(&screen);
    focus_.try_emplace(&screen, screen);
}

void FakeDesktop::close(Screen& screen) {
    closed.push_back(screen.name);
    std::erase(openScreens_, &screen);
    keys.forget(screen);
    focus_.erase(&screen);
}

void FakeDesktop::popUp(Screen& screen, MenuItem& menu, const Control* under) {
    popUps.push_back(menu.id);
    popUpUnder = under;
    keys.letGo();
    if (menuChoice_.empty())
        return;
    const std::string wanted = std::exchange(menuChoice_, {});
    MenuItem* item = findItem(menu, wanted);
    if (!item)
        ADD_FAILURE() << "no enabled menu entry " << wanted;
    else
        deliver([&] { screen.choose(*item); });
}

}  // namespace quillor::testing
