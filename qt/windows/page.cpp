// The toolkit says where the focus is; the page gives it to that widget.
#include "qt/windows/page.h"

#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QUrl>
#include <algorithm>

#include "core/files.h"
#include "qt/paint/paper.h"
#include "qt/windows/drawn_views.h"
#include "qt/windows/field_view.h"
#include "qt/windows/key_mapping.h"
#include "qt/windows/label_views.h"
#include "qt/windows/list_view.h"
#include "qt/windows/page_window.h"
#include "qt/windows/qt_values.h"
#include "toolkit/style.h"

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
      timers_(link_, screen) {
    hide();
    setObjectName(QString::fromStdString(screen.name));
    setAttribute(Qt::WA_InputMethodEnabled);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAcceptDrops(true);
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

std::vector<ControlView*> Page::told() const {
    std::vector<ControlView*> views;
    if (screen_)
        for (const Control* control : spokenOrder(*screen_))
            views.push_back(view(*control));
    return views;
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
    paintNotebook(painter, rect(), scale_.origin.y(), scale_.pixels, link_.shell().scheme);
}

void Page::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void Page::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton && rect().contains(event->position().toPoint()))
        link_.event([](Screen& screen) { screen.rightClickBeside(); });
}

void Page::fit(QSize room) {
    if (screen_)
        screen_->fit(room.width(), room.height());
}

// In the middle, unless it has a bar along its top, which hangs from the window's.
void Page::layOut() {
    if (!screen_)
        return;
    fit(size());
    const QSizeF twips(static_cast<double>(screen_->width), static_cast<double>(screen_->height));
    scale_ = TwipScale::fitting(window_.sheet(*screen_), twips, size());
    if (std::ranges::any_of(views_, [&](ControlView* each) { return each->isHeadBar(twips); }))
        scale_.origin.setY(0);
    link_.lookBehind();
    for (ControlView* each : views_) {
        each->differs();
        each->sync(scale_);
    }
    QToolTip::setFont(link_.shell().fonts.font(style::kToolTip, scale_.pixels));
    update();
}

void Page::sync(Shell::Cause cause) {
    if (!screen_)
        return;
    link_.focus().settle();
    if (!screen_)
        return;
    if (const std::vector<ControlView*> wanted = toSync(cause); !wanted.empty())
        showChanged(wanted);
    else
        giveFocus();
    timers_.sync();
}

// What lies behind a text decides how it is drawn.
std::vector<ControlView*> Page::toSync(Shell::Cause cause) {
    std::vector<ControlView*> changed;
    bool all = cause == Shell::Cause::Preferences;
    for (ControlView* each : views_) {
        const bool differs = each->differs();
        all |= differs && each->isBehindOthers();
        if (differs || (cause == Shell::Cause::Player && each->mayStray()))
            changed.push_back(each);
    }
    return all ? views_ : changed;
}

void Page::showChanged(const std::vector<ControlView*>& changed) {
    link_.lookBehind();
    ControlView* later = fieldToComeTo();
    for (ControlView* each : changed)
        if (each != later)
            each->sync(scale_);
    giveFocus();
    if (later) {
        later->differs();
        later->sync(scale_);
    }
    for (ControlView* each : changed)
        each->withdraw();
}

// A field that is about to get the focus. Its text may change with that, and a screen reader
// that hears of a caret first takes it that the player has been told of the field.
ControlView* Page::fieldToComeTo() {
    const Control* control = entered_ && screen_->enabled ? link_.focus().control() : nullptr;
    auto* field = control ? dynamic_cast<FieldView*>(view(*control)) : nullptr;
    return field && field->isVisible() && !field->hasFocus() ? field : nullptr;
}

// To the page itself while no control has it: from there keys reach the screen too.
// What the player has just clicked at is left the focus: the toolkit hears of it only
// after the control that loses it has.
void Page::giveFocus() {
    if (!entered_ || !screen_->enabled) {
        given_ = nullptr;
        return;
    }
    const Control* control = link_.focus().control();
    QWidget* wanted = control ? &view(*control)->widget() : this;
    if (wanted == given_ && focusWidget())
        return;
    given_ = wanted;
    if (wanted != focusWidget())
        wanted->setFocus(Qt::OtherFocusReason);
}

