// The program's environment, as a test wants it.
#pragma once

namespace quillor {

/// Sets a variable for the running program.
void setVariable(const char* name, const char* value);
/// Takes a variable away; one that is not there is no error.
void clearVariable(const char* name);

}  // namespace quillor
