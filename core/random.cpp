// SplitMix64: one multiply-and-shift mix of a counter, good for dealing cards
// and drawing topics, and the same everywhere.
#include "core/random.h"

namespace quillor {

namespace {

constexpr std::uint64_t kStep = 0x9E3779B97F4A7C15u;

std::uint64_t mixed(std::uint64_t value) {
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9u;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBu;
    return value ^ (value >> 31);
}

}  // namespace

double Random::next() {
    state_ += kStep;
    // The upper 53 bits fill a double's fraction exactly, so 1 is never reached.
    return static_cast<double>(mixed(state_) >> 11) * 0x1.0p-53;
}

void Random::reseed(std::uint64_t clock) {
    state_ = mixed(state_ + kStep) ^ mixed(clock);
}

}  // namespace quillor
