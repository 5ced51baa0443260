// A screen whose every part a test sets itself, in a real window.
#pragma once

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qt/windows/page_window.h"
#include "qt/windows/shell.h"
#include "tests/support/plain_screen.h"

namespace quillor {

class ShellTest : public ::testing::Test {
  protected:
    Label& addButton(Label& label, const char* id, Twips left, Twips top) {
        return screen.addButton(label, id, left, top);
    }
    TextField& addField(TextField& field, const char* id, Twips left, Twips top) {
        return screen.addField(field, id, left, top);
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
    /// The same without letting go: the key repeats so many times.
    void hold(Qt::Key key, const QString& text, int repeats) {
        for (int i = 0; i <= repeats; ++i) {
            QKeyEvent event(QEvent::KeyPress, key, {}, text, i > 0);
            QApplication::sendEvent(shell.front()->focusWidget(), &event);
        }
    }
    void compose(const QString& text) {
        QInputMethodEvent event("", {});
        event.setCommitString(text);
        QApplication::sendEvent(shell.find(&screen)->focusWidget(), &event);
    }
    void type(QChar character) {
        press(static_cast<Qt::Key>(character.toUpper().unicode()), {}, character);
    }

    PlainScreen screen;
    FontBook fonts{{}};
    Shell shell{fonts};
};

}  // namespace quillor
