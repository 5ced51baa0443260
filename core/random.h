// A small random generator of our own: the same numbers on every platform.
#pragma once

#include <cstdint>

namespace quillor {

class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    /// Uniform in [0, 1).
    double next();

    /// Mixes a clock reading into the state. Two calls with the same reading
    /// do not repeat the numbers, so a loop that reseeds each time moves on.
    void reseed(std::uint64_t clock);

  private:
    std::uint64_t state_;
};

}  // namespace quillor