void Page::enter() {
    entered_ = true;
    giveFocus();
}

void Page::leave() {
    entered_ = false;
    given_ = nullptr;
}

bool Page::focusNextPrevChild(bool next) {
    link_.shell().showsFocus = true;
    link_.event([&](Screen&) { next ? link_.focus().next() : link_.focus().previous(); });
    return true;
}

bool Page::eventFilter(QObject* object, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            press(*static_cast<QKeyEvent*>(event));
            return true;
        case QEvent::KeyRelease:
            if (const auto& key = *static_cast<QKeyEvent*>(event); !key.isAutoRepeat())
                link_.event([&](Screen&) {
                    link_.shell().repeats.release(key);
                    link_.shell().keys.release(keyId(key));
                });
            return true;
        case QEvent::InputMethod:
            if (dynamic_cast<FieldView*>(object))
                return false;
            link_.event([&](Screen& screen) {
                const QString& text = static_cast<QInputMethodEvent*>(event)->commitString();
                link_.shell().keys.commit(screen, link_.focus(), fromQt(text));
            });
            return true;
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return takeFiles(*static_cast<QDropEvent*>(event));
        default:
            return QWidget::eventFilter(object, event);
    }
}

// Whatever lies under them; a field keeps the text that is dropped on it. Later, because
// whoever they come from waits as long as this is being handled.
bool Page::takeFiles(QDropEvent& event) {
    std::vector<std::filesystem::path> files;
    for (const QUrl& url : event.mimeData()->urls())
        if (url.isLocalFile())
            files.push_back(toPath(fromQt(url.toLocalFile())));
    const bool wanted = screen_ != nullptr && screen_->enabled && screen_->takesFiles();
    if (files.empty() || !wanted || link_.shell().isModal())
        return false;
    event.setDropAction(Qt::CopyAction);
    event.accept();
    if (event.type() == QEvent::Drop)
        QTimer::singleShot(0, this, [this, files] {
            link_.event([&files](Screen& screen) { screen.dropFiles(files); });
        });
    return true;
}

void Page::press(QKeyEvent& event) {
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab)
        link_.shell().showsFocus = true;
    link_.keyEvent([&](Screen& screen) {
        KeyPress press = toKeyPress(event);
        press.autoRepeat = link_.shell().repeats.isRepeat(event);
        const KeyRoute::Rest rest = link_.shell().keys.press(screen, link_.focus(), press);
        if (rest == KeyRoute::Rest::Field)
            dynamic_cast<FieldView&>(*view(*link_.focus().control())).edit(event);
        else if (rest == KeyRoute::Rest::List)
            dynamic_cast<ListView&>(*view(*link_.focus().control())).move(event);
    });
}

void Page::letKeysGo() {
    link_.event([&](Screen&) { link_.shell().keys.letGo(); });
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

TimerSet::TimerSet(ScreenLink& link, Screen& screen) : link_(link), screen_(screen) {
    time_.start();
    alarm_.setSingleShot(true);
    alarm_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&alarm_, &QTimer::timeout, [this] { tick(); });
}

void TimerSet::sync() {
    clock_.look({&screen_}, time_.elapsed());
    setAlarm();
}

void TimerSet::setAlarm() {
    const std::optional<std::int64_t> due = clock_.nextDue();
    if (due)
        alarm_.start(static_cast<int>(std::max<std::int64_t>(*due - time_.elapsed(), 0)));
    else
        alarm_.stop();
}

void TimerSet::stop() {
    clock_.look({}, time_.elapsed());
    alarm_.stop();
}

void TimerSet::tick() {
    clock_.tick(time_.elapsed(), [this](Screen&, Timer& timer) {
        link_.tickEvent([&](Screen& screen) { screen.tick(timer); });
    });
    setAlarm();
}

}  // namespace quillor
