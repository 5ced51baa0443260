// Text fields and lists in step with their screen.
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QScrollBar>
#include <QToolTip>

#include "core/text_rules.h"
#include "qt/paint/label_painter.h"
#include "tests/qt/shell_fixture.h"
#include "toolkit/contrast.h"

namespace quillor {

namespace {

class Fields : public ShellTest {
  protected:
    Fields() { screen.firstFocus = &addField(field, "txt", 0, 0); }
    QLineEdit& edit() { return as<QLineEdit>(field); }

    TextField field;
};

TEST_F(Fields, KeepCaretAndSelectionWhileOtherThingsChange) {
    Label label;
    addButton(label, "lbl", 0, 900);
    field.setText(u"abcdef");
    open();
    edit().setSelection(2, 3);
    shell.event([&] { label.caption = u"new"; });
    EXPECT_EQ(edit().selectionStart(), 2);
    EXPECT_EQ(edit().selectedText(), "cde");
    EXPECT_EQ(field.caret(), 2);
    EXPECT_EQ(field.selectionLength(), 3);
}

TEST_F(Fields, TakeTextAndCaretFromTheScreen) {
    open();
    shell.event([&] {
        field.setText(u"hola");
        field.setCaret(3);
    });
    EXPECT_EQ(edit().text(), "hola");
    EXPECT_EQ(edit().cursorPosition(), 3);
    shell.event([&] { field.selectAll(); });
    EXPECT_EQ(edit().selectedText(), "hola");
}

TEST_F(Fields, HaveTheFocusBeforeItsComingChangesTheirText) {
    TextField other;
    addField(other, "txtOther", 0, 900);
    other.setText(u"(NONE)");
    other.onGotFocus = [&] { other.setText(u""); };
    open();
    bool focusFirst = false;
    QObject::connect(&as<QLineEdit>(other), &QLineEdit::textChanged,
                     [&] { focusFirst = as<QLineEdit>(other).hasFocus(); });
    press(Qt::Key_Tab);
    EXPECT_EQ(as<QLineEdit>(other).text(), "");
    EXPECT_TRUE(focusFirst);
}

TEST_F(Fields, LetAHandlerRewriteWhatIsTyped) {
    field.onChange = [this] {
        Text upper = field.text();
        for (char16_t& c : upper)
            c = c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - 32) : c;
        const int caret = field.caret();
        field.setText(upper);
        field.setCaret(caret);
    };
    field.setText(u"AC");
    field.setCaret(1);
    open();
    type('b');
    EXPECT_EQ(edit().text(), "ABC");
    EXPECT_EQ(edit().cursorPosition(), 2);
    EXPECT_EQ(field.text(), u"ABC");
}

TEST_F(Fields, KnowTheCaretBeforeTheKeysHandlerRuns) {
    field.setText(u"abc");
    int caret = -1;
    field.onKeyPress = [&](char16_t c) {
        caret = field.caret();
        return c;
    };
    open();
    press(Qt::Key_Home);
    press(Qt::Key_Right);
    type('x');
    EXPECT_EQ(caret, 1);
    EXPECT_EQ(field.text(), u"axbc");
}

TEST_F(Fields, AreNoLongerThanAllowed) {
    field.maxLength = 3;
    open();
    for (const char c : {'a', 'b', 'c', 'd'})
        type(c);
    EXPECT_EQ(field.text(), u"abc");
}

TEST_F(Fields, TakeAPasteInOneLine) {
    field.setText(u"xy");
    field.setCaret(1);
    field.maxLength = 8;
    open();
    QGuiApplication::clipboard()->setText("\r\nel\r\nsol sale\n");
    press(Qt::Key_V, Qt::ControlModifier, "\x16");
    EXPECT_EQ(field.text(), u"xel soly");
    EXPECT_EQ(edit().text(), "xel soly");
    EXPECT_EQ(edit().cursorPosition(), 7);
}

TEST_F(Fields, TakeADropInOneLine) {
    open();
    QMimeData dropped;
    dropped.setText("el\nsol\n");
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, {});
    QApplication::sendEvent(&edit(), &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, {});
    QApplication::sendEvent(&edit(), &drop);
    EXPECT_EQ(field.text(), u"el sol");
    EXPECT_EQ(edit().text(), "el sol");
}

TEST_F(Fields, UndoAndRedoWhereAHandlerRewritesTheText) {
    field.onChange = [this] { field.setText(upperCase(field.text())); };
    open();
    type('a');
    type('b');
    press(Qt::Key_Left);
    press(Qt::Key_Delete);
    ASSERT_EQ(edit().text(), "A");
    press(Qt::Key_Z, Qt::ControlModifier, "\x1a");
    EXPECT_EQ(edit().text(), "AB");
    press(Qt::Key_Z, Qt::ControlModifier, "\x1a");
    EXPECT_EQ(edit().text(), "");
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, "\x1a");
    EXPECT_EQ(edit().text(), "AB");
    EXPECT_EQ(field.text(), u"AB");
}

TEST_F(Fields, HoldNoTextWhileTheyAreHidden) {
    field.setText(u"secret");
    field.setCaret(3);
    open();
    shell.event([&] { field.visible = false; });
    EXPECT_EQ(edit().text(), "");
    EXPECT_EQ(field.text(), u"secret");
    shell.event([&] { field.visible = true; });
    EXPECT_EQ(edit().text(), "secret");
    EXPECT_EQ(edit().cursorPosition(), 3);
}

