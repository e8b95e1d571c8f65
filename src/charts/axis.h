// A straight axis of a chart: where a value stands, and the ticks along it.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace wortlex {

/// From values to pixels of a surface. `from` is the pixel of `low` and `to` that of `high`; an axis that
/// goes up has the smaller pixel at its end.
struct Axis {
    int from = 0;
    int to = 0;
    double low = 0;
    double high = 1;

    /// To the nearest pixel; a value beyond an end stands at that end.
    int place(double value) const;
};

struct Tick {
    int at = 0;        ///< pixel
    std::string label; ///< empty: the line alone
};

/// A tick at `low`, which must be whole, and at each `step` (above 0) from there up to `high`, included.
std::vector<Tick> ticks(const Axis& axis, int step, const std::function<std::string(int)>& label);

} // namespace wortlex
