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

constexpr double kShareOfDisplay = 0.8;      // that the window fills at first
constexpr double kSmallestScale = 0.35;      // of the first one
constexpr double kFallbackScale = 1.0 / 15;  // pixels a twip, without a display

const QSizeF kSheet(style::kScreenWidth, style::kScreenHeight);

double firstScale() {
    const QScreen* display = QGuiApplication::primaryScreen();
    if (!display)
        return kFallbackScale;
    const QSizeF space = display->availableSize() * kShareOfDisplay;
    return std::min(space.width() / kSheet.width(), space.height() / kSheet.height());
}

QSizeF sizeOf(const Screen& screen) {
    return {static_cast<double>(screen.width), static_cast<double>(screen.height)};
}

}  // namespace

PageWindow::PageWindow(PageWindow* owner) : QMainWindow(owner) {
    installAccessibility();
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(new QWidget);
    room_ = new QGridLayout(centralWidget());
    room_->setContentsMargins({});
    if (!owner)
        return;
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setWindowModality(Qt::WindowModal);
}

QSizeF PageWindow::sheet(QSizeF screen) const {
    return isDialog() ? screen : kSheet.expandedTo(screen);
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
        setMinimumSize((sheet(sizeOf(*page_->screen())) * firstScale() * kSmallestScale).toSize());
        setGeometry(firstPlace());
    }
    show();
}

// In the middle of the display, or of the owner and in its scale.
QRect PageWindow::firstPlace() const {
    const auto* owner = static_cast<const PageWindow*>(parentWidget());
    const double scale = owner ? owner->page()->scale().pixels : firstScale();
    QRect place(QPoint(), (sheet(sizeOf(*page_->screen())) * scale).toSize());
    const QScreen* display = owner ? owner->screen() : QGuiApplication::primaryScreen();
    if (!display)
        return place;
    const QRect space = display->availableGeometry();
    place.moveCenter(owner ? owner->geometry().center() : space.center());
    // The owner may be half off the display.
    place.moveBottomRight(
        {std::min(place.right(), space.right()), std::min(place.bottom(), space.bottom())});
    place.moveTopLeft({std::max(place.left(), space.left()), std::max(place.top(), space.top())});
    return place;
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
