#include "qt/windows/window_memory.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

#include "core/files.h"
#include "core/guard.h"
#include "core/numbers.h"

namespace quillor {

namespace {

constexpr std::size_t kLines = 5;
constexpr int kFarthest = 32767;  // what displays can have

std::optional<int> number(const Text& line) {
    const std::string digits(line.begin(), line.end());
    int value = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value);
    const bool good = error == std::errc() && stop == end && std::abs(value) <= kFarthest;
    return good ? std::optional(value) : std::nullopt;
}

int shared(const QRect& one, const QRect& other) {
    const QRect both = one & other;
    return both.isEmpty() ? 0 : both.width() * both.height();
}

}  // namespace

std::optional<WindowState> WindowMemory::kept() const {
    std::vector<Text> lines;
    quietly("WindowMemory", [&] {
        if (isFile(file_))
            lines = readLines(file_, kLines);
    });
    if (lines.size() != kLines)
        return std::nullopt;
    std::array<int, kLines> numbers{};
    for (std::size_t i = 0; i < kLines; ++i) {
        const std::optional<int> read = number(lines[i]);
        if (!read)
            return std::nullopt;
        numbers.at(i) = *read;
    }
    const auto [left, top, width, height, shown] = numbers;
    if (width <= 0 || height <= 0 || shown < 0 || shown > 2)
        return std::nullopt;
    return WindowState{QRect(left, top, width, height), static_cast<WindowState::Shown>(shown)};
}

void WindowMemory::keep(const WindowState& state) const {
    std::vector<Text> lines;
    for (const int value : {state.place.left(), state.place.top(), state.place.width(),
                            state.place.height(), static_cast<int>(state.shown)})
        lines.push_back(inDigits(value));
    quietly("WindowMemory", [&] { writeLines(file_, lines); });
}

QRect placeOnDisplays(const QRect& place, const QList<QRect>& displays) {
    const auto most = std::ranges::max_element(
        displays, {}, [&](const QRect& display) { return shared(place, display); });
    QRect found(place.topLeft(), place.size().boundedTo(most->size()));
    if (2 * shared(place, *most) < place.width() * place.height()) {
        const QRect& main = displays.front();
        found.setSize(place.size().boundedTo(main.size()));
        found.moveCenter(main.center());
    } else if (found.top() < most->top()) {
        found.moveTop(most->top());  // by its title it is moved
    }
    return found;
}

}  // namespace quillor
