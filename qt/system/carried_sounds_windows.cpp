// Sounds among the Windows program's resources, of the type CUSTOM.
#include <windows.h>

#include "qt/system/carried_sounds.h"

namespace quillor {

// Neither handle has to be given back: the data are part of the loaded program.
std::span<const std::byte> carriedSound(int id) {
    HRSRC place = FindResourceA(nullptr, MAKEINTRESOURCEA(id), "CUSTOM");
    HGLOBAL loaded = place ? LoadResource(nullptr, place) : nullptr;
    const void* data = loaded ? LockResource(loaded) : nullptr;
    if (!data)
        return {};
    return {static_cast<const std::byte*>(data), SizeofResource(nullptr, place)};
}

}  // namespace quillor
