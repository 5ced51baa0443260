// A row of like controls, indexed as the screens' designs number them.
#pragma once

#include <array>
#include <stdexcept>
#include <string>

namespace quillor {

/// Controls `First` to `Last`, named "name(First)" to "name(Last)". Indexing is
/// always checked: a wrong index throws std::out_of_range.
template <typename T, int First, int Last>
class ControlArray {
  public:
    static constexpr int kFirst = First;
    static constexpr int kLast = Last;

    explicit ControlArray(const std::string& name) {
        for (int i = First; i <= Last; ++i)
            (*this)(i).id = name + "(" + std::to_string(i) + ")";
    }

    T& operator()(int index) { return items_[checked(index)]; }
    const T& operator()(int index) const { return items_[checked(index)]; }

    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

  private:
    static std::size_t checked(int index) {
        if (index < First || index > Last)
            throw std::out_of_range("control array index " + std::to_string(index));
        return static_cast<std::size_t>(index - First);
    }

    std::array<T, static_cast<std::size_t>(Last - First + 1)> items_{};
};

}  // namespace quillor
