// Keys, pastes and edits of a field, on the way that every shell leads them, and what the page's
// script is told of controls with words of any units: always text that a browser reads.
#include "tests/fuzz/bytes.h"
#include "tests/support/plain_screen.h"
#include "web/page_shell.h"

namespace quillor::testing {

namespace {

// Brackets that match outside of strings, and nothing but printable ASCII.
bool isReadable(const std::string& told) {
    std::string open;
    bool inString = false;
    for (std::size_t i = 0; i < told.size(); ++i) {
        const char sign = told[i];
        if (sign < ' ' || sign > '~')
            return false;
        if (sign == '"')
            inString = !inString;
        else if (inString && sign == '\\')
            ++i;
        else if (!inString && (sign == '[' || sign == '{'))
            open += sign == '[' ? ']' : '}';
        else if (!inString && (sign == ']' || sign == '}')) {
            if (open.empty() || open.back() != sign)
                return false;
            open.pop_back();
        }
    }
    return open.empty() && !inString;
}

class PageRun {
  public:
    explicit PageRun(Bytes& bytes) : bytes_(bytes) {
        shell_.send = [](const Messages& messages) {
            require(isReadable(messages.written()), "the script reads what it is told");
        };
        shell_.now = [this] { return now_; };
        shell_.accent = [] { return rgb(20, 140, 220); };
        shell_.language = [] { return PageShell::Language{true, u"Close"}; };
        screen_.addButton(button_, "lblA", 0, 0);
        screen_.addField(field_, "txtA", 0, 600);
        list_.id = "lstA";
        screen_.add(list_).place(0, 1200, 900, 900);
        field_.maxLength = static_cast<int>(bytes.below(50));
    }

    void play() {
        shell_.event([this] { shell_.show(screen_); });
        while (!bytes_.empty())
            shell_.event([this] { happen(); });
    }

  private:
    void happen() {
        now_ += bytes_.byte();
        ShownScreen* shown = shell_.find(screen_);
        require(shown != nullptr, "the screen stays open");
        switch (bytes_.below(8)) {
            case 0:
                button_.caption = bytes_.text();
                return;
            case 1:
                list_.items.push_back(bytes_.text());
                return;
            case 2:
                button_.toolTip = button_.spokenName = bytes_.text();
                return;
            case 3:
                screen_.setFocus(field_);
                return;
            case 4:
                return edit();
            default:
                return key(*shown);
        }
    }

    // As a native field tells it, whose numbers may be any.
    void edit() {
        const Text text = bytes_.text();
        const int start = bytes_.byte() - 128;
        field_.userEdited(text, start, bytes_.byte() - 128);
        const int size = static_cast<int>(field_.text().size());
        require(field_.caret() >= 0 && field_.caret() + field_.selectionLength() <= size,
                "what is selected stands in the text");
        require(field_.maxLength == 0 || size <= field_.maxLength, "a field has its length");
    }

    void key(ShownScreen& shown) {
        KeyPress press;
        press.id = press.key.code = bytes_.byte();
        press.key.control = bytes_.below(4) == 0;
        press.key.alt = bytes_.below(8) == 0;
        press.key.shift = bytes_.below(4) == 0;
        press.autoRepeat = bytes_.below(4) == 0;
        press.typed = bytes_.below(3) == 0 ? bytes_.text() : Text(1, bytes_.unit());
        press.sign = press.typed.empty() ? u'\0' : press.typed.front();
        shell_.keys.press(screen_, shown.focus(), press);
        if (bytes_.below(2) == 0)
            shell_.keys.release(press.id);
    }

    Bytes& bytes_;
    std::int64_t now_ = 0;
    PlainScreen screen_;
    Label button_;
    TextField field_;
    ListBox list_;
    PageShell shell_;
};

}  // namespace

}  // namespace quillor::testing

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quillor::testing::Bytes bytes(data, size);
    quillor::testing::PageRun(bytes).play();
    return 0;
}
