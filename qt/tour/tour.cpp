#include "qt/tour/tour.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cstdio>
#include <utility>

#include "qt/windows/label_views.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

constexpr int kLookAgain = 30;   // ms
constexpr int kPatience = 8000;  // ms, until a step counts as failed
constexpr int kPause = 90;       // ms between two steps, about as a quick player's

// What takes keys and mouse now: an open menu, a box, or the window in front.
QWidget* front() {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

QWidget* control(const QString& id) {
    QWidget* window = front();
    QWidget* found = window ? window->findChild<QWidget*>(id) : nullptr;
    return found && found->isVisible() ? found : nullptr;
}

// To the native window, as if they came from the desktop.
void post(QWidget& window, QEvent* event) {
    if (QWindow* native = window.window()->windowHandle())
        QCoreApplication::postEvent(native, event);
    else
        delete event;
}

void postKey(QWidget& window, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    post(window, new QKeyEvent(QEvent::KeyPress, key, modifiers, text));
    post(window, new QKeyEvent(QEvent::KeyRelease, key, modifiers, text));
}

void postMouse(QWidget& widget, QEvent::Type type, QPoint place, Qt::MouseButton button,
               Qt::MouseButtons held) {
    const QPoint inWindow = widget.mapTo(widget.window(), place);
    const QPoint onDisplay = widget.mapToGlobal(place);
    post(widget, new QMouseEvent(type, inWindow, onDisplay, button, held, Qt::NoModifier));
}

// Two moves: the first one may be spent on entering the widget.
void moveOnto(QWidget& widget) {
    const QPoint center = widget.rect().center();
    for (const QPoint place : {center + QPoint(1, 1), center})
        postMouse(widget, QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton);
}

QList<QWidget*> windowsFromBack() {
    QList<QWidget*> shown;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() != Qt::ToolTip)
            shown.append(window);
    const auto width = [](const QWidget* window) { return window->width(); };
    std::sort(shown.begin(), shown.end(),
              [width](const QWidget* a, const QWidget* b) { return width(a) > width(b); });
    if (shown.removeOne(front()))
        shown.append(front());
    return shown;
}

// What a desktop does for a window in front of another one.
void paintShadow(QPainter& painter, const QRect& window) {
    constexpr int kReach = 9;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 12));
    for (int reach = 1; reach <= kReach; ++reach)
        painter.drawRoundedRect(window.adjusted(-reach, -reach, reach, reach), reach, reach);
}

// The windows in front of each other, as they stand on the display.
QPixmap grabAll() {
    QRect extent;
    const QList<QWidget*> windows = windowsFromBack();
    for (const QWidget* window : windows)
        extent |= window->geometry();
    if (extent.isEmpty())
        return {};
    const double density = windows.front()->devicePixelRatioF();
    QPixmap picture((QSizeF(extent.size()) * density).toSize());
    picture.setDevicePixelRatio(density);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    for (QWidget* window : windows) {
        const QRect place = window->geometry().translated(-extent.topLeft());
        if (window != windows.front())
            paintShadow(painter, place);
        painter.drawPixmap(place.topLeft(), window->grab());
    }
    return picture;
}

}  // namespace

Tour::Tour(QString folder, std::function<void(QString)> finished)
    : folder_(std::move(folder)), finished_(std::move(finished)) {}

void Tour::start(std::vector<TourStep> steps) {
    steps_ = std::move(steps);
    waiting_.start();
    QTimer::singleShot(kPause, this, [this] { next(); });
}

// Steps only post events, so that a box which an event opens does not hold the
// tour up.
void Tour::next() {
    if (at_ == steps_.size()) {
        finished_({});
        return;
    }
    const TourStep& step = steps_.at(at_);
    if (step.ready()) {
        step.act();
        ++at_;
        waiting_.restart();
        const int pause = at_ < steps_.size() ? steps_.at(at_).pause : 0;
        QTimer::singleShot(pause, this, [this] { next(); });
    } else if (waiting_.elapsed() > kPatience) {
        finished_("step " + QString::number(at_ + 1) + " could not be done: " + step.name);
    } else {
        QTimer::singleShot(kLookAgain, this, [this] { next(); });
    }
}

TourStep Tour::waitFor(const QString& window) const {
    return {"wait for " + window, kPause,
            [window] { return front() && front()->objectName() == window; }, [] {}};
}

TourStep Tour::waitForBox() const {
    return {"wait for a box", kPause,
            [] { return QApplication::activeModalWidget() || QApplication::activePopupWidget(); },
            [] {}};
}

TourStep Tour::key(int key, Qt::KeyboardModifiers modifiers) const {
    return {"press a key", kPause, [] { return front() != nullptr; },
            [key, modifiers] { postKey(*front(), key, modifiers, {}); }};
}

TourStep Tour::type(const QString& character) const {
    return {"type " + character, kPause, [] { return front() != nullptr; },
            [character] {
                const int code = character.at(0).toUpper().unicode();
                postKey(*front(), code, Qt::NoModifier, character);
            }};
}

TourStep Tour::moveTo(const QString& id) const {
    return {"move to " + id, kPause, [id] { return control(id) != nullptr; },
            [id] { moveOnto(*control(id)); }};
}

TourStep Tour::moveAway() const {
    return {"move away", kPause, [] { return front() != nullptr; },
            [] {
                postMouse(*front(), QEvent::MouseMove, {2, 2}, Qt::NoButton, Qt::NoButton);
            }};
}

TourStep Tour::press(const QString& id) const {
    return {"press " + id, kPause, [id] { return control(id) != nullptr; },
            [id] {
                QWidget& widget = *control(id);
                moveOnto(widget);
                postMouse(widget, QEvent::MouseButtonPress, widget.rect().center(), Qt::LeftButton,
                          Qt::LeftButton);
            }};
}

TourStep Tour::release(const QString& id) const {
    return {"release " + id, kPause, [id] { return control(id) != nullptr; },
            [id] {
                QWidget& widget = *control(id);
                postMouse(widget, QEvent::MouseButtonRelease, widget.rect().center(),
                          Qt::LeftButton, Qt::NoButton);
            }};
}

TourStep Tour::expect(const QString& id, const QString& text) const {
    const auto shows = [id, text] {
        const auto* label = dynamic_cast<const LabelView*>(control(id));
        return label && toQt(label->label().caption).contains(text);
    };
    return {id + " shows \"" + text + "\"", 0, shows, [] {}};
}

TourStep Tour::closeWindow() const {
    return {"close the window", kPause, [] { return front() != nullptr; },
            [] { QMetaObject::invokeMethod(front(), &QWidget::close, Qt::QueuedConnection); }};
}

TourStep Tour::picture(const QString& name, int pause) {
    return {"picture " + name, pause, [] { return front() != nullptr; },
            [this, name] { save(name); }};
}

QString Tour::pictureFile(const QString& name) {
    const QString number = QString::number(++pictures_).rightJustified(2, '0');
    return QDir(folder_).absoluteFilePath(number + '-' + name + ".png");
}

void Tour::save(const QString& name) {
    const QString file = pictureFile(name);
    if (grabAll().save(file))
        std::printf("%s\n", file.toLocal8Bit().constData());
    else
        steps_.push_back({"write " + file, 0, [] { return false; }, [] {}});
}

}  // namespace quillor
