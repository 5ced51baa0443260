// The tests' player and the real windows behind one interface: what a script does to
// them, and what a person could tell of what they show.
#pragma once

#include <QAccessible>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <memory>
#include <sstream>

#include "core/text_codec.h"
#include "qt/windows/page_window.h"
#include "qt/windows/qt_values.h"
#include "qt/windows/shell.h"
#include "tests/support/open_program.h"
#include "toolkit/shown_control.h"

namespace quillor::testing {

/// The parts of what is shown that a person can tell: one line a control.
struct Sight {
    std::string id;
    std::string name;
    bool usable = false;
    std::string text;  // of a field or the selected entry of a list
    int caret = 0;
    bool focused = false;
};

inline std::string line(const Sight& sight) {
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

}  // namespace quillor::testing
