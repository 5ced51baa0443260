// Field and line edit follow each other; a flag tells which of them is being written.
#include "qt/windows/field_view.h"

#include <QInputMethodEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <algorithm>

#include "qt/paint/label_painter.h"
#include "qt/windows/qt_values.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr Twips kRadius = 90;    // twips, of the box's corners
constexpr double kPadding = 90;  // twips, from the box's edge to the text

// How many characters both texts have in common at their beginnings.
qsizetype commonStart(const QString& a, const QString& b) {
    return std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
}

}  // namespace

FieldView::FieldView(TextField& field, ScreenLink& link, QWidget* parent)
    : QLineEdit(parent), ControlView(&field, link), field_(field) {
    setFrame(false);
    // Its entries would not speak the program's language.
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(this, &QLineEdit::textEdited, [this] { report(); });
    connect(this, &QLineEdit::selectionChanged, [this] { report(); });
    connect(this, &QLineEdit::cursorPositionChanged, [this] { report(); });
}

// The line edit may run ahead of what was shown last: it is compared itself.
void FieldView::syncLook() {
    syncFont();
    syncColors();
    const QScopedValueRollback writing(writing_, true);
    syncText();
    syncSelection();
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
    colors.setColor(QPalette::Highlight, toQt(style::kSelection));
    colors.setColor(QPalette::HighlightedText, Qt::white);
    setPalette(colors);
    update();
}

// Only what differs is replaced, and that is all that assistive tools are told.
void FieldView::syncText() {
    const QString wanted = toQt(shown<ShownField>().text);
    const QString now = text();
    if (wanted == now)
        return;
    const qsizetype start = commonStart(now, wanted);
    qsizetype end = std::min(now.size(), wanted.size()) - start;
    while (end > 0 && now.last(end) != wanted.last(end))
        --end;
    setCursorPosition(static_cast<int>(start));
    if (const qsizetype replaced = now.size() - end - start; replaced > 0)
        setSelection(static_cast<int>(start), static_cast<int>(replaced));
    insert(wanted.sliced(start, wanted.size() - end - start));
}

void FieldView::syncSelection() {
    const auto& look = shown<ShownField>();
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    const int length = static_cast<int>(selectedText().size());
    if (start == look.caret && length == look.selectionLength)
        return;
    if (look.selectionLength > 0)
        setSelection(look.caret, look.selectionLength);
    else
        setCursorPosition(look.caret);
}

void FieldView::report() {
    if (writing_)
        return;
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    const int length = static_cast<int>(selectedText().size());
    link().event([&](Screen& screen) { screen.edit(field_, fromQt(text()), start, length); });
}

// Undoing is the field's own business, by whichever key the system has for it.
void FieldView::edit(QKeyEvent& event) {
    if (event.matches(QKeySequence::Undo))
        link().event([&](Screen& screen) { screen.undo(field_); });
    else if (event.matches(QKeySequence::Redo))
        link().event([&](Screen& screen) { screen.redo(field_); });
    else
        QLineEdit::keyPressEvent(&event);
}

// What is being composed is the line edit's; what is handed over goes the way
// of keys.
void FieldView::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent ended;
    ended.setCommitString({}, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(&ended);
    if (!event->commitString().isEmpty())
        link().event([&](Screen& screen) {
            link().shell().keys.commit(screen, link().focus(), fromQt(event->commitString()));
        });
    if (!link().isOpen() || event->preeditString().isEmpty())
        return;
    QInputMethodEvent composing(event->preeditString(), event->attributes());
    QLineEdit::inputMethodEvent(&composing);
}

void FieldView::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    update();
    takeFocus();
}

void FieldView::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    update();
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
        paintField(painter, rect(), kRadius, shownBackColor_, hasFocus(), pixelsPerTwip());
    }
    QLineEdit::paintEvent(event);
}

}  // namespace quillor
