// A widget for each control, the focus among them, and the place of the window.
#include "qt/windows/screen_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "qt/windows/accessible_label.h"
#include "qt/windows/drawn_views.h"
#include "qt/windows/field_view.h"
#include "qt/windows/label_views.h"
#include "qt/windows/list_view.h"
#include "qt/windows/qt_values.h"
#include "qt/windows/reading_order.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr double kShareOfDisplay = 0.8;      // that a large screen fills at first
constexpr double kSmallestScale = 0.35;      // of the first one
constexpr double kFallbackScale = 1.0 / 15;  // pixels a twip, without a display

double firstScale() {
    const QScreen* display = QGuiApplication::primaryScreen();
    if (!display)
        return kFallbackScale;
    const QSizeF space = display->availableSize() * kShareOfDisplay;
    return TwipScale::fitting(QSizeF(style::kScreenWidth, style::kScreenHeight), space).pixels;
}

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

const Picture* backPicture(const Screen& screen) {
    for (const ControlRef& ref : screen.controls())
        if (auto* const* picture = std::get_if<Picture*>(&ref))
            return *picture;
    return nullptr;
}

}  // namespace

/// Everything of a screen stands on it; around the screen it shows more paper.
class Canvas : public QWidget {
  public:
    explicit Canvas(ScreenWindow& owner) : window_(owner) {
        setAttribute(Qt::WA_InputMethodEnabled);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

  protected:
    void resizeEvent(QResizeEvent* event) override { window_.layOut(event->size()); }

    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::RightButton && rect().contains(event->position().toPoint()))
            window_.link_.event([](Screen& screen) { screen.rightClickBeside(); });
    }

    void mousePressEvent(QMouseEvent* event) override { event->accept(); }

    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        if (window_.marginColor_.isValid())
            painter.fillRect(event->rect(), window_.marginColor_);
        else
            paintNotebook(painter, event->rect(), window_.scale().origin, window_.scale().pixels);
    }

  private:
    ScreenWindow& window_;
};

ScreenWindow::ScreenWindow(Shell& shell, Screen& screen)
    : screen_(&screen),
      twips_(static_cast<double>(screen.width), static_cast<double>(screen.height)),
      link_(shell, screen),
      canvas_(new Canvas(*this)),
      keys_(*this, link_),
      timers_(link_, screen) {
    installLabelAccessibility();
    setObjectName(QString::fromStdString(screen.name));
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(canvas_);
    installEventFilter(this);
    canvas_->installEventFilter(this);
    makeViews();
    giveFocus(screen.initialFocus());
}

ScreenWindow::~ScreenWindow() = default;

