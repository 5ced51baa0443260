// Field and line edit follow each other; a flag tells which of them is being written.
#include "qt/windows/field_view.h"

#include <QInputMethodEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <algorithm>

#include "qt/paint/label_painter.h"
#include "qt/windows/qt_values.h"
#include "toolkit/contrast.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr Twips kRadius = 90;    // twips, of the box's corners
constexpr double kPadding = 90;  // twips, from the box's edge to the text
constexpr double kInner = 3;     // pixels, that the toolkit leaves to either side, and the caret

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

// Smaller where its text would not fit, so that all of it is seen; also while it is typed.
QFont FieldView::fitted() const {
    constexpr double kSmallest = 8;  // pixels of the display
    QFont font = link().shell().fonts.font(field_.font, pixelsPerTwip());
    const double room = width() - 2 * kPadding * pixelsPerTwip() - 2 * kInner;
    const double high = height() * 0.8;
    const QString text = toQt(shown<ShownField>().text);
    const auto fits = [&] {
        const QFontMetricsF metrics(font);
        return metrics.horizontalAdvance(text) <= room && metrics.height() <= high;
    };
    while (room > 0 && (font.pixelSize() - 1) * devicePixelRatioF() >= kSmallest && !fits())
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

void FieldView::syncFont() {
    const QFont wanted = fitted();
    const int padding = static_cast<int>(kPadding * pixelsPerTwip());
    if (shownFont_ == wanted && shownPadding_ == padding)
        return;
    shownFont_ = wanted;
    shownPadding_ = padding;
    setFont(wanted);
    setTextMargins(padding, 0, padding, 0);
}

void FieldView::syncColors() {
    const Color back = scheme().ground(field_.backColor);
    const Color ink = scheme().ink(field_.textColor, field_.backColor);
    const Color edge = scheme().edge(style::kEdge, field_.backColor);
    if (shownTextColor_ == ink && shownBackColor_ == back && shownEdge_ == edge)
        return;
    shownTextColor_ = ink;
    shownBackColor_ = back;
    shownEdge_ = edge;
    QPalette colors = palette();
    colors.setColor(QPalette::Text, toQt(shownTextColor_));
    colors.setColor(QPalette::Base, Qt::transparent);  // the box is painted below
    colors.setColor(
        QPalette::Highlight,
        toQt(darkEnoughForWhite(style::kSelection, scheme().needed(kSmallTextContrast))));
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
        paintField(painter, rect(), {kRadius, shownBackColor_, shownEdge_}, hasFocus(),
                   pixelsPerTwip());
    }
    QLineEdit::paintEvent(event);
}

}  // namespace quillor
