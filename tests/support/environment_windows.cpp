// Windows, whose C library has names of its own for this.
#include <cstdlib>

#include "tests/support/environment.h"

namespace quillor {

void setVariable(const char* name, const char* value) {
    _putenv_s(name, value);
}

// There, a variable without a value is none.
void clearVariable(const char* name) {
    _putenv_s(name, "");
}

}  // namespace quillor
