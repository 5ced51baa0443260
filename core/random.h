// A small random generator of our own: the same numbers on every platform.
#pragma once

#include <cstdint>

namespace quillor {

/// SplitMix64: one multiply-and-shift mix of a counter, good for dealing cards and
/// drawing topics.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    /// Uniform in [0, 1).
    double next() {
        state_ += kStep;
        // The upper 53 bits fill a double's fraction exactly, so 1 is never reached.
        return static_cast<double>(mixed(state_) >> 11) * 0x1.0p-53;
    }

    /// Mixes a clock reading into the state. Two calls with the same reading
    /// do not repeat the numbers, so a loop that reseeds each time moves on.
    void reseed(std::uint64_t clock) { state_ = mixed(state_ + kStep) ^ mixed(clock); }

  private:
    static constexpr std::uint64_t kStep = 0x9E3779B97F4A7C15u;

    static constexpr std::uint64_t mixed(std::uint64_t value) {
        value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9u;
        value = (value ^ (value >> 27)) * 0x94D049BB133111EBu;
        return value ^ (value >> 31);
    }

    std::uint64_t state_;
};

}  // namespace quillor
