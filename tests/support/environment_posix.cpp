// Systems whose C library has setenv.
#include <cstdlib>

#include "tests/support/environment.h"

namespace quillor {

void setVariable(const char* name, const char* value) {
    setenv(name, value, 1);
}

void clearVariable(const char* name) {
    unsetenv(name);
}

}  // namespace quillor
