// What follows an event: pages are brought in step, shown, hidden and destroyed.
#include "qt/windows/shell.h"

#include <QApplication>
#include <algorithm>

#include "qt/windows/page_window.h"

namespace quillor {

namespace {

// Handlers that answer each other's changes for ever must not hang the program.
constexpr int kMostRounds = 8;

}  // namespace

Shell::Shell(FontBook& fontBook) : fonts(fontBook) {}

Shell::~Shell() = default;

Page* Shell::find(const Screen* screen) const {
    const auto shows = [screen](const Page* page) { return page->screen() == screen; };
    const auto found = std::ranges::find_if(pages_, shows);
    return found == pages_.end() ? nullptr : *found;
}

Page* Shell::front() const {
    const auto takesInput = [](const Page* page) { return page->screen()->enabled; };
    const auto last = std::find_if(pages_.rbegin(), pages_.rend(), takesInput);
    if (last != pages_.rend())
        return *last;
    return pages_.empty() ? nullptr : pages_.back();
}

void Shell::comeToFront(const std::string& token) {
    QWidget* window = QApplication::activeModalWidget();
    if (const Page* page = front(); !window && page)
        window = &page->pageWindow();
    if (!window)
        return;
    if (!token.empty())
        qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(token));
    window->window()->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    window->activateWindow();
}

PageWindow& Shell::windowFor(const Screen& screen) {
    const Page* below = screen.over ? find(screen.over) : nullptr;
    if (below)
        return *dialogs_.emplace_back(new PageWindow(below->pageWindow()));
    if (!window_)
        window_ = std::make_unique<PageWindow>(memory ? &*memory : nullptr);
    return *window_;
}

void Shell::show(Screen& screen) {
    Page* page = find(&screen);
    if (page)
        std::erase(pages_, page);
    else
        page = new Page(*this, screen, windowFor(screen));
    pages_.push_back(page);
}

void Shell::close(Screen& screen) {
    Page* page = find(&screen);
    if (!page)
        return;
    std::erase(pages_, page);
    keys.forget(screen);
    page->detach();
    closed_.push_back(page);
}

bool Shell::isFullScreen() const {
    return window_ && window_->isFullScreen();
}

// The state that it leaves, maximised or not, is what it comes back to.
void Shell::setFullScreen(bool on) {
    if (window_)
        window_->setWindowState(window_->windowState().setFlag(Qt::WindowFullScreen, on));
}

void Shell::end() {
    ended_ = true;
    QCoreApplication::exit(0);
}

void Shell::settle(Cause cause) {
    if (!events_.areDone() || ended_)
        return;
    if (syncing_) {
        again_ = true;
        return;
    }
    refresh(cause);
    if (!events_.areIdle())
        return;
    deleteClosed();
    if (onIdle)
        onIdle();
}

void Shell::refresh(Cause cause) {
    syncing_ = true;
    int rounds = 0;
    do {
        again_ = false;
        const bool all = std::exchange(preferencesDiffer_, false);
        // Moving the focus runs handlers, which may open and close screens.
        for (Page* page : std::vector(pages_))
            page->sync(all ? Cause::Preferences : cause);
        turnPages();
    } while (again_ && ++rounds < kMostRounds);
    syncing_ = false;
}

// In each window the page that was opened last is on show.
void Shell::turnPages() {
    const auto turn = [this](PageWindow& window) {
        const auto inIt = [&](const Page* page) { return &page->pageWindow() == &window; };
        const auto last = std::ranges::find_if(pages_.rbegin(), pages_.rend(), inIt);
        window.turnTo(last == pages_.rend() ? nullptr : *last);
    };
    if (window_)
        turn(*window_);
    for (PageWindow* dialog : std::vector(dialogs_))
        turn(*dialog);
}

// Later: the widget whose event this was is still on the stack.
void Shell::deleteClosed() {
    for (Page* page : std::exchange(closed_, {}))
        page->deleteLater();
    std::erase_if(dialogs_, [](PageWindow* dialog) {
        if (dialog->page())
            return false;
        dialog->deleteLater();
        return true;
    });
}

void Shell::apply(const Preferences& wanted) {
    if (wanted == preferences)
        return;
    preferences = wanted;
    scheme = Scheme(wanted);
    fonts.textSize = wanted.textSize;
    motions.wanted = !wanted.reducedMotion;
    preferencesDiffer_ = true;
    event([] {});
}

void Shell::paintMotions() {
    if (ended_ || !motions.step())
        return;
    if (window_)
        window_->repaint();
}

void Shell::showNow() {
    if (ended_ || syncing_)
        return;
    refresh(Cause::Player);
    if (window_)
        window_->repaint();
    for (PageWindow* dialog : dialogs_)
        dialog->repaint();
}

}  // namespace quillor
