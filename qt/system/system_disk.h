// The disk by the system's own calls.
#pragma once

#include "core/disk.h"

namespace quillor::platform {

/// A disk that flushes down to the medium, makes temporary files that no other
/// running copy has or takes for abandoned, and opens nothing but regular files
/// whatever happens to them meanwhile. Lives as long as the program.
Disk& systemDisk();

}  // namespace quillor::platform
