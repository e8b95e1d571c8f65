// Texts taken piece by piece.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace wortlex {

/// Cuts off, and gives, the longest start whose bytes all are as asked for.
template <class Asked>
std::string_view take_while(std::string_view& text, Asked asked) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), asked);
    const auto start = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(start.size());
    return start;
}

} // namespace wortlex
