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

#include "qt/windows/page_window.h"
#include "qt/windows/qt_values.h"
#include "qt/windows/shell.h"

namespace quillor {

namespace {

constexpr int kLookAgain = 15;    // ms
constexpr int kPatience = 30000;  // ms, until a step counts as failed

// What stands over the program's own windows: an open menu or a box.
QWidget* openBox() {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    QWidget* modal = QApplication::activeModalWidget();
    return dynamic_cast<PageWindow*>(modal) ? nullptr : modal;
}

template <typename Kind>
const Kind* find(const Screen* screen, const QString& id) {
    if (!screen)
        return nullptr;
    for (const ControlRef& ref : screen->controls())
        if (auto* const* control = std::get_if<Kind*>(&ref))
            if ((*control)->id == id.toStdString())
                return *control;
    return nullptr;
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

// Wayland does not tell a program where its windows stand; a dialog appears in the
// middle of its owner there.
QRect placeOf(const QWidget& window) {
    QRect place = window.geometry();
    const bool unknown = QGuiApplication::platformName().startsWith("wayland");
    if (unknown && window.windowType() == Qt::Dialog && window.parentWidget() != nullptr)
        place.moveCenter(window.parentWidget()->geometry().center());
    return place;
}

// What a desktop does for a window in front of another one.
void paintShadow(QPainter& painter, const QRect& window) {
    constexpr int kReach = 9;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 12));
    for (int reach = 1; reach <= kReach; ++reach)
        painter.drawRoundedRect(window.adjusted(-reach, -reach, reach, reach), reach, reach);
}

}  // namespace

Tour::Tour(const Shell& shell, QString folder, std::function<void(QString)> finished)
    : shell_(shell), folder_(std::move(folder)), finished_(std::move(finished)) {}

void Tour::start(std::vector<TourStep> steps) {
    steps_ = std::move(steps);
    waiting_.start();
    QTimer::singleShot(0, this, [this] { next(); });
}

// Steps only post events, so that a box which an event opens does not hold the
// tour up. They have been delivered when the next step has its turn.
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
        QTimer::singleShot(0, this, [this] { next(); });
    } else if (waiting_.elapsed() > kPatience) {
        finished_("step " + QString::number(at_ + 1) + " could not be done: " + step.name);
    } else {
        QTimer::singleShot(kLookAgain, this, [this] { next(); });
    }
}

// What takes keys and mouse now.
QWidget* Tour::front() const {
    if (QWidget* box = openBox())
        return box;
    const Page* page = shell_.front();
    return page && page->isVisible() ? &page->pageWindow() : nullptr;
}

// Null while a box is open.
const Screen* Tour::screen() const {
    const Page* page = shell_.front();
    return page && page->isVisible() && !openBox() ? page->screen() : nullptr;
}

QWidget* Tour::control(const QString& id) const {
    const Page* page = screen() ? shell_.front() : nullptr;
    QWidget* found = page ? page->findChild<QWidget*>(id) : nullptr;
    return found && found->isVisible() ? found : nullptr;
}

TourStep Tour::waitFor(const QString& wanted) const {
    return {"wait for " + wanted,
            [this, wanted] {
                const Screen* front = screen();
                return front != nullptr && front->name == wanted.toStdString();
            },
            [] {}};
}

TourStep Tour::waitForBox() const {
    return {"wait for a box", [] { return openBox() != nullptr; }, [] {}};
}

TourStep Tour::waitForLine(const QString& id, Twips reach) const {
    const auto reaches = [this, id, reach] {
        const auto* line = find<Line>(screen(), id);
        return line != nullptr && line->x2 >= reach;
    };
    return {id + " grows", reaches, [] {}};
}

TourStep Tour::waitUntilShown(const QString& id) const {
    return {"wait until " + id + " is shown", [this, id] { return control(id) != nullptr; }, [] {}};
}

TourStep Tour::waitForRest(const QStringList& timers) const {
    const auto rests = [this, timers] {
        const Screen* front = screen();
        return front != nullptr && !shell_.motions.areUnderWay() &&
               std::ranges::none_of(front->timers(), [&](const Timer* timer) {
                   return timer->enabled && timers.contains(QString::fromStdString(timer->id));
               });
    };
    return {"wait for the rest of " + timers.join(", "), rests, [] {}};
}

