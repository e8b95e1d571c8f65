#include "charts/axis.h"

#include "base/number.h"

#include <algorithm>
#include <cstdlib>

namespace wortlex {

int Axis::place(double value) const {
    const int length = std::abs(to - from);
    const int along = std::clamp(truncate(length * ((value - low) / (high - low)) + 0.5), 0, length);
    return to < from ? from - along : from + along;
}

std::vector<Tick> ticks(const Axis& axis, int step, const std::function<std::string(int)>& label) {
    std::vector<Tick> all;
    for (int value = truncate(axis.low); value <= truncate(axis.high); value += step)
        all.push_back({axis.place(value), label(value)});
    return all;
}

} // namespace wortlex
