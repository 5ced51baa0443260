// One script, walked through by the tests' player and in real windows: after
// every step both show the same.
#include <QAccessible>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <memory>
#include <sstream>

#include <gtest/gtest.h>

#include "core/text_codec.h"
#include "game/game_screen.h"
#include "qt/windows/page_window.h"
#include "qt/windows/qt_values.h"
#include "qt/windows/shell.h"
#include "tests/support/open_program.h"
#include "toolkit/shown_control.h"
#include "topics/topics.h"
#include "ui/progress_screen.h"
#include "ui/settings_screen.h"

namespace quillor::testing {

namespace {

/// The parts of what is shown that a person can tell: one line a control.
struct Sight {
    std::string id;
    std::string name;
    bool usable = false;
    std::string text;  // of a field or the selected entry of a list
    int caret = 0;
    bool focused = false;
};

std::string line(const Sight& sight) {
    std::ostringstream out;
    out << sight.id << " \"" << sight.name << '"' << (sight.usable ? "" : " disabled") << " \""
        << sight.text << "\" " << sight.caret << (sight.focused ? " focus" : "") << '\n';
    return out.str();
}

/// A shell, as the script uses it.
class Walker {
  public:
    Walker() = default;
    virtual ~Walker() = default;
    Walker(const Walker&) = delete;
    Walker& operator=(const Walker&) = delete;

    virtual void press(int code, Modifiers modifiers = {}) = 0;
    virtual void hold(char16_t character, int repeats) = 0;
    virtual void holdKey(int code, int repeats) = 0;
    virtual void access(char16_t letter) = 0;
    virtual void compose(TextView text) = 0;
    virtual void click(const std::string& id) = 0;
    virtual std::string shown() = 0;

    void type(TextView text) {
        for (const char16_t character : text)
            hold(character, 0);
    }
};

class PlayerWalker : public Walker {
  public:
    explicit PlayerWalker(OpenProgram& run) : run_(run) {}

    void press(int code, Modifiers modifiers) override { run_.player.press(code, modifiers); }
    void hold(char16_t character, int repeats) override { run_.player.hold(character, repeats); }
    void holdKey(int code, int repeats) override { run_.player.holdKey(code, repeats); }
    void access(char16_t letter) override { run_.player.pressAccessKey(letter); }
    void compose(TextView text) override { run_.player.compose(text); }
    void click(const std::string& id) override { run_.player.click(id); }

    std::string shown() override {
        const Screen& screen = run_.player.screen();
        std::string all = screen.name + ": " + toUtf8(screen.title) + '\n';
        for (const ControlRef& ref : screen.controls())
            if (isSeen(controlOf(ref)))
                all += line(sightOf(screen, ref));
        return all;
    }

  private:
    Sight sightOf(const Screen& screen, const ControlRef& ref) {
        const Control& control = controlOf(ref);
        ShownControl shown;
        shown.update(ref);
        Sight sight{control.id, toUtf8(shown.name), isUsable(control), {}, 0, false};
        sight.focused = run_.desktop.focusOf(screen) == &control;
        if (const auto* field = std::get_if<ShownField>(&shown.look)) {
            sight.text = toUtf8(field->text);
            sight.caret = field->caret;
        }
        const auto* list = std::get_if<ShownList>(&shown.look);
        if (list && list->listIndex >= 0)
            sight.text = toUtf8(list->items.at(static_cast<std::size_t>(list->listIndex)));
        return sight;
    }

    OpenProgram& run_;
};

/// The tests' machine with real windows.
class WindowDesktop : public FakeDesktop {
  public:
    explicit WindowDesktop(Shell& shell) : shell_(shell) {}
    void show(Screen& screen) override { shell_.show(screen); }
    void close(Screen& screen) override { shell_.close(screen); }

  private:
    Shell& shell_;
};

class WindowWalker : public Walker {
  public:
    WindowWalker() {
        shell_.onIdle = [this] { program.destroyClosed(); };
    }

    TempFolder folder;

  private:
    FontBook fonts_{{}};
    Shell shell_{fonts_};

  public:
    FaultyDisk disk;
    WindowDesktop desktop{shell_};
    Program program{desktop, {folder.path(), disk}};

    void show(ScreenId id) {
        shell_.event([&] { program.show(id); });
    }

    void press(int code, Modifiers modifiers) override {
        Qt::KeyboardModifiers held;
        held.setFlag(Qt::ControlModifier, modifiers.control);
        held.setFlag(Qt::ShiftModifier, modifiers.shift);
        send(keyOf(code), textOf(code, held), held, 0);
    }
    void hold(char16_t character, int repeats) override {
        send(QChar(character).toUpper().unicode(), QChar(character), {}, repeats);
    }
    void holdKey(int code, int repeats) override {
        send(keyOf(code), textOf(code, {}), {}, repeats);
    }
    void access(char16_t letter) override {
        send(letter, QChar(letter).toLower(), Qt::AltModifier, 0);
    }
    void compose(TextView text) override {
        QInputMethodEvent event("", {});
        event.setCommitString(toQt(text));
        QApplication::sendEvent(target(), &event);
    }
    void click(const std::string& id) override {
        auto* widget = page().findChild<QWidget*>(QString::fromStdString(id));
        ASSERT_NE(widget, nullptr) << id;
        QTest::mouseClick(widget, Qt::LeftButton);
    }

