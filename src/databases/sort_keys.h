// What lists are sorted by: the keys of a column, and the order that a chain of them gives.
#pragma once

#include <algorithm>
#include <cmath>
#include <numeric>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace wortlex {

/// `text` for comparisons without regard to case: A to Z fold, other letters stand as their Windows-1252
/// bytes do.
std::string folded(std::string_view text);

/// The keys of one column, worked out once: texts or numbers.
struct SortKeys {
    std::vector<std::string> texts;
    std::vector<float> numbers;
    bool descending = false;

    /// Below 0: `a` comes before `b`. What is no number comes last in either direction.
    int compare(std::size_t a, std::size_t b) const {
        int order = 0;
        if (!texts.empty()) {
            order = texts[a].compare(texts[b]);
        } else {
            const float x = numbers[a], y = numbers[b];
            if (std::isnan(x) || std::isnan(y))
                return static_cast<int>(std::isnan(x)) - static_cast<int>(std::isnan(y));
            order = static_cast<int>(x > y) - static_cast<int>(x < y);
        }
        return descending ? -order : order;
    }
};

/// The places of `count` entries in the order of the chain, one key after the other; equal entries keep
/// their order.
inline std::vector<std::size_t> sorted_order(std::span<const SortKeys> chain, std::size_t count) {
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        for (const auto& keys : chain)
            if (const int by_key = keys.compare(a, b); by_key != 0) return by_key < 0;
        return false;
    });
    return order;
}

} // namespace wortlex