TourStep Tour::expect(const QString& id, const QString& text) const {
    const auto shows = [this, id, text] {
        const auto* label = find<Label>(screen(), id);
        return label != nullptr && toQt(label->caption).contains(text);
    };
    return {id + " shows \"" + text + "\"", shows, [] {}};
}

TourStep Tour::key(int key, Qt::KeyboardModifiers modifiers) const {
    return {"press a key", [this] { return front() != nullptr; },
            [this, key, modifiers] { postKey(*front(), key, modifiers, {}); }};
}

TourStep Tour::type(const QString& character) const {
    return {"type " + character, [this] { return front() != nullptr; },
            [this, character] {
                const int code = character.at(0).toUpper().unicode();
                postKey(*front(), code, Qt::NoModifier, character);
            }};
}

TourStep Tour::moveTo(const QString& id) const {
    return {"move to " + id, [this, id] { return control(id) != nullptr; },
            [this, id] { moveOnto(*control(id)); }};
}

TourStep Tour::moveAway() const {
    return {"move away", [this] { return front() != nullptr; },
            [this] {
                postMouse(*front(), QEvent::MouseMove, {2, 2}, Qt::NoButton, Qt::NoButton);
            }};
}

TourStep Tour::press(const QString& id) const {
    return {"press " + id, [this, id] { return control(id) != nullptr; },
            [this, id] {
                QWidget& widget = *control(id);
                moveOnto(widget);
                postMouse(widget, QEvent::MouseButtonPress, widget.rect().center(), Qt::LeftButton,
                          Qt::LeftButton);
            }};
}

TourStep Tour::release(const QString& id) const {
    return {"release " + id, [this, id] { return control(id) != nullptr; },
            [this, id] {
                QWidget& widget = *control(id);
                postMouse(widget, QEvent::MouseButtonRelease, widget.rect().center(),
                          Qt::LeftButton, Qt::NoButton);
            }};
}

TourStep Tour::closeWindow() const {
    return {"close the window", [this] { return front() != nullptr; },
            [this] { QMetaObject::invokeMethod(front(), &QWidget::close, Qt::QueuedConnection); }};
}

TourStep Tour::picture(const QString& name) {
    return {"picture " + name, [this] { return front() != nullptr; }, [this, name] { save(name); }};
}

QString Tour::pictureFile(const QString& name) {
    const QString number = QString::number(++pictures_).rightJustified(2, '0');
    return QDir(folder_).absoluteFilePath(number + '-' + name + ".png");
}

// The program's windows, and what stands over them in front.
QList<QWidget*> Tour::windowsFromBack() const {
    QList<QWidget*> shown;
    const Page* page = shell_.front();
    for (QWidget* window = page ? &page->pageWindow() : nullptr; window;
         window = window->parentWidget())
        shown.prepend(window);
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() != Qt::ToolTip && !shown.contains(window))
            shown.append(window);
    return shown;
}

// The windows in front of each other, as they stand on the display.
QPixmap Tour::grabAll() const {
    QRect extent;
    const QList<QWidget*> windows = windowsFromBack();
    for (const QWidget* window : windows)
        extent |= placeOf(*window);
    if (extent.isEmpty())
        return {};
    const double density = windows.front()->devicePixelRatioF();
    QPixmap picture((QSizeF(extent.size()) * density).toSize());
    picture.setDevicePixelRatio(density);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    for (QWidget* window : windows) {
        const QRect place = placeOf(*window).translated(-extent.topLeft());
        if (window != windows.front())
            paintShadow(painter, place);
        painter.drawPixmap(place.topLeft(), window->grab());
    }
    return picture;
}

void Tour::save(const QString& name) {
    const QString file = pictureFile(name);
    if (grabAll().save(file))
        std::printf("%s\n", file.toLocal8Bit().constData());
    else
        steps_.push_back({"write " + file, [] { return false; }, [] {}});
}

}  // namespace quillor
