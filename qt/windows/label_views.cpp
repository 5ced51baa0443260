// The mouse and the keys become events of the screen; what changes is announced.
#include "qt/windows/label_views.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>

#include "toolkit/contrast.h"
#include "toolkit/style.h"

namespace quillor {

namespace {
constexpr int kSayAfter = 50;  // ms
}

void LabelView::syncLook() {
    LabelLook look = lookOf(label_);
    takeGround(look);
    if (look == look_)
        return;
    look_ = std::move(look);
    widget().update();
}

// What is not seen needs none.
void LabelView::takeGround(LabelLook& look) const {
    look.backColor = scheme().ground(label_.backColor);
    if (!link().isOpen() || !label_.visible || label_.caption.empty())
        return;
    const Inked shown = inked(link().grounds(), label_, scheme());
    look.enabled = shown.enabled;
    look.grounds = shown.grounds;
    look.fades = scheme().isUsual();
    look.needed = shown.needed;
    look.textColor = shown.ink;
}

void LabelView::syncWords() {
    if (!widget().isVisible() || !isSeen(label_))
        return;
    QAccessibleEvent event(&widget(), QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void LabelView::paint(QPainter& painter) {
    paintLabel(painter, QRectF(widget().rect()), look_, link().shell().fonts, pixelsPerTwip());
}

ButtonView::ButtonView(Label& label, ScreenLink& link, QWidget* parent)
    : QAbstractButton(parent), LabelView(label, link) {
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    if (isButton(label))
        setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_InputMethodEnabled);
    connect(this, &QAbstractButton::pressed,
            [this] { this->link().event([&](Screen& s) { s.mouseDown(this->label()); }); });
    connect(this, &QAbstractButton::released,
            [this] { this->link().event([&](Screen& s) { s.mouseUp(this->label()); }); });
    connect(this, &QAbstractButton::clicked,
            [this] { this->link().event([&](Screen& s) { s.click(this->label()); }); });
}

void ButtonView::assistivePress() {
    if (isEnabled() && !link().shell().isModal())
        click();
}

void ButtonView::assistiveChoose(MenuItem& item) {
    if (isEnabled() && !link().shell().isModal())
        link().event([&](Screen& screen) { screen.choose(item); });
}

void ButtonView::announce(const ShownControl::Changes& changes) {
    if (!changes.checked)
        return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void ButtonView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paint(painter);
    if (hasFocus() && link().shell().showsFocus)
        paintFocusRing(painter, rect(), static_cast<double>(look().cornerRadius) * pixelsPerTwip(),
                       pixelsPerTwip());
}

void ButtonView::mouseMoveEvent(QMouseEvent* event) {
    QAbstractButton::mouseMoveEvent(event);
    event->accept();  // the frame behind it is not what the mouse moves over
    if (rect().contains(event->position().toPoint()))
        link().event([&](Screen& screen) { screen.mouseMove(label()); });
}

void ButtonView::mousePressEvent(QMouseEvent* event) {
    link().shell().showsFocus = false;
    QAbstractButton::mousePressEvent(event);
    event->accept();  // the right button's release is ours too
}

void ButtonView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton)
        link().event([&](Screen& screen) { screen.rightClick(label()); });
    else
        QAbstractButton::mouseReleaseEvent(event);
}

void ButtonView::enterEvent(QEnterEvent*) {
    link().event([&](Screen& screen) { screen.mouseMove(label()); });
}

void ButtonView::focusInEvent(QFocusEvent* event) {
    QAbstractButton::focusInEvent(event);
    takeFocus();
}

CaptionView::CaptionView(Label& label, ScreenLink& link, QWidget* parent)
    : QLabel(parent), LabelView(label, link) {
    setMouseTracking(true);
}

void CaptionView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paint(painter);
}

void CaptionView::mouseMoveEvent(QMouseEvent*) {
    link().event([&](Screen& screen) { screen.mouseMove(label()); });
}

void CaptionView::enterEvent(QEnterEvent*) {
    link().event([&](Screen& screen) { screen.mouseMove(label()); });
}

void CaptionView::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    pressed_ = true;
    link().event([&](Screen& screen) { screen.mouseDown(label()); });
}

void CaptionView::mouseReleaseEvent(QMouseEvent* event) {
    const bool inside = rect().contains(event->position().toPoint());
    if (event->button() == Qt::RightButton && inside)
        link().event([&](Screen& screen) { screen.rightClick(label()); });
    if (event->button() != Qt::LeftButton || !std::exchange(pressed_, false))
        return;
    link().event([&](Screen& screen) { screen.mouseUp(label()); });
    if (inside)
        link().event([&](Screen& screen) { screen.click(label()); });
}

NotificationView::NotificationView(Label& label, ScreenLink& link, QWidget* parent)
    : QLabel(parent), LabelView(label, link) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    later_.setSingleShot(true);
    later_.setInterval(kSayAfter);
    connect(&later_, &QTimer::timeout, [this] { sayIt(); });
}

// Screen readers speak a notification when it comes into view. Where much happens at
// once they drop what they are told in its midst: it is said when the rest is over.
void NotificationView::announce(const ShownControl::Changes& changes) {
    if (changes.words && !label().caption.empty())
        later_.start();
}

void NotificationView::sayIt() {
    if (!link().isOpen())
        return;
    if (isHidden())
        return show();
    QAccessibleEvent event(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

}  // namespace quillor