    std::string shown() override {
        const Screen& screen = *page().screen();
        std::string all = screen.name + ": " + page().pageWindow().windowTitle().toStdString();
        all += '\n';
        for (const ControlRef& ref : screen.controls())
            if (QWidget& widget = page().view(controlOf(ref))->widget();
                widget.isVisible() || widget.objectName() == "lblSpoken")
                all += line(sightOf(widget));
        return all;
    }

  private:
    Page& page() { return *shell_.front(); }
    QWidget* target() {
        QWidget* focus = page().pageWindow().focusWidget();
        return focus ? focus : &page().pageWindow();
    }

    Sight sightOf(QWidget& widget) {
        Sight sight{widget.objectName().toStdString(),
                    spokenName(widget),
                    widget.isEnabled(),
                    {},
                    0,
                    false};
        sight.focused = page().pageWindow().focusWidget() == &widget;
        if (const auto* field = dynamic_cast<QLineEdit*>(&widget)) {
            sight.text = field->text().toStdString();
            sight.caret =
                field->hasSelectedText() ? field->selectionStart() : field->cursorPosition();
        }
        const auto* list = dynamic_cast<QListWidget*>(&widget);
        if (list != nullptr && !list->selectedItems().isEmpty())
            sight.text = list->selectedItems().front()->text().toStdString();
        return sight;
    }

    static std::string spokenName(QWidget& widget) {
        return QAccessible::queryAccessibleInterface(&widget)
            ->text(QAccessible::Name)
            .toStdString();
    }

    static int keyOf(int code) {
        static const std::map<int, int> kKeys{
            {key::kTab, Qt::Key_Tab},       {key::kReturn, Qt::Key_Return},
            {key::kEscape, Qt::Key_Escape}, {key::kBackspace, Qt::Key_Backspace},
            {key::kLeft, Qt::Key_Left},     {key::kRight, Qt::Key_Right},
            {key::kHome, Qt::Key_Home},     {key::kEnd, Qt::Key_End},
            {key::kUp, Qt::Key_Up},         {key::kDown, Qt::Key_Down},
            {key::kDelete, Qt::Key_Delete}, {key::kF2, Qt::Key_F2}};
        const auto named = kKeys.find(code);
        return named == kKeys.end() ? code : named->second;
    }
    static QString textOf(int code, Qt::KeyboardModifiers modifiers) {
        const bool typed = code == key::kReturn || code == key::kBackspace;
        return typed && !modifiers ? QString(QChar(code)) : QString();
    }

    void send(int key, const QString& text, Qt::KeyboardModifiers modifiers, int repeats) {
        for (int i = 0; i <= repeats; ++i) {
            QKeyEvent down(QEvent::KeyPress, key, modifiers, text, i > 0);
            QApplication::sendEvent(target(), &down);
        }
        QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
        QApplication::sendEvent(target(), &up);
    }
};

class BothShells : public ::testing::Test {
  protected:
    BothShells() {
        for (Program* program : {&run_.program, &windows_.program}) {
            addSettingsScreen(*program);
            addProgressScreen(*program);
            addTopicScreens(*program);
            addGameScreens(*program);
            setPalette(program->settings);
            program->settings.gbEnglish = true;
        }
    }
    void start(ScreenId id) {
        run_.show(id);
        windows_.show(id);
        compare("at first");
    }
    /// Takes one step in both shells, with what the boxes are answered.
    void step(const std::string& what, const std::function<void(Walker&)>& act) {
        act(player_);
        act(windows_);
        compare(what);
    }
    void compare(const std::string& when) { EXPECT_EQ(player_.shown(), windows_.shown()) << when; }
    std::string front() { return run_.player.screen().name; }

