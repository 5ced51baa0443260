// What a fuzzer's bytes stand for: choices first, then the rest as a file or a text.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>

#include "core/types.h"

namespace quillor::testing {

/// Ends the run as a finding of the fuzzer, with what was expected.
inline void require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

/// Reads on from the front; where nothing is left everything is 0 or empty.
class Bytes {
  public:
    Bytes(const std::uint8_t* data, std::size_t size) : left_(data, size) {}

    bool empty() const { return left_.empty(); }

    std::uint8_t byte() {
        if (left_.empty())
            return 0;
        const std::uint8_t value = left_.front();
        left_ = left_.subspan(1);
        return value;
    }

    /// 0..count-1; count is 1 to 256.
    std::size_t below(std::size_t count) { return byte() % count; }

    char16_t unit() {
        const auto high = static_cast<unsigned>(byte());
        return static_cast<char16_t>(high << 8U | byte());
    }

    /// As many units as the next byte says, if there are so many.
    Text text() {
        Text units;
        for (int length = byte(); length > 0 && !empty(); --length)
            units += unit();
        return units;
    }

    /// The next `most` bytes at most, as those of a file.
    std::string_view file(std::size_t most = SIZE_MAX) {
        const std::span<const std::uint8_t> taken = left_.first(std::min(most, left_.size()));
        left_ = left_.subspan(taken.size());
        // A char may stand for any byte.
        return {reinterpret_cast<const char*>(taken.data()), taken.size()};
    }

  private:
    std::span<const std::uint8_t> left_;
};

}  // namespace quillor::testing

/// One run with a fuzzer's bytes; always returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
