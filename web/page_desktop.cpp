// Each wish by way of the script; whatever opens a box runs inside PageShell::modally.
#include "web/page_desktop.h"

#include <algorithm>
#include <ctime>
#include <memory>
#include <stdexcept>

#include "core/files.h"
#include "core/numbers.h"
#include "core/text_rules.h"
#include "core/texts.h"
#include "web/bridge.h"

namespace quillor {

namespace {

constexpr int kFirstSound = 101;

// Entries are known to the script by their numbers, from 1 on.
void tellMenu(Messages& out, const MenuItem& menu, std::vector<MenuItem*>& entries) {
    out.key("entries").beginList();
    for (MenuItem* item : menu.children) {
        entries.push_back(item);
        out.beginObject().key("number").number(static_cast<double>(entries.size()));
        out.key("id").word(item->id).key("caption").text(plainCaption(item->caption));
        out.key("shortcut").text(item->shortcut).key("enabled").flag(item->enabled);
        out.key("checkable").flag(item->checkable || item->radio);
        out.key("radio").flag(item->radio).key("checked").flag(item->checked);
        if (!item->children.empty())
            tellMenu(out, *item, entries);
        out.endObject();
    }
    out.endList();
}

/// A picture that the script has.
class PageImage : public Image {
  public:
    explicit PageImage(const std::array<Color, 2>& colours) : colours_(colours) {}
    std::array<Color, 2> range() const override { return colours_; }

  private:
    std::array<Color, 2> colours_;
};

// "DARKEST LIGHTEST", as numbers.
std::array<Color, 2> coloursIn(const Text& answer) {
    const std::size_t space = std::min(answer.find(u' '), answer.size());
    return {toLong(leadingNumber(answer)), toLong(leadingNumber(answer.substr(space)))};
}

Messages commanded(const char* name) {
    Messages command;
    command.beginObject().key("command").word(name);
    return command;
}

}  // namespace

PageDesktop::PageDesktop(PageShell& shell) : shell_(shell), random_(bridge::clockReading()) {
    for (std::size_t i = 0; i < sounds_.size(); ++i)
        sounds_[i] = static_cast<std::byte>(kFirstSound + static_cast<int>(i));
}

void PageDesktop::attach(Program& program) {
    program_ = &program;
    shell_.onIdle = [&program] { program.destroyClosed(); };
}

Messages& PageDesktop::begin(Messages& request, const char* box) const {
    return request.beginObject().key("box").word(box);
}

// `main`, counted from 1, is what Return presses. What is marked is pressed with Alt.
void PageDesktop::buttons(Messages& request, std::initializer_list<TextPair> captions,
                          int main) const {
    request.key("main").number(main).key("buttons").beginList();
    for (const TextPair& pair : captions) {
        const Text caption = program_->lang(pair);
        const char16_t access = accessKey(caption);
        request.beginObject().key("caption").text(plainCaption(caption));
        request.key("access").text(access ? Text(1, access) : Text()).endObject();
    }
    request.endList();
}

int PageDesktop::ask(Messages& request) {
    return shell_.modally([&] { return bridge::wait(request.endObject()); });
}

void PageDesktop::messageBox(MessageIcon icon, TextView text) {
    Messages request;
    begin(request, icon == MessageIcon::Critical ? "critical" : "information");
    request.key("text").text(replaceAll(text, u"\r\n", u"\n"));
    buttons(request, {texts::kAccept});
    ask(request);
}

bool PageDesktop::question(TextView text, bool yesLoses) {
    Messages request;
    begin(request, "question").key("text").text(replaceAll(text, u"\r\n", u"\n"));
    buttons(request, {texts::kYes, texts::kNo}, yesLoses ? 2 : 1);
    return ask(request) == 1;
}

Text PageDesktop::inputBox(TextView prompt) {
    Messages request;
    begin(request, "input").key("text").text(replaceAll(prompt, u"\r\n", u"\n"));
    buttons(request, {texts::kAccept, texts::kCancel});
    return ask(request) == 1 ? oneLine(bridge::answer()) : Text();
}

void PageDesktop::aboutBox(TextView title, TextView text) {
    Messages request;
    begin(request, "about").key("title").text(title);
    request.key("text").text(replaceAll(text, u"\r\n", u"\n"));
    buttons(request, {texts::kAccept});
    ask(request);
}

Text PageDesktop::clipboard() {
    Messages request;
    begin(request, "clipboard");
    return ask(request) == 1 ? bridge::answer() : Text();
}

void PageDesktop::setClipboard(TextView text) {
    bridge::command(commanded("copy").key("text").text(text).endObject());
}

// No event is delivered while it is decoded.
ImageRef PageDesktop::loadPicture(const Place& file) {
    Messages request;
    begin(request, "picture").key("path").text(fromPath(file.path()));
    if (bridge::wait(request.endObject()) == 0)
        throw std::runtime_error("no picture");
    return std::make_shared<PageImage>(coloursIn(bridge::answer()));
}

// Of all files that are opened only the manual is there.
void PageDesktop::open(const std::filesystem::path&) {
    bridge::command(commanded("manual").endObject());
}

void PageDesktop::openAddress(TextView page, TextView sought) {
    bridge::command(
        commanded("address").key("page").text(page).key("sought").text(sought).endObject());
}

std::span<const std::byte> PageDesktop::sound(int id) {
    return std::span<const std::byte>(sounds_).subspan(static_cast<std::size_t>(id - kFirstSound),
                                                       1);
}

// No event is delivered meanwhile: the script keeps them back.
void PageDesktop::playWave(std::span<const std::byte> image) {
    shell_.tellNow();
    Messages request;
    begin(request, "sound").key("sound").number(std::to_integer<int>(image.front()));
    bridge::wait(request.endObject());
}

TimeOfDay PageDesktop::timeOfDay() {
    const std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now);
    return {local->tm_hour, local->tm_min, local->tm_sec};
}

void PageDesktop::seedRandom() {
    random_.reseed(bridge::clockReading());
}

void PageDesktop::popUp(Screen& screen, MenuItem& menu, const Control* under) {
    const ShownScreen* shown = shell_.find(screen);
    if (!shown)
        return;
    std::vector<MenuItem*> entries;
    Messages request;
    begin(request, "menu").key("caption").text(plainCaption(menu.caption));
    request.key("screen").number(shown->number()).key("under").number(shown->indexOf(under));
    tellMenu(request, menu, entries);
    const int chosen = ask(request);
    if (chosen > 0 && chosen <= static_cast<int>(entries.size()) && shell_.find(screen))
        screen.choose(*entries[static_cast<std::size_t>(chosen - 1)]);
}

bool PageDesktop::isFullScreen() const {
    return bridge::isFullScreen();
}

void PageDesktop::setFullScreen(bool on) {
    bridge::command(commanded("fullscreen").key("on").flag(on).endObject());
}

void PageDesktop::end() {
    shell_.end();
    bridge::command(commanded(startsAnew_ ? "restart" : "end").endObject());
}

bool PageDesktop::topicsBox(const Screen& screen, bool hasPicture) {
    constexpr int kRemoves = 2;
    Messages request;
    begin(request, "topics").key("text").text(program_->lang(texts::kTopicsBox));
    request.key("takes").flag(screen.takesFiles());
    request.key("takeCaption").text(program_->lang(texts::kTopicsTake));
    request.key("allCaption").text(program_->lang(texts::kTopicsAll));
    if (hasPicture)
        buttons(request, {texts::kAccept, texts::kPictureRemove});
    else
        buttons(request, {texts::kAccept});
    return ask(request) == kRemoves;
}

}  // namespace quillor