void ScreenWindow::makeViews() {
    for (const ControlRef& ref : screen_->controls()) {
        const Control& control = controlOf(ref);
        QWidget* parent = control.parent ? &viewOf_.at(control.parent)->widget() : canvas_;
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

ControlView* ScreenWindow::view(const Control& control) const {
    const auto found = viewOf_.find(&control);
    return found == viewOf_.end() ? nullptr : found->second;
}

ControlView* ScreenWindow::focusedView() const {
    return dynamic_cast<ControlView*>(focusWidget());
}

void ScreenWindow::layOut(QSize space) {
    scale_ = TwipScale::fitting(twips_, space);
    for (ControlView* each : views_)
        if (screen_)
            each->sync(scale_);
    canvas_->update();
}

void ScreenWindow::sync() {
    if (!screen_)
        return;
    syncWindow();
    for (ControlView* each : views_)
        each->sync(scale_);
    syncFocus();
    if (!screen_)
        return;
    for (ControlView* each : views_)
        each->withdraw();
    timers_.sync();
}

void ScreenWindow::syncWindow() {
    const QString wanted = toQt(screen_->title);
    if (wanted != windowTitle()) {
        setWindowTitle(wanted);
        setAccessibleName(wanted);
    }
    const Picture* back = backPicture(*screen_);
    const ImageRef image = back ? back->image : nullptr;
    if (image != marginImage_) {
        marginImage_ = image;
        marginColor_ = image ? averageColor(image) : QColor();
        canvas_->update();
    }
    if (screen_->enabled == canvas_->isEnabled())
        return;
    if (!screen_->enabled) {
        const ControlView* focus = focusedView();
        focused_ = focus ? &focus->control() : nullptr;
        canvas_->setEnabled(false);
        return;
    }
    canvas_->setEnabled(true);
    giveFocus(focused_);
}

void ScreenWindow::syncFocus() {
    if (const Control* wanted = screen_->takeFocusRequest())
        giveFocus(wanted);
    const ControlView* focus = focusedView();
    if (canvas_->isEnabled() && (focus ? !focus->isUsable() : !focusWidget()))
        giveFocus(screen_->initialFocus());
}

// Failing that, to the screen's first choice, and failing that to the canvas,
// from which keys reach the screen too.
void ScreenWindow::giveFocus(const Control* control) {
    ControlView* wanted = control ? view(*control) : nullptr;
    if (!screen_->enabled)
        focused_ = control;
    else if (wanted && wanted->isUsable())
        wanted->widget().setFocus(Qt::OtherFocusReason);
    else if (control != screen_->initialFocus())
        giveFocus(screen_->initialFocus());
    else
        canvas_->setFocus(Qt::OtherFocusReason);
}

bool ScreenWindow::focusNextPrevChild(bool next) {
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

bool ScreenWindow::eventFilter(QObject* object, QEvent* event) {
    const bool onField = dynamic_cast<FieldView*>(object) != nullptr;
    if (event->type() == QEvent::KeyPress) {
        keys_.press(*static_cast<QKeyEvent*>(event));
        return true;
    }
    if (event->type() == QEvent::InputMethod && !onField) {
        keys_.typeOnScreen(static_cast<QInputMethodEvent*>(event)->commitString());
        return true;
    }
    return QMainWindow::eventFilter(object, event);
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (screen_ && screen_->enabled && !link_.shell().isModal())
        link_.event([](Screen& screen) { screen.closeRequest(); });
}

void ScreenWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    const bool activated = event->type() == QEvent::ActivationChange && isActiveWindow();
    if (!activated || !screen_ || screen_->enabled)
        return;
    if (ScreenWindow* above = link_.shell().findOver(*screen_))
        above->comeToFront();
}

bool ScreenWindow::isLarge() const {
    return twips_.width() >= static_cast<double>(style::kScreenWidth);
}

WindowPlace ScreenWindow::windowPlace() const {
    const bool whole = isMaximized() || isFullScreen();
    return {whole ? normalGeometry() : geometry(),
            windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen), scale_.pixels};
}

void ScreenWindow::present(const std::optional<WindowPlace>& before, ScreenWindow* owner) {
    presented_ = true;
    setMinimumSize((twips_ * firstScale() * kSmallestScale).toSize());
    if (owner)
        setWindowFlags(Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowTitleHint);
    if (before && isLarge()) {
        setGeometry(before->geometry);
        setWindowState(before->states);
    } else {
        placeAnew(before ? before->pixelsPerTwip : firstScale(), owner);
    }
    winId();  // makes the native window, which the owner is told to
    if (owner)
        windowHandle()->setTransientParent(owner->windowHandle());
    show();
    comeToFront();
}

void ScreenWindow::placeAnew(double pixelsPerTwip, const ScreenWindow* owner) {
    QRect place(QPoint(), (twips_ * pixelsPerTwip).toSize());
    const QScreen* display = QGuiApplication::primaryScreen();
    if (owner)
        place.moveCenter(owner->geometry().center());
    else if (display)
        place.moveCenter(display->availableGeometry().center());
    setGeometry(place);
}

void ScreenWindow::comeToFront() {
    if (!presented_)
        return;
    raise();
    activateWindow();
}

void ScreenWindow::detach() {
    timers_.stop();
    link_.cut();
    screen_ = nullptr;
}

}  // namespace quillor
