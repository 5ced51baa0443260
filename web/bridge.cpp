#include "web/bridge.h"

#include <chrono>
#include <cstdlib>

#include <emscripten.h>

EM_JS(void, page_show, (const char* messages), { Module.page.show(UTF8ToString(messages)); });

// Waits may stand within one another, the innermost ending first: each goes on by its own
// copy of the stack.
EM_JS(int, page_wait, (const char* request), {
    return Asyncify.handleSleep(
        function(wakeUp) { Module.page.wait(UTF8ToString(request), wakeUp, Asyncify); });
});

EM_JS(char16_t*, page_answer, (), { return Module.page.copyOut(Module.page.answer); });
EM_JS(void, page_command, (const char* request), { Module.page.command(UTF8ToString(request)); });
EM_JS(int, page_full_screen, (), { return document.fullscreenElement ? 1 : 0; });
EM_JS(void, page_keep, (const char* path, const char* bytes, int length, int isNew), {
    Module.page.keep(UTF8ToString(path), HEAPU8.slice(bytes, bytes + length), Boolean(isNew));
});
EM_JS(void, page_drop, (const char* path), { Module.page.drop(UTF8ToString(path)); });

namespace quillor::bridge {

void show(const Messages& messages) {
    if (messages.written() != "[]")
        page_show(messages.written().c_str());
}

int wait(const Messages& request) {
    return page_wait(request.written().c_str());
}

Text answer() {
    char16_t* copy = page_answer();
    Text text(copy);
    std::free(copy);
    return text;
}

void command(const Messages& request) {
    page_command(request.written().c_str());
}

bool isFullScreen() {
    return page_full_screen() != 0;
}

std::int64_t milliseconds() {
    using namespace std::chrono;
    return duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch()).count();
}

std::uint64_t clockReading() {
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

void keepFile(const std::string& path, const std::string& bytes, bool isNew) {
    page_keep(path.c_str(), bytes.data(), static_cast<int>(bytes.size()), isNew ? 1 : 0);
}

void dropFile(const std::string& path) {
    page_drop(path.c_str());
}

}  // namespace quillor::bridge
