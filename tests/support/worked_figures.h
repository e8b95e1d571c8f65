// Tables of worked figures.
#pragma once

#include <gmock/gmock.h>

#include <array>
#include <bit>
#include <tuple>

namespace wortlex {

/// A row of arguments and of what the function gives.
template <class R, class... A>
using WorkedRow = std::tuple<std::remove_cvref_t<A>..., R>;

/// Calls `f` with the arguments of a row.
template <class R, class... A>
R worked(R (*f)(A...), const WorkedRow<R, A...>& row) {
    return [&]<std::size_t... i>(std::index_sequence<i...>) {
        return f(std::get<i>(row)...);
    }
    (std::index_sequence_for<A...>{});
}

template <class R, class... A>
void expect_exactly(R (*f)(A...), std::initializer_list<WorkedRow<R, A...>> rows) {
    for (const auto& row : rows)
        EXPECT_EQ(worked(f, row), std::get<sizeof...(A)>(row)) << testing::PrintToString(row);
}

/// Every figure of a structure or an array of floats, or one.
template <class Figures, class Name>
void expect_figures(const Figures& got, const std::type_identity_t<Figures>& expected, const Name& name) {
    using Floats = std::array<float, sizeof(Figures) / sizeof(float)>;
    EXPECT_THAT(std::bit_cast<Floats>(got),
                testing::Pointwise(testing::FloatEq(), std::bit_cast<Floats>(expected)))
        << name;
}

template <class R, class... A>
void expect_floats(R (*f)(A...), std::initializer_list<WorkedRow<R, A...>> rows) {
    for (const auto& row : rows)
        expect_figures(worked(f, row), std::get<sizeof...(A)>(row), testing::PrintToString(row));
}

} // namespace wortlex
