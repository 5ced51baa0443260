// The window's place and state are the player's: it is put somewhere once.
#include "qt/windows/page_window.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "qt/windows/qt_values.h"
#include "qt/windows/shell.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr double kShareOfDisplay = 0.8;  // that the window fills at first
constexpr QSize kRoomy(800, 490);        // a smaller first window fills its display instead
// The smallest window: no text falls under 8 pixels in it, whatever its shape.
constexpr QSize kSmallest(600, 370);
constexpr QSize kSmallestUpright(360, 620);  // on a display that is no wider than a phone
constexpr double kSmallestDialog = 0.03;     // pixels a twip
constexpr int kSettled = 400;                // ms

QSizeF sizeOf(const Sheet& sheet) {
    return {sheet.width, sheet.height};
}

QSizeF sizeOf(const Screen& screen) {
    return {screen.width, screen.height};
}

QList<QRect> displays() {
    QList<QRect> areas;
    for (const QScreen* display : QGuiApplication::screens())
        areas << display->availableGeometry();
    if (const QScreen* main = QGuiApplication::primaryScreen())
        areas.prepend(main->availableGeometry());
    return areas;
}

QSize smallestOn(const QRect& display) {
    const bool upright = display.width() < kSmallest.width();
    return (upright ? kSmallestUpright : kSmallest).boundedTo(display.size());
}

}  // namespace

PageWindow::PageWindow(QWidget* parent, const WindowMemory* memory)
    : QMainWindow(parent), memory_(memory) {
    installAccessibility();
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(new QWidget);
    room_ = new QGridLayout(centralWidget());
    room_->setContentsMargins({});
    settled_.setSingleShot(true);
    settled_.setInterval(kSettled);
    connect(&settled_, &QTimer::timeout, this, [this] { keepState(); });
}

PageWindow::PageWindow(const WindowMemory* memory) : PageWindow(nullptr, memory) {}

PageWindow::PageWindow(PageWindow& owner) : PageWindow(&owner, nullptr) {
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setWindowModality(Qt::WindowModal);
}

QSizeF PageWindow::sheet(const Screen& screen) const {
    if (screen.sheet().width > 0)
        return sizeOf(screen.sheet());
    return isDialog() ? sizeOf(screen) : sizeOf(kWideSheet).expandedTo(sizeOf(screen));
}

// The new page appears before the old one goes, so that nothing shines through.
void PageWindow::turnTo(Page* page) {
    Page* before = std::exchange(page_, page);
    if (page)
        syncTitle();
    if (page == before)
        return;
    if (before)
        before->leave();
    if (page) {
        room_->addWidget(page, 0, 0);
        page->show();
        page->raise();
        page->enter();
        open();
    } else {
        hide();
    }
    if (before)
        before->hide();
}

void PageWindow::syncTitle() {
    const QString title = toQt(page_->screen()->title);
    if (title != windowTitle()) {
        setWindowTitle(title);
        setAccessibleName(title);
    }
    // A screen reader speaks of a window when the player comes to it, and of a
    // page when it is turned to; a dialog has one page only.
    if (!isDialog() && title != page_->accessibleName())
        page_->setAccessibleName(title);
}

void PageWindow::open() {
    if (!std::exchange(opened_, true)) {
        const QList<QRect> areas = displays();
        const std::optional<WindowState> kept = memory_ ? memory_->kept() : std::nullopt;
        if (isDialog())
            setMinimumSize(smallestDialog());
        else if (!areas.isEmpty())
            setMinimumSize(smallestOn(areas.front()));
        if (kept && !areas.isEmpty())
            restore(*kept);
        else
            setGeometry(isDialog() ? dialogPlace() : firstPlace());
    }
    show();
    noteChange();
}

void PageWindow::restore(const WindowState& state) {
    setGeometry(placeOnDisplays(state.place, displays()));
    if (state.shown == WindowState::Shown::Maximised)
        setWindowState(Qt::WindowMaximized);
    else if (state.shown == WindowState::Shown::FullScreen)
        setWindowState(Qt::WindowFullScreen);
    known_ = state;
}

// In the middle of the display, on the sheet that suits it. A small one it fills.
QRect PageWindow::firstPlace() const {
    const QScreen* display = QGuiApplication::primaryScreen();
    const QRect space = display ? display->availableGeometry() : QRect(QPoint(), kRoomy);
    const QSize room = space.size() * kShareOfDisplay;
    const QSizeF paper = sizeOf(sheetFor(kLargeSheets, space.width(), space.height()));
    const QSize size = paper.scaled(room, Qt::KeepAspectRatio).toSize();
    if (size.width() < kRoomy.width() && size.height() < kRoomy.height())
        return space;
    QRect place(QPoint(), size);
    place.moveCenter(space.center());
    return place;
}

// No larger than on a small display, whose scale may be any.
QSize PageWindow::smallestDialog() const {
    const auto& owner = static_cast<const PageWindow&>(*parentWidget());
    const double pixels = std::min(kSmallestDialog, owner.page()->scale().pixels);
    return (sheet(*page_->screen()) * pixels).toSize();
}

// In the middle of the owner, of its shape and in its scale.
QRect PageWindow::dialogPlace() const {
    const auto& owner = static_cast<const PageWindow&>(*parentWidget());
    page_->fit(owner.size());
    QRect place(QPoint(), (sheet(*page_->screen()) * owner.page()->scale().pixels).toSize());
    const QRect space = owner.screen()->availableGeometry();
    place.moveCenter(owner.geometry().center());
    // The owner may be half off the display.
    place.moveBottomRight(
        {std::min(place.right(), space.right()), std::min(place.bottom(), space.bottom())});
    place.moveTopLeft({std::max(place.left(), space.left()), std::max(place.top(), space.top())});
    return place;
}

void PageWindow::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    noteChange();
}

void PageWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    noteChange();
}

void PageWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        noteChange();
}

void PageWindow::noteChange() {
    if (memory_ && isVisible())
        settled_.start();
}

// Where the desktop puts the window when it opens is not the player's doing.
void PageWindow::keepState() {
    const WindowState state{normalGeometry(), isFullScreen()  ? WindowState::Shown::FullScreen
                                              : isMaximized() ? WindowState::Shown::Maximised
                                                              : WindowState::Shown::Normal};
    const bool byPlayer = known_ ? *known_ != state : state.shown != WindowState::Shown::Normal;
    if (byPlayer)
        memory_->keep(state);
    known_ = state;
}

// A key that finds no widget with the focus is the page's all the same.
bool PageWindow::event(QEvent* event) {
    const bool typed = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease ||
                       event->type() == QEvent::InputMethod;
    if (event->type() == QEvent::WindowDeactivate && page_)
        page_->letKeysGo();
    if (typed && page_ && page_->eventFilter(this, event))
        return true;
    return QMainWindow::event(event);
}

void PageWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (page_)
        page_->askToClose();
}

}  // namespace quillor