  private:
    OpenProgram run_;
    PlayerWalker player_{run_};
    WindowWalker windows_;
};

TEST_F(BothShells, ShowTheSameOnTheMenuAndTheSettings) {
    start(ScreenId::Menu);
    step("Tab", [](Walker& shell) { shell.press(key::kTab); });
    step("Tab held", [](Walker& shell) { shell.holdKey(key::kTab, 2); });
    step("Settings", [](Walker& shell) { shell.hold(u's', 3); });
    EXPECT_EQ(front(), "frmOptions");
    step("an option", [](Walker& shell) { shell.hold(u'd', 2); });
    step("an option by its access key", [](Walker& shell) { shell.access(u'I'); });
    step("a design", [](Walker& shell) { shell.press('3', {false, true}); });
    step("a click", [](Walker& shell) { shell.click("lblCheck(4)"); });
    step("a button by Space", [](Walker& shell) { shell.type(u" "); });
    step("Back", [](Walker& shell) { shell.holdKey(key::kBackspace, 3); });
    EXPECT_EQ(front(), "frmMenu");
}

TEST_F(BothShells, ShowTheSameInTheInventor) {
    start(ScreenId::Menu);
    step("the inventor", [](Walker& shell) { shell.hold(u'i', 4); });
    EXPECT_EQ(front(), "frmInventor");
    step("a name", [](Walker& shell) { shell.type(u"zoo: x"); });
    step("undo", [](Walker& shell) { shell.press('Z', kControl); });
    step("redo", [](Walker& shell) { shell.press('Y', kControl); });
    step("erasing", [](Walker& shell) { shell.holdKey(key::kBackspace, 9); });
    EXPECT_EQ(front(), "frmInventor");
    step("composing", [](Walker& shell) { shell.compose(u"el\nzoo\n"); });
    step("Return", [](Walker& shell) { shell.holdKey(key::kReturn, 2); });
    for (const TextView phrase : {u"lion", u"big ape"}) {
        step("a phrase", [&](Walker& shell) { shell.type(phrase); });
        step("Home", [](Walker& shell) { shell.press(key::kHome); });
        step("Delete", [](Walker& shell) { shell.holdKey(key::kDelete, 1); });
        step("added", [](Walker& shell) { shell.press(key::kReturn); });
    }
    step("the list", [](Walker& shell) { shell.holdKey(key::kTab, 2); });
    step("up", [](Walker& shell) { shell.press(key::kUp); });
    step("deleted", [](Walker& shell) { shell.holdKey(key::kDelete, 3); });
}

TEST_F(BothShells, ShowTheSameInWholeGamesByKeyboardAlone) {
    const auto press = [this](const char* what, int code) {
        step(what, [code](Walker& shell) { shell.press(code); });
    };
    const auto type = [this](TextView text) {
        step("letters", [text](Walker& shell) { shell.type(text); });
    };
    start(ScreenId::Menu);
    press("to classic mode", key::kDown);
    type(u" ");
    EXPECT_EQ(front(), "frmGame");
    for (const TextView letters : {u"sol", u"bcdfgh"}) {
        type(u" ");
        EXPECT_EQ(front(), "frmWord1");
        type(u"sol");
        press("the topic", key::kReturn);
        press("accepted", key::kReturn);
        EXPECT_EQ(front(), "frmGame");
        press("a row down", key::kDown);
        press("a key on", key::kRight);
        press("the board", key::kEnd);
        type(letters);
        step("out of the keys", [](Walker& shell) { shell.press(key::kTab, {false, true}); });
        step("to the button", [](Walker& shell) {
            for (int i = 0;
                 i < 9 && shell.shown().find("lblPlay(0) \"PLAY ANOTHER\" \"\" 0 focus") ==
                              std::string::npos;
                 ++i)
                shell.press(key::kTab);
        });
    }
    press("back", key::kEscape);
    EXPECT_EQ(front(), "frmMenu");
}

TEST_F(BothShells, ShowTheSameOnEverySettingByKeyboardAlone) {
    start(ScreenId::Settings);
    for (int i = 0; i < 4; ++i) {
        step("switched", [](Walker& shell) { shell.type(u" "); });
        step("the next", [](Walker& shell) { shell.press(key::kDown); });
    }
    step("the designs", [](Walker& shell) { shell.press(key::kTab, {false, true}); });
    for (int i = 0; i < 4; ++i) {
        step("chosen", [](Walker& shell) { shell.type(u" "); });
        step("the next", [](Walker& shell) { shell.press(key::kRight); });
    }
    step("back", [](Walker& shell) { shell.press(key::kEscape); });
    EXPECT_EQ(front(), "frmMenu");
}

TEST_F(BothShells, ShowTheSameInAClassicGame) {
    start(ScreenId::Menu);
    step("classic", [](Walker& shell) { shell.hold(u'c', 1); });
    EXPECT_EQ(front(), "frmGame");
    step("play", [](Walker& shell) { shell.holdKey(key::kReturn, 3); });
    EXPECT_EQ(front(), "frmWord1");
    step("composing", [](Walker& shell) { shell.compose(u" el sol"); });
    step("typing on", [](Walker& shell) { shell.hold(u's', 2); });
    step("the topic", [](Walker& shell) { shell.holdKey(key::kReturn, 2); });
    step("a topic", [](Walker& shell) { shell.type(u"r&b"); });
    step("accepted", [](Walker& shell) { shell.press(key::kReturn); });
    EXPECT_EQ(front(), "frmGame");
    step("a letter that is right", [](Walker& shell) { shell.type(u"s"); });
    step("a letter that is wrong", [](Walker& shell) { shell.hold(u'x', 3); });
    step("a key", [](Walker& shell) { shell.click("lblKey(5)"); });
    step("the answer's last letters", [](Walker& shell) { shell.type(u"ol"); });
}

}  // namespace

}  // namespace quillor::testing
