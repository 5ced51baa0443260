// What a topic's file may be called.
#pragma once

#include "core/types.h"

namespace quillor {

/// Whether a sign can be in no file's name on one system or another.
bool isForbiddenInNames(char16_t sign);

/// The name without those signs. With ".txt" behind it every system takes it,
/// unless it is empty or a reserved one.
Text withoutForbidden(TextView name);

/// The name with "_" behind the word that Windows reserves for a device, if it
/// is one: "CON" and "CON.1" become "CON_" and "CON_.1". Any other is unchanged.
Text besideDevices(TextView name);

}  // namespace quillor
