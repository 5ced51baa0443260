// Where swallowed errors are told of.
#include "core/guard.h"

#include <cstdio>
#include <cstdlib>

namespace quillor {

void logSwallowed(std::string_view operation, std::string_view error) noexcept {
    if (!std::getenv("QUILLOR_LOG"))
        return;
    std::fprintf(stderr, "quillor: %.*s ended: %.*s\n", static_cast<int>(operation.size()),
                 operation.data(), static_cast<int>(error.size()), error.data());
}

}  // namespace quillor
