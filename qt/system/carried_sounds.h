// The sounds that the program carries inside itself.
#pragma once

#include <cstddef>
#include <span>

namespace quillor {

/// The sound 101..107 as a whole WAVE image, which stays for the whole run;
/// empty when there is none of that number.
std::span<const std::byte> carriedSound(int id);

}  // namespace quillor
