// The choice of a printing scale, wherever it is made.
#pragma once

#include "forms/form.h"

#include <algorithm>
#include <array>

namespace wortlex {

/// 125, 100, 75 and 50 %; what is none of them chooses nothing.
inline ChoiceRow& print_scale_row(Rows& rows, std::string key, float& scale) {
    static constexpr std::array stored = {1.0F, 0.75F, 0.5F, 0.25F};
    const auto read = [&scale] {
        return static_cast<std::int32_t>(std::find(stored.begin(), stored.end(), scale) - stored.begin());
    };
    const auto write = [&scale](std::int32_t choice) { scale = stored.at(static_cast<std::size_t>(choice)); };
    return rows.choice(std::move(key), {read, write}, {"&125 %", "1&00 %", "&75 %", "&50 %"});
}

} // namespace wortlex