class Lists : public ShellTest {
  protected:
    Lists() {
        list.id = "lst";
        list.items = {u"one", u"two", u"three"};
        list.onClick = [this] { ++clicks; };
        screen.add(list).place(0, 0, 3000, 2400);
        screen.firstFocus = &list;
    }
    QListWidget& widget() { return as<QListWidget>(list); }

    ListBox list;
    int clicks = 0;
};

TEST_F(Lists, SelectByArrowKeys) {
    open();
    EXPECT_EQ(list.listIndex(), -1);
    press(Qt::Key_Down);
    EXPECT_EQ(list.listIndex(), 0);
    press(Qt::Key_Down);
    EXPECT_EQ(list.listIndex(), 1);
    EXPECT_EQ(clicks, 2);
}

TEST_F(Lists, ShowWhatTheScreenSelectsWithoutReportingItBack) {
    open();
    shell.event([&] { list.select(2); });
    ASSERT_EQ(widget().selectedItems().size(), 1);
    EXPECT_EQ(widget().selectedItems()[0]->text(), "three");
    EXPECT_EQ(clicks, 1);
}

TEST_F(Lists, KeepTheSelectionInViewAtEverySize) {
    list.items.assign(100, u"entry");
    list.select(60);
    PageWindow& window = open();
    for (const QSize size : {QSize(2640, 1620), QSize(900, 800), QSize(1320, 810)}) {
        window.resize(size);
        shell.event([] {});
        const QRect row = widget().visualItemRect(widget().item(60));
        EXPECT_TRUE(widget().viewport()->rect().contains(row)) << size.width();
    }
}

TEST_F(Lists, DropAnEntryAndWithItTheSelection) {
    list.select(1);
    open();
    shell.event([&] { list.removeItem(1); });
    EXPECT_EQ(widget().count(), 2);
    EXPECT_TRUE(widget().selectedItems().isEmpty());
    EXPECT_EQ(list.listIndex(), -1);
}

TEST_F(Lists, DoNotMoveOnAKeyThatTheirHandlerTakes) {
    list.select(1);
    list.onKeyDown = [](KeyEvent& event) { event.handled = event.code == key::kRight; };
    open();
    press(Qt::Key_Right);
    EXPECT_EQ(list.listIndex(), 1);
    press(Qt::Key_Up);
    EXPECT_EQ(list.listIndex(), 0);
}

TEST_F(Lists, ReportADoubleClick) {
    int doubles = 0;
    list.onDoubleClick = [&] { ++doubles; };
    open();
    const QPoint second = widget().visualItemRect(widget().item(1)).center();
    QTest::mouseClick(widget().viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(widget().viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(list.listIndex(), 1);
    EXPECT_EQ(doubles, 1);
}

/// Looked at as they are painted.
using FieldsAndLists = ShellTest;

TEST_F(FieldsAndLists, KeepTheScrollBarWithinTheFrame) {
    ListBox list;
    screen.add(list).place(300, 300, 3000, 1500);
    list.items.assign(100, u"entry");
    PageWindow& window = open();
    for (const int width : {1320, 3960}) {
        window.resize(width, width / 2);
        shell.event([] {});
        auto& view = as<QListWidget>(list);
        const QWidget& bar = *view.verticalScrollBar();
        ASSERT_TRUE(bar.isVisible());
        const QRect place(bar.mapTo(&view, QPoint()), bar.size());
        const int ring = static_cast<int>(4 * fineLine(shell.find(&screen)->scale().pixels));
        EXPECT_TRUE(view.rect().adjusted(ring, ring, -ring, -ring).contains(place)) << width;
    }
}

TEST_F(FieldsAndLists, ShowTheChosenRowInAColorThatWhiteCanBeReadOn) {
    QPalette light = QApplication::palette();
    light.setColor(QPalette::Highlight, QColor(220, 230, 255));
    QApplication::setPalette(light);
    ListBox list;
    screen.add(list).place(300, 300, 3000, 1500);
    list.items = {u"entry"};
    list.selectionColor = rgb(180, 240, 255);
    open();
    shell.event([&] { list.select(0); });
    auto& view = as<QListWidget>(list);
    const QRect row = view.visualItemRect(view.item(0));
    const QColor face =
        view.viewport()->grab().toImage().pixelColor(row.right() - row.height(), row.center().y());
    EXPECT_GE(contrast(rgb(255, 255, 255), rgb(face.red(), face.green(), face.blue())), 4.5);
    QApplication::setPalette(QPalette());
}

TEST_F(FieldsAndLists, GrowTheirEdgesAndCaretsWithTheWindow) {
    TextField field;
    addField(field, "txtWord", 300, 300);
    field.font.size = 14;
    PageWindow& window = open();
    const auto edge = [&] {
        auto& line = as<QLineEdit>(field);
        line.clearFocus();
        const QImage image = line.grab().toImage();
        int y = 0;
        while (qGray(image.pixel(image.width() / 2, y)) < 200)
            ++y;
        return std::pair(y, line.style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, &line));
    };
    window.resize(660, 405);
    shell.event([] {});
    EXPECT_EQ(edge(), std::pair(1, 1));
    const int tip = QFontInfo(QToolTip::font()).pixelSize();
    window.resize(3960, 2430);
    shell.event([] {});
    EXPECT_GE(edge().first, 3);
    EXPECT_GE(edge().second, 3);
    EXPECT_GE(QFontInfo(QToolTip::font()).pixelSize(), 3 * tip);
}

}  // namespace

}  // namespace quillor
