// What the page's script may call: one session, which lives as long as the page.
#include <memory>
#include <string>

#include "web/page_session.h"

namespace {

std::unique_ptr<quillor::Session>& session() {
    static std::unique_ptr<quillor::Session> session;
    return session;
}

}  // namespace

extern "C" {

/// A file that storage holds, or that the page brings along, by its whole path.
void page_put(const char* path, const char* bytes, int length) {
    quillor::Session::disk().put(path, std::string(bytes, static_cast<std::size_t>(length)));
}

void page_forget(const char* path) {
    quillor::Session::disk().forget(path);
}

void page_prepare(int english) {
    session() = std::make_unique<quillor::Session>(english != 0);
}

void page_start() {
    session()->start();
}

int page_event(int what, int screen, int control, int a, int b, const char16_t* text) {
    quillor::Session& visit = *session();
    return visit.happen(static_cast<quillor::Happening>(what), visit.shell().find(screen), control,
                        a, b, text ? quillor::TextView(text) : quillor::TextView());
}
}
