// What follows an event: windows are brought in step, shown, hidden and destroyed.
#include "qt/windows/shell.h"

#include <QCoreApplication>
#include <algorithm>

#include "qt/windows/screen_window.h"

namespace quillor {

namespace {

// Handlers that answer each other's changes for ever must not hang the program.
constexpr int kMostRounds = 8;

}  // namespace

Shell::~Shell() {
    for (ScreenWindow* window : windows_)
        delete window;
    for (ScreenWindow* window : closed_)
        delete window;
}

ScreenWindow* Shell::find(const Screen* screen) const {
    for (ScreenWindow* window : windows_)
        if (window->screen() == screen)
            return window;
    return nullptr;
}

ScreenWindow* Shell::findOver(const Screen& screen) const {
    for (ScreenWindow* window : windows_)
        if (window->over() == &screen)
            return window;
    return nullptr;
}

ScreenWindow* Shell::front() const {
    for (ScreenWindow* window : windows_)
        if (window->isActiveWindow())
            return window;
    return windows_.empty() ? nullptr : windows_.back();
}

void Shell::show(Screen& screen) {
    if (ScreenWindow* window = find(&screen))
        window->comeToFront();
    else
        windows_.push_back(new ScreenWindow(*this, screen));
}

void Shell::close(Screen& screen) {
    ScreenWindow* window = find(&screen);
    if (!window)
        return;
    std::erase(windows_, window);
    window->detach();
    closed_.push_back(window);
}

void Shell::end() {
    ended_ = true;
    QCoreApplication::exit(0);
}

void Shell::settle() {
    if (depth_ > base_ || ended_)
        return;
    if (syncing_) {
        again_ = true;
        return;
    }
    syncWindows();
    presentWindows();
    if (depth_ > 0)
        return;
    // The widget whose event this was is still on the stack.
    for (ScreenWindow* window : std::exchange(closed_, {}))
        window->deleteLater();
    if (onIdle)
        onIdle();
}

void Shell::syncWindows() {
    syncing_ = true;
    int rounds = 0;
    do {
        again_ = false;
        // By index: moving the focus runs handlers, which may open windows.
        for (std::size_t i = 0; i < windows_.size(); ++i)
            windows_[i]->sync();
    } while (again_ && ++rounds < kMostRounds);
    syncing_ = false;
}

// New windows appear before closed ones go, so that no desktop shines through.
void Shell::presentWindows() {
    for (const auto& group : {closed_, windows_})
        for (const ScreenWindow* window : group)
            if (window->isPresented() && window->isLarge())
                place_ = window->windowPlace();
    for (std::size_t i = 0; i < windows_.size(); ++i) {
        ScreenWindow& window = *windows_[i];
        if (!window.isPresented())
            window.present(place_, find(window.over()));
    }
    for (ScreenWindow* window : closed_)
        window->hide();
}

void Shell::showNow() {
    if (ended_ || syncing_)
        return;
    syncWindows();
    presentWindows();
    for (ScreenWindow* window : windows_)
        window->repaint();
}

}  // namespace quillor
