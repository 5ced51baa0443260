// Field and line edit follow each other; a flag tells which of them is being written.
#include "qt/windows/field_view.h"

#include <QInputMethodEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "qt/paint/label_painter.h"
#include "qt/windows/key_mapping.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

constexpr double kRadius = 90;   // twips, of the box's corners
constexpr double kPadding = 90;  // twips, from the box's edge to the text
constexpr int kUnlimited = 32767;

// The field keeps its logical focus while another window, or a menu, has it.
bool leavesField(const QFocusEvent& event) {
    return event.reason() != Qt::ActiveWindowFocusReason &&
           event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason;
}

}  // namespace

FieldView::FieldView(TextField& field, ScreenLink& link, QWidget* parent)
    : QLineEdit(parent), ControlView(field, link), field_(field) {
    setFrame(false);
    // Its entries would not speak the program's language.
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(this, &QLineEdit::textEdited, [this] { report(); });
    connect(this, &QLineEdit::selectionChanged, [this] { report(); });
    connect(this, &QLineEdit::cursorPositionChanged, [this] { report(); });
}

void FieldView::syncLook() {
    syncFont();
    syncColors();
    const int most = field_.maxLength > 0 ? field_.maxLength : kUnlimited;
    writing_ = true;
    if (most != maxLength())
        setMaxLength(most);
    syncText();
    syncSelection();
    writing_ = false;
}

void FieldView::syncFont() {
    if (shownFont_ == field_.font && shownScale_ == pixelsPerTwip())
        return;
    shownFont_ = field_.font;
    shownScale_ = pixelsPerTwip();
    setFont(link().shell().fonts.font(shownFont_, shownScale_));
    const int padding = static_cast<int>(kPadding * shownScale_);
    setTextMargins(padding, 0, padding, 0);
}

void FieldView::syncColors() {
    if (shownTextColor_ == field_.textColor && shownBackColor_ == field_.backColor)
        return;
    shownTextColor_ = field_.textColor;
    shownBackColor_ = field_.backColor;
    QPalette colors = palette();
    colors.setColor(QPalette::Text, toQt(shownTextColor_));
    colors.setColor(QPalette::Base, Qt::transparent);  // the box is painted below
    setPalette(colors);
    update();
}

void FieldView::syncText() {
    const QString wanted = toQt(field_.text());
    if (wanted == text())
        return;
    setText(wanted);
    setCursorPosition(field_.caret());
}

void FieldView::syncSelection() {
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    const int length = static_cast<int>(selectedText().size());
    if (start == field_.caret() && length == field_.selectionLength())
        return;
    if (field_.selectionLength() > 0)
        setSelection(field_.caret(), field_.selectionLength());
    else
        setCursorPosition(field_.caret());
}

void FieldView::report() {
    if (writing_)
        return;
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    const int length = static_cast<int>(selectedText().size());
    link().event([&](Screen& screen) { screen.edit(field_, fromQt(text()), start, length); });
}

QString FieldView::filtered(const QString& text) {
    QString result;
    link().event([&](Screen& screen) {
        for (const QChar c : text)
            if (const char16_t let = screen.fieldKeyPress(field_, c.unicode()))
                result += QChar(let);
    });
    return result;
}

void FieldView::type(QKeyEvent& event) {
    const QString typed = typedText(event);
    const QString let = filtered(typed);
    // The filter's handler may have closed the screen.
    if (!link().isOpen() || (let.isEmpty() && !typed.isEmpty()))
        return;
    if (let == typed) {
        QLineEdit::keyPressEvent(&event);
        return;
    }
    QKeyEvent replaced(event.type(), 0, Qt::NoModifier, let, event.isAutoRepeat());
    QLineEdit::keyPressEvent(&replaced);
}

void FieldView::inputMethodEvent(QInputMethodEvent* event) {
    const QString let = filtered(event->commitString());
    if (!link().isOpen())
        return;
    QInputMethodEvent passed(event->preeditString(), event->attributes());
    passed.setCommitString(let, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(&passed);
}

void FieldView::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    update();
    if (!std::exchange(hasFocus_, true))
        link().event([&](Screen& screen) { screen.focusChanged(field_, true); });
}

void FieldView::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    update();
    if (leavesField(*event) && std::exchange(hasFocus_, false))
        link().event([&](Screen& screen) { screen.focusChanged(field_, false); });
}

void FieldView::enterEvent(QEnterEvent*) {
    link().event([&](Screen& screen) { screen.mouseMove(field_); });
}

void FieldView::mouseMoveEvent(QMouseEvent* event) {
    QLineEdit::mouseMoveEvent(event);
    link().event([&](Screen& screen) { screen.mouseMove(field_); });
}

void FieldView::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const double radius = kRadius * pixelsPerTwip();
        painter.setPen(QPen(QColor(150, 150, 160), 1));
        painter.setBrush(toQt(shownBackColor_));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
        if (hasFocus())
            paintFocusRing(painter, rect(), radius);
    }
    QLineEdit::paintEvent(event);
}

}  // namespace quillor
