// What was focused is remembered while the page is covered or disabled.
#include "qt/windows/page.h"

#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "qt/paint/paper.h"
#include "qt/windows/drawn_views.h"
#include "qt/windows/field_view.h"
#include "qt/windows/label_views.h"
#include "qt/windows/list_view.h"
#include "qt/windows/page_window.h"
#include "qt/windows/reading_order.h"

namespace quillor {

namespace {

ControlView* makeView(const ControlRef& ref, ScreenLink& link, QWidget* parent) {
    struct Maker {
        ScreenLink& link;
        QWidget* parent;
        ControlView* operator()(Label* label) const {
            if (label->role == LabelRole::Notification)
                return new NotificationView(*label, link, parent);
            if (label->role == LabelRole::Plain)
                return new CaptionView(*label, link, parent);
            return new ButtonView(*label, link, parent);
        }
        ControlView* operator()(Shape* shape) const { return new ShapeView(*shape, link, parent); }
        ControlView* operator()(Line* line) const { return new LineView(*line, link, parent); }
        ControlView* operator()(Picture* picture) const {
            return new PictureView(*picture, link, parent);
        }
        ControlView* operator()(Frame* frame) const { return new FrameView(*frame, link, parent); }
        ControlView* operator()(TextField* field) const {
            return new FieldView(*field, link, parent);
        }
        ControlView* operator()(ListBox* list) const { return new ListView(*list, link, parent); }
    };
    return std::visit(Maker{link, parent}, ref);
}

}  // namespace

Page::Page(Shell& shell, Screen& screen, PageWindow& window)
    : QWidget(window.centralWidget()),
      screen_(&screen),
      window_(window),
      link_(shell, screen),
      keys_(*this, link_),
      timers_(link_, screen),
      focused_(screen.initialFocus()) {
    hide();
    setObjectName(QString::fromStdString(screen.name));
    setAttribute(Qt::WA_InputMethodEnabled);
    setAttribute(Qt::WA_OpaquePaintEvent);
    installEventFilter(this);
    makeViews();
}

Page::~Page() = default;

void Page::makeViews() {
    for (const ControlRef& ref : screen_->controls()) {
        const Control& control = controlOf(ref);
        QWidget* parent = control.parent ? &viewOf_.at(control.parent)->widget() : this;
        ControlView* made = makeView(ref, link_, parent);
        QWidget& widget = made->widget();
        widget.hide();
        widget.setObjectName(QString::fromStdString(control.id));
        if (widget.focusPolicy() != Qt::NoFocus)
            widget.installEventFilter(this);
        views_.push_back(made);
        viewOf_[&control] = made;
    }
}

ControlView* Page::view(const Control& control) const {
    const auto found = viewOf_.find(&control);
    return found == viewOf_.end() ? nullptr : found->second;
}

ControlView* Page::focusedView() const {
    return dynamic_cast<ControlView*>(focusWidget());
}

void Page::resizeEvent(QResizeEvent*) {
    layOut();
}

// Only what no picture of the screen covers.
void Page::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintNotebook(painter, rect(), scale_.origin.y(), scale_.pixels);
}

void Page::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void Page::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton && rect().contains(event->position().toPoint()))
        link_.event([](Screen& screen) { screen.rightClickBeside(); });
}

// In the middle, unless it has a bar along its top, which hangs from the window's.
void Page::layOut() {
    if (!screen_)
        return;
    const QSizeF twips(static_cast<double>(screen_->width), static_cast<double>(screen_->height));
    scale_ = TwipScale::fitting(window_.sheet(twips), twips, size());
    if (std::ranges::any_of(views_, [&](ControlView* each) { return each->isHeadBar(twips); }))
        scale_.origin.setY(0);
    for (ControlView* each : views_)
        each->sync(scale_);
    update();
}

void Page::sync() {
    if (!screen_)
        return;
    syncEnabled();
    for (ControlView* each : views_)
        each->sync(scale_);
    syncFocus();
    if (!screen_)
        return;
    for (ControlView* each : views_)
        each->withdraw();
    timers_.sync();
}

void Page::syncEnabled() {
    if (screen_->enabled == isEnabled())
        return;
    if (!screen_->enabled)
        keepFocus();
    setEnabled(screen_->enabled);
    if (screen_->enabled)
        giveFocus(focused_);
}

void Page::enter() {
    entered_ = true;
    giveFocus(focused_);
}

void Page::leave() {
    if (screen_ && takesFocus())
        keepFocus();
    entered_ = false;
}

void Page::keepFocus() {
    const ControlView* focus = focusedView();
    focused_ = focus ? &focus->control() : nullptr;
}

void Page::syncFocus() {
    if (const Control* wanted = screen_->takeFocusRequest())
        giveFocus(wanted);
    const ControlView* focus = focusedView();
    if (screen_ && takesFocus() && (focus ? !focus->isUsable() : !focusWidget()))
        giveFocus(screen_->initialFocus());
}

// Failing that, to the screen's first choice, and failing that to the page
// itself, from which keys reach the screen too.
void Page::giveFocus(const Control* control) {
    ControlView* wanted = control ? view(*control) : nullptr;
    if (!takesFocus())
        focused_ = control;
    else if (wanted && wanted->isUsable())
        wanted->widget().setFocus(Qt::OtherFocusReason);
    else if (control != screen_->initialFocus())
        giveFocus(screen_->initialFocus());
    else
        setFocus(Qt::OtherFocusReason);
}

bool Page::focusNextPrevChild(bool next) {
    link_.shell().showsFocus = true;
    const std::vector<ControlView*> order = readingOrder(views_);
    if (order.empty())
        return true;
    const auto current = std::find(order.begin(), order.end(), focusedView());
    const auto at = static_cast<std::size_t>(current - order.begin());
    std::size_t to = next ? 0 : order.size() - 1;
    if (current != order.end())
        to = (at + (next ? 1 : order.size() - 1)) % order.size();
    order[to]->widget().setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

bool Page::eventFilter(QObject* object, QEvent* event) {
    const bool onField = dynamic_cast<FieldView*>(object) != nullptr;
    if (event->type() == QEvent::KeyPress) {
        keys_.press(*static_cast<QKeyEvent*>(event));
        return true;
    }
    if (event->type() == QEvent::InputMethod && !onField) {
        keys_.typeOnScreen(static_cast<QInputMethodEvent*>(event)->commitString());
        return true;
    }
    return QWidget::eventFilter(object, event);
}

void Page::askToClose() {
    if (screen_ && screen_->enabled && !link_.shell().isModal())
        link_.event([](Screen& screen) { screen.closeRequest(); });
}

void Page::detach() {
    timers_.stop();
    link_.cut();
    screen_ = nullptr;
}

}  // namespace quillor
