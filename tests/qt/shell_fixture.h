// A screen whose every part a test sets itself, in a real window.
#pragma once

#include <QTest>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qt/windows/page_window.h"
#include "qt/windows/shell.h"
#include "toolkit/screen.h"
#include "toolkit/style.h"

namespace quillor {

class PlainScreen : public Screen {
  public:
    PlainScreen() : Screen("frmPlain") {
        width = style::kScreenWidth;
        height = style::kScreenHeight;
    }
    using Screen::add;

    std::function<void(KeyEvent&)> keyDownHandler;
    std::function<void(char16_t)> keyPressHandler;
    std::function<void()> closeHandler;
    std::function<void()> menuHandler;
    Control* firstFocus = nullptr;

    Control* initialFocus() override { return firstFocus; }
    void takePaper(const ImageRef&) override {}

  protected:
    void onLoad() override {}
    void onKeyDown(KeyEvent& event) override {
        if (keyDownHandler)
            keyDownHandler(event);
    }
    void onKeyPress(char16_t character) override {
        if (keyPressHandler)
            keyPressHandler(character);
    }
    void onContextMenu() override {
        if (menuHandler)
            menuHandler();
    }
    void onCloseRequest() override {
        if (closeHandler)
            closeHandler();
    }
};

class ShellTest : public ::testing::Test {
  protected:
    Label& addButton(Label& label, const char* id, Twips left, Twips top) {
        label.id = id;
        label.role = LabelRole::Button;
        screen.add(label).place(left, top, 900, 300);
        return label;
    }
    TextField& addField(TextField& field, const char* id, Twips left, Twips top) {
        field.id = id;
        screen.add(field).place(left, top, 1800, 300);
        return field;
    }

    PageWindow& open() { return open(screen); }
    PageWindow& open(Screen& which) {
        shell.event([&] { shell.show(which); });
        PageWindow& window = shell.find(&which)->pageWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        return window;
    }
    QWidget& widgetOf(const Control& control) {
        return shell.find(&screen)->view(control)->widget();
    }
    template <typename Widget>
    Widget& as(const Control& control) {
        return dynamic_cast<Widget&>(widgetOf(control));
    }
    /// The id of the control that has the focus; empty: the window itself.
    std::string focused() {
        const ControlView* view = shell.find(&screen)->focusedView();
        return view ? view->control().id : "";
    }
    /// As the keyboard does it: to whatever has the focus in the window.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
        Page* page = shell.find(&screen);
        QWidget* target = page->focusWidget() ? page->focusWidget() : page;
        QTest::sendKeyEvent(QTest::Press, target, key, text, modifiers);
        QTest::sendKeyEvent(QTest::Release, target, key, text, modifiers);
    }
    void type(QChar character) {
        press(static_cast<Qt::Key>(character.toUpper().unicode()), {}, character);
    }

    PlainScreen screen;
    FontBook fonts{{}};
    Shell shell{fonts};
};

}  // namespace quillor
