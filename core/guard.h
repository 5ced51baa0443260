// The one way in which an operation ends quietly on an unexpected error.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string_view>
#include <utility>

namespace quillor {

/// Called with each swallowed error; writes one line to standard error when
/// QUILLOR_LOG is set in the environment, else does nothing.
inline void logSwallowed(std::string_view operation, std::string_view error) noexcept {
    if (!std::getenv("QUILLOR_LOG"))
        return;
    std::fprintf(stderr, "quillor: %.*s ended: %.*s\n", static_cast<int>(operation.size()),
                 operation.data(), static_cast<int>(error.size()), error.data());
}

/// Runs `body`. An exception ends it at that point, keeping what it had changed
/// so far, and is logged under the name of the operation.
/// Returns true when `body` ran to its end.
template <typename Body>
bool quietly(std::string_view operation, Body&& body) {
    try {
        std::forward<Body>(body)();
        return true;
    } catch (const std::exception& error) {
        logSwallowed(operation, error.what());
    } catch (...) {
        logSwallowed(operation, "unknown error");
    }
    return false;
}

}  // namespace quillor
