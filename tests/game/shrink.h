// Makes a list that fails short: what is left is needed for the failure.
#pragma once

#include <algorithm>
#include <vector>

namespace quillor::testing {

/// Leaves out parts of the list, large ones first, as long as `fails` says that
/// the rest still fails. `fails` must be true of the list itself.
template <typename T, typename Fails>
std::vector<T> shrunk(std::vector<T> list, Fails&& fails) {
    for (std::size_t part = std::max<std::size_t>(list.size() / 2, 1); part > 0; part /= 2) {
        for (std::size_t from = 0; from < list.size();) {
            const auto first = list.begin() + static_cast<std::ptrdiff_t>(from);
            const auto length = std::min(part, list.size() - from);
            std::vector<T> rest(list.begin(), first);
            rest.insert(rest.end(), first + static_cast<std::ptrdiff_t>(length), list.end());
            if (fails(rest))
                list = std::move(rest);
            else
                from += length;
        }
    }
    return list;
}

}  // namespace quillor::testing
